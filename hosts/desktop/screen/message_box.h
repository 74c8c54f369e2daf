#pragma once

#include <QMessageBox>

#include "platform/forms/screen_face.h"

namespace awizo::desktop {

/// A message box's lines as Qt breaks them: at a carriage return, a line feed, or both. A text far
/// too long for any screen is cut.
QString boxText(std::string_view text);

/// Shows the box over the window and answers when the user has. Escape and the window frame's close
/// mean OK, or No where there is a choice.
Answer askUser(const MessageBox& box, QWidget* over);

}  // namespace awizo::desktop
