#pragma once

#include <QKeySequence>
#include <vector>

#include "desk/commands.h"
#include "hosts/desktop/faces/form_face.h"

namespace awizo::desktop {

QKeySequence keysOf(const CommandKey& key);

/// Gives a dialog's commands, which stand in no menu, their keys, and their buttons tips with them.
void giveKeys(const std::vector<Command>& commands, FormFace& faces);

}  // namespace awizo::desktop
