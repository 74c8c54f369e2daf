#include "hosts/desktop/window/host_screen.h"

#include <QApplication>
#include <QMessageBox>

#include "hosts/desktop/screen/message_box.h"

namespace awizo::desktop {
namespace {

/// Counts up for its own lifetime.
class Counting {
 public:
  explicit Counting(int& count) : count_(count) { ++count_; }
  ~Counting() { --count_; }
  Counting(const Counting&) = delete;
  Counting& operator=(const Counting&) = delete;

 private:
  int& count_;
};

}  // namespace

Answer HostScreen::ask(const MessageBox& box) {
  if (ending_) return box.buttons == BoxButtons::ok ? Answer::ok : Answer::no;
  const Counting asking(asking_);
  const Waiting::Aside aside(waiting_);
  return DesktopScreen::ask(box);
}

void HostScreen::formOpened(Form& form) {
  if (!ending_) DesktopScreen::formOpened(form);
}

void HostScreen::runModal(Form& form) {
  if (ending_) return form.hide();
  const Counting asking(asking_);
  const Waiting::Aside aside(waiting_);
  modal_.push_back(&form);
  DesktopScreen::runModal(form);
  modal_.pop_back();
}

void HostScreen::end() {
  ending_ = true;
  if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->reject();
  for (auto form = modal_.rbegin(); form != modal_.rend(); ++form) (*form)->hide();
}

}  // namespace awizo::desktop
