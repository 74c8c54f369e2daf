#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/at_exit.h"
#include "platform/forms/screen_face.h"

namespace awizo {

/// A host's screen on which an assistant can act in place of the user. Its modal forms are then
/// not shown; boxes are answered with OK or No, and what they say is kept. It stands between the
/// host's screen and the tape, so that what an assistant does is recorded as the user's acts are.
class AssistedFace : public ScreenFace {
 public:
  /// What an assistant does on a modal form.
  using Act = std::function<void(Form& form)>;

  explicit AssistedFace(ScreenFace& real) : real_(real) {}

  /// While the returned object lives, `act` is called for each modal form. A form that it doesn't
  /// hide is left by its closing button.
  [[nodiscard]] auto actInstead(Act act) {
    act_ = std::move(act);
    return AtExit([this] { act_ = nullptr; });
  }
  /// What was said to the assistant since this was asked last: the texts of boxes, and of acts that
  /// were refused.
  std::vector<std::string> takeSaid() { return std::exchange(said_, {}); }

  Answer ask(const MessageBox& box) override;
  void formOpened(Form& form) override;
  void runModal(Form& form) override;
  void cursorChanged(Cursor cursor) override { real_.cursorChanged(cursor); }
  void workBegins(std::string_view what) override;
  void workEnds() override;
  void letEventsRun() override;
  void endProgram() override { real_.endProgram(); }

 private:
  bool isActing() const { return act_ != nullptr; }

  ScreenFace& real_;
  Act act_;
  std::vector<std::string> said_;
};

}  // namespace awizo
