#include "hosts/desktop/screen/desktop_screen.h"

#include <QApplication>
#include <algorithm>

#include "hosts/desktop/layouts/make_dialog.h"
#include "hosts/desktop/screen/message_box.h"

namespace awizo::desktop {

DesktopScreen::~DesktopScreen() {
  releaseDialogs();
  cursorChanged(Cursor::normal);
}

void DesktopScreen::setMainWindow(const Form& form, QWidget& window) {
  mainForm_ = &form;
  mainWindow_ = &window;
}

void DesktopScreen::releaseDialogs() {
  opened_.clear();
  for (const auto& [form, dialog] : dialogs_) delete dialog;
  dialogs_.clear();
}

FormDialog& DesktopScreen::dialog(Form& form) {
  QPointer<FormDialog>& dialog = dialogs_[&form];
  if (!dialog) dialog = makeDialog(form, mainWindow_);
  return *dialog;
}

QWidget* DesktopScreen::topWindow() const {
  const auto top = std::find_if(opened_.rbegin(), opened_.rend(),
                                [](const FormDialog* dialog) { return dialog->isVisible(); });
  return top == opened_.rend() ? mainWindow_.data() : *top;
}

// Not every platform activates the window below by itself.
void DesktopScreen::activateTop() {
  if (QWidget* top = topWindow()) top->activateWindow();
}

Answer DesktopScreen::ask(const MessageBox& box) {
  const Answer answer = askUser(box, topWindow());
  activateTop();
  return answer;
}

void DesktopScreen::formOpened(Form& form) {
  if (&form == mainForm_) return;
  FormDialog& window = dialog(form);
  std::erase(opened_, &window);
  // A dialog stands over what was on top when it opened, which isn't the same window each time.
  QWidget* below = topWindow();
  if (window.parentWidget() != below) window.setParent(below, window.windowFlags());
  opened_.push_back(&window);
  window.open();
}

void DesktopScreen::runModal(Form& form) {
  dialog(form).runUntilHidden();
  activateTop();
}

void DesktopScreen::cursorChanged(Cursor cursor) {
  const bool wait = cursor == Cursor::wait;
  if (wait == showsWaitCursor_) return;
  showsWaitCursor_ = wait;
  if (wait) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void DesktopScreen::letEventsRun() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DesktopScreen::endProgram() {
  programEnded_ = true;
  QCoreApplication::exit(1);
}

}  // namespace awizo::desktop
