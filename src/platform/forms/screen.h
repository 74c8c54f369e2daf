#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/act.h"
#include "platform/forms/screen_face.h"
#include "platform/run_time_error.h"

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
  /// A critical box with the error's description.
  void showError(const RunTimeError& error, std::string_view title);
  void showExclamation(std::string_view text, std::string_view title);

  /// Puts the main form on the screen and returns at once.
  void showMain(Form& form);
  /// Shows a form over all others; returns when it has hidden. Used by Form::showModal.
  void runModal(Form& form);
  /// Drops a form that ends its life.
  void forget(const Form& form);

  /// Runs an event procedure. A run-time error that leaves it, lack of memory included, shows a
  /// critical box with its description under the title "VIRD" and ends this event alone. An event
  /// that would be nested too deep isn't run: error 28 (Out of stack space) is raised in what
  /// caused it.
  void runEvent(const std::function<void()>& procedure);

  /// Shows a cursor and returns the earlier one.
  Cursor setCursor(Cursor cursor);
  Cursor cursor() const { return cursor_; }

  /// Does what takes long, and lets the user know what it is.
  void during(std::string_view what, const std::function<void()>& work);

  void letEventsRun();
  void endProgram() { face_.endProgram(); }

  /// Who learns of the user's acts; null for nobody.
  ActObserver* actObserver = nullptr;
  /// Whether a user's act runs; none does while a box or form that it opened waits.
  bool actRuns() const { return runningActs_ > 0; }

  /// The form on top, or none.
  Form* top() const { return forms_.empty() ? nullptr : forms_.back(); }
  /// The box that waits for an answer, or none.
  const MessageBox* openBox() const { return boxes_.empty() ? nullptr : boxes_.back(); }
  bool takesInput(const Form& form) const { return top() == &form && openBox() == nullptr; }

 private:
  friend class Acting;

  /// Far more than real work nests, few enough for the stack.
  static constexpr int mostNestedEvents = 250;

  /// Lets the user act again: what he does meanwhile is no part of what runs.
  template <class Wait>
  auto letUserAct(Wait&& wait);

  ScreenFace& face_;
  Cursor cursor_ = Cursor::normal;
  int runningEvents_ = 0;
  int runningActs_ = 0;
  std::vector<Form*> forms_;
  std::vector<const MessageBox*> boxes_;
};

}  // namespace awizo
