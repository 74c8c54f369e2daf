#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "hosts/desktop/screen/desktop_screen_face.h"
#include "hosts/desktop/window/waiting.h"

namespace awizo::desktop {

/// The screen of a window that may be closed at any time: once it is told to end, boxes answer
/// themselves with OK or No, questions with their harmless choice, and forms hide, so that all work
/// that waits for the user comes to its end.
class HostScreenFace : public DesktopScreenFace {
 public:
  explicit HostScreenFace(Waiting& waiting) : waiting_(waiting) {}

  Answer ask(const MessageBox& box) override;
  Choice choose(const Question& question) override;
  void formOpened(Form& form) override;
  void runModal(Form& form) override;
  void workBegins(std::string_view what) override;
  void workEnds() override;

  /// In place of the user, `act` acts on the next modal form, which isn't shown. Null: the user.
  void actOnNextForm(std::function<void()> act) { actInstead_ = std::move(act); }
  /// Told when a dialog has come up for the user, and when it has gone. May be empty.
  std::function<void(Form& form)> onModal;
  std::function<void(Form& form)> onModalEnd;

  void end();
  bool ending() const { return ending_; }
  /// Whether the user is asked something or works in a dialog.
  bool asksUser() const { return asking_ > 0; }

 private:
  Waiting& waiting_;
  std::vector<Form*> modal_;
  std::function<void()> actInstead_;
  int asking_ = 0;
  bool ending_ = false;
};

}  // namespace awizo::desktop
