#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/screen_face.h"

namespace awizo {

/// What is on the screen: the main form, the modal forms over it, last opened last, and the box
/// that waits for an answer. Only the topmost of these takes the user's input.
class Screen {
 public:
  explicit Screen(ScreenFace& face) : face_(face) {}

  /// Title of a box that has none of its own.
  static constexpr std::string_view programTitle = "VIRDDesAdv";

  Answer messageBox(MessageBox box);
  void showCritical(std::string_view text, std::string_view title);
  void showExclamation(std::string_view text, std::string_view title);

  /// Puts the main form on the screen and returns at once.
  void showMain(Form& form);
  /// Shows a form over all others; returns when it has hidden. Used by Form::showModal.
  void runModal(Form& form);

  /// Shows a cursor and returns the earlier one.
  Cursor setCursor(Cursor cursor);
  Cursor cursor() const { return cursor_; }

  void letEventsRun() { face_.letEventsRun(); }
  void endProgram() { face_.endProgram(); }

  /// The form on top, or none.
  Form* top() const { return forms_.empty() ? nullptr : forms_.back(); }
  /// The box that waits for an answer, or none.
  const MessageBox* openBox() const { return boxes_.empty() ? nullptr : boxes_.back(); }
  bool takesInput(const Form& form) const { return top() == &form && openBox() == nullptr; }

 private:
  ScreenFace& face_;
  Cursor cursor_ = Cursor::normal;
  std::vector<Form*> forms_;
  std::vector<const MessageBox*> boxes_;
};

}  // namespace awizo
