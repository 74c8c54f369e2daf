#pragma once

#include <string_view>

#include "desk/bringing.h"
#include "hosts/headless/conversation.h"

namespace awizo::headless {

/// Puts the file that the line {"name":"awizo.xml","from":PATH} brings into the folder, asking the
/// user where it must. What the disk refuses he is told; then, too, the file has no place.
BroughtPlace broughtBy(const protocol::Json& line, Files& files, std::string_view folder,
                       Conversation& conversation);

/// {"event":"mayBring","form":"DlgWczytajZapisz","may":true}: whether files may be brought from
/// elsewhere while the form is shown.
protocol::Json mayBringEvent(const Form& form, bool may);

}  // namespace awizo::headless
