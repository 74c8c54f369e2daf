#include "hosts/desktop/window/host_screen.h"

#include <QApplication>
#include <QMessageBox>

#include "hosts/desktop/faces/text.h"
#include "hosts/desktop/screen/message_box.h"
#include "platform/at_exit.h"

namespace awizo::desktop {

Answer HostScreen::ask(const MessageBox& box) {
  if (ending_) return box.buttons == BoxButtons::ok ? Answer::ok : Answer::no;
  ++asking_;
  const AtExit asked([this] { --asking_; });
  const auto aside = waiting_.aside();
  return DesktopScreen::ask(box);
}

void HostScreen::formOpened(Form& form) {
  if (!ending_) DesktopScreen::formOpened(form);
}

void HostScreen::runModal(Form& form) {
  if (ending_) return form.hide();
  ++asking_;
  const AtExit asked([this] { --asking_; });
  const auto aside = waiting_.aside();
  modal_.push_back(&form);
  DesktopScreen::runModal(form);
  modal_.pop_back();
}

void HostScreen::workBegins(std::string_view what) {
  waiting_.begin();
  if (!what.empty()) waiting_.show(fromText(what));
}

void HostScreen::workEnds() { waiting_.end(); }

void HostScreen::end() {
  ending_ = true;
  if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->reject();
  for (auto form = modal_.rbegin(); form != modal_.rend(); ++form) (*form)->hide();
}

}  // namespace awizo::desktop
