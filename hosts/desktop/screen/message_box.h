#pragma once

#include <QMessageBox>
#include <map>

#include "desk/question.h"
#include "platform/forms/screen_face.h"

namespace awizo::desktop {

/// A message box's lines as Qt breaks them: at a carriage return, a line feed, or both. A text far
/// too long for any screen is cut.
QString boxText(std::string_view text);

/// Shows the box over the window and answers when the user has. Escape and the window frame's close
/// mean OK, or No where there is a choice.
Answer askUser(const MessageBox& box, QWidget* over);

/// The question as a box with a button for each choice, not yet shown.
class QuestionBox : public QMessageBox {
 public:
  QuestionBox(const awizo::Question& question, QWidget* over);
  /// What the user has chosen; the harmless choice until then.
  Choice choice() const;

 private:
  Choice harmless_;
  std::map<QAbstractButton*, Choice> choices_;
};

}  // namespace awizo::desktop
