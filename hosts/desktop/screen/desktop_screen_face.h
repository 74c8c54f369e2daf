#pragma once

#include <QPointer>
#include <map>
#include <vector>

#include "desk/question.h"
#include "hosts/desktop/layouts/form_dialog.h"
#include "platform/forms/screen_face.h"

namespace awizo::desktop {

/// The screen of the desktop: message boxes, modal dialogs, the cursor. Calls that wait run a
/// nested event loop, in which the user acts on what is on top.
class DesktopScreenFace : public ScreenFace {
 public:
  ~DesktopScreenFace() override;

  /// The window of the main form, which is its owner's to show; all others lie over it.
  void setMainWindow(const Form& form, QWidget& window);
  /// Makes away with the dialogs' windows. Called before the forms' lives end.
  void releaseDialogs();

  /// The window of a dialog form; it is made at the first call.
  FormDialog& dialog(Form& form);
  /// The topmost window that is shown: a dialog, else the main window, else null.
  QWidget* topWindow() const;

  Answer ask(const MessageBox& box) override;
  /// Asks what the control doesn't.
  virtual Choice choose(const Question& question);
  void formOpened(Form& form) override;
  void runModal(Form& form) override;
  void cursorChanged(Cursor cursor) override;
  /// The user's input waits on.
  void letEventsRun() override;
  void endProgram() override;

  bool programEnded() const { return programEnded_; }

 private:
  void activateTop();

  const Form* mainForm_ = nullptr;
  QPointer<QWidget> mainWindow_;
  std::map<Form*, QPointer<FormDialog>> dialogs_;
  std::vector<FormDialog*> opened_;  ///< last opened last; may hold some that have hidden
  bool showsWaitCursor_ = false;
  bool programEnded_ = false;
};

}  // namespace awizo::desktop
