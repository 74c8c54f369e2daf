#pragma once

#include <QDialog>
#include <QEventLoop>
#include <QKeyEvent>

#include "hosts/desktop/faces/form_face.h"

namespace awizo::desktop {

/// The window of a dialog form. Enter, Escape and the window frame's close are the model's: the
/// window comes and goes with the form and never by itself.
class FormDialog : public QDialog {
 public:
  FormDialog(Form& form, QWidget* parent);

  FormFace& faces() { return faces_; }
  Form& form() const { return faces_.form(); }

  /// Lets what was laid out scroll where the screen is too small for it.
  void makeScrollable();
  /// What was laid out, once it can scroll.
  QWidget& content() const { return *content_; }
  /// Takes the size that the content asks for, as far as the screen has it.
  void takeRoom();
  /// The same where it is smaller.
  void takeMoreRoom();

  /// Shows itself over all other windows, with the focus where the model's is.
  void open() override;
  /// Lets the user act until the form has hidden, or the program is asked to end.
  void runUntilHidden();

  void reject() override {}
  void accept() override {}

 protected:
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  void closeEvent(QCloseEvent* event) override;

 private:
  void showChange(const Change& change);
  QSize roomWanted();

  FormFace faces_;
  QWidget* content_ = nullptr;
  QEventLoop* loop_ = nullptr;
};

}  // namespace awizo::desktop
