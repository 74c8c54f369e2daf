#pragma once

#include <string_view>

#include "platform/forms/screen_face.h"

namespace awizo {

// What a host asks or tells the user beside what the control does.

/// Asked before a changed document is lost; Yes lets it go.
MessageBox lossQuestion();
/// Told where there is no local folder yet; the choice of one follows.
MessageBox folderRequest();
/// Asked before the first exchange with this place; Yes trusts it.
MessageBox newAddressQuestion(std::string_view origin);
/// `version`: the text of the form's version label.
MessageBox aboutBox(std::string_view version);

}  // namespace awizo
