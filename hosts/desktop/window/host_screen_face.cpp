#include "hosts/desktop/window/host_screen_face.h"

#include <QApplication>
#include <QMessageBox>

#include "hosts/desktop/faces/text.h"
#include "hosts/desktop/screen/message_box.h"
#include "platform/at_exit.h"

namespace awizo::desktop {

Answer HostScreenFace::ask(const MessageBox& box) {
  if (ending_) return box.buttons == BoxButtons::ok ? Answer::ok : Answer::no;
  ++asking_;
  const AtExit asked([this] { --asking_; });
  const auto aside = waiting_.aside();
  return DesktopScreenFace::ask(box);
}

Choice HostScreenFace::choose(const Question& question) {
  if (ending_) return question.harmless;
  ++asking_;
  const AtExit asked([this] { --asking_; });
  const auto aside = waiting_.aside();
  return DesktopScreenFace::choose(question);
}

void HostScreenFace::formOpened(Form& form) {
  if (!ending_ && !actInstead_) DesktopScreenFace::formOpened(form);
}

void HostScreenFace::runModal(Form& form) {
  if (const auto act = std::exchange(actInstead_, nullptr)) {
    act();
    return form.hide();
  }
  if (ending_) return form.hide();
  ++asking_;
  const AtExit asked([this] { --asking_; });
  const auto aside = waiting_.aside();
  modal_.push_back(&form);
  if (onModal) onModal(form);
  DesktopScreenFace::runModal(form);
  if (onModalEnd) onModalEnd(form);
  modal_.pop_back();
}

void HostScreenFace::workBegins(std::string_view what) {
  waiting_.begin();
  if (!what.empty()) waiting_.show(fromText(what));
}

void HostScreenFace::workEnds() { waiting_.end(); }

void HostScreenFace::end() {
  ending_ = true;
  if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->reject();
  for (auto form = modal_.rbegin(); form != modal_.rend(); ++form) (*form)->hide();
}

}  // namespace awizo::desktop
