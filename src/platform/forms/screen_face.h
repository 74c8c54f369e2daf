#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace awizo {

class Form;

enum class BoxIcon { none, critical, question, exclamation, information };

/// An icon's name in logs and scripts: that of its value.
constexpr std::string_view nameOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::critical:
      return "critical";
    case BoxIcon::question:
      return "question";
    case BoxIcon::exclamation:
      return "exclamation";
    case BoxIcon::information:
      return "information";
    case BoxIcon::none:
      break;
  }
  return "none";
}

enum class BoxButtons { ok, yesNo };
enum class Answer { ok, yes, no };

/// A message box. Its text may hold line breaks: carriage return and line feed, or the first alone.
struct MessageBox {
  std::string text;
  std::string title;
  BoxIcon icon = BoxIcon::none;
  BoxButtons buttons = BoxButtons::ok;
  std::int32_t error = 0;  ///< number of the run-time error that the box tells of; 0 for none
};

/// What the mouse pointer looks like.
enum class Cursor { normal, wait };

/// What a host does to show forms, boxes and the cursor. The calls that wait return when the user
/// is done, and may run other events meanwhile.
class ScreenFace {
 public:
  virtual ~ScreenFace() = default;
  virtual Answer ask(const MessageBox& box) = 0;
  /// A form, the main form included, is now on the screen; called before the form's first events
  /// and before runModal.
  virtual void formOpened(Form& form) { static_cast<void>(form); }
  /// Lets the user act on the form, over all others, and returns when it has hidden.
  virtual void runModal(Form& form) = 0;
  virtual void cursorChanged(Cursor cursor) = 0;
  /// Work begins during which the user can do nothing: `what` says what is done; empty where that
  /// needn't be shown. Such works nest, and each ends; boxes and forms may be shown within one.
  virtual void workBegins(std::string_view what) { static_cast<void>(what); }
  virtual void workEnds() {}
  /// Lets events that wait run, without waiting for new ones.
  virtual void letEventsRun() = 0;
  /// Ends the whole program.
  virtual void endProgram() = 0;
};

}  // namespace awizo
