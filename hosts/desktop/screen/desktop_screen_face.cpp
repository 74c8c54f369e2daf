#include "hosts/desktop/screen/desktop_screen_face.h"

#include <QApplication>
#include <algorithm>

#include "hosts/desktop/layouts/make_dialog.h"
#include "hosts/desktop/screen/message_box.h"

namespace awizo::desktop {

DesktopScreenFace::~DesktopScreenFace() {
  releaseDialogs();
  cursorChanged(Cursor::normal);
}

void DesktopScreenFace::setMainWindow(const Form& form, QWidget& window) {
  mainForm_ = &form;
  mainWindow_ = &window;
}

void DesktopScreenFace::releaseDialogs() {
  opened_.clear();
  for (const auto& [form, dialog] : dialogs_) delete dialog;
  dialogs_.clear();
}

FormDialog& DesktopScreenFace::dialog(Form& form) {
  QPointer<FormDialog>& dialog = dialogs_[&form];
  if (!dialog) dialog = makeDialog(form, mainWindow_);
  return *dialog;
}

QWidget* DesktopScreenFace::topWindow() const {
  const auto top = std::find_if(opened_.rbegin(), opened_.rend(),
                                [](const FormDialog* dialog) { return dialog->isVisible(); });
  return top == opened_.rend() ? mainWindow_.data() : *top;
}

/// Not every platform activates the window below by itself.
void DesktopScreenFace::activateTop() {
  if (QWidget* top = topWindow()) top->activateWindow();
}

Answer DesktopScreenFace::ask(const MessageBox& box) {
  const Answer answer = askUser(box, topWindow());
  activateTop();
  return answer;
}

Choice DesktopScreenFace::choose(const Question& question) {
  QuestionBox box(question, topWindow());
  box.exec();
  activateTop();
  return box.choice();
}

void DesktopScreenFace::formOpened(Form& form) {
  if (&form == mainForm_) return;
  FormDialog& window = dialog(form);
  std::erase(opened_, &window);
  // A dialog is over what was on top when it opened, which isn't the same window each time.
  QWidget* below = topWindow();
  if (window.parentWidget() != below) window.setParent(below, window.windowFlags());
  opened_.push_back(&window);
  window.open();
}

void DesktopScreenFace::runModal(Form& form) {
  dialog(form).runUntilHidden();
  activateTop();
}

void DesktopScreenFace::cursorChanged(Cursor cursor) {
  const bool wait = cursor == Cursor::wait;
  if (wait == showsWaitCursor_) return;
  showsWaitCursor_ = wait;
  if (wait) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void DesktopScreenFace::letEventsRun() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DesktopScreenFace::endProgram() {
  programEnded_ = true;
  QCoreApplication::exit(1);
}

}  // namespace awizo::desktop
