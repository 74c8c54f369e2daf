#pragma once

#include <QCheckBox>
#include <QDateEdit>
#include <QTimeEdit>

#include "hosts/desktop/faces/face.h"
#include "platform/forms/pickers.h"

namespace awizo::desktop {

/// What date and time pickers share: a field with sections, and where the picker may be empty a box
/// that is checked while it isn't. The space bar checks and clears it too.
class PickerFace : public Face {
 public:
  /// `edit` stands in a widget made for both, so that it is made in the form's locale at once.
  PickerFace(FormFace& form, Control& picker, QDateTimeEdit* edit, bool allowsNone,
             const QString& caption);
  QWidget* focusWidget() const override;
  void finishTyping() override;

 protected:
  virtual void takeEdited() = 0;
  virtual void takeNone() = 0;
  void showHasValue(bool hasValue);
  bool pressKey(QKeyEvent& key) override;
  bool takesWheel() const override { return false; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void takeChecked(bool checked);

  QDateTimeEdit* edit_;
  QCheckBox* hasValue_ = nullptr;
};

class DateFace : public PickerFace {
 public:
  DateFace(FormFace& form, DatePicker& picker, QWidget* parent);

 protected:
  void takeEdited() override;
  void takeNone() override;
  void showContent() override;

 private:
  DateFace(FormFace& form, DatePicker& picker, QDateEdit* edit);

  DatePicker& picker_;
  QDateEdit* edit_;
};

class TimeFace : public PickerFace {
 public:
  TimeFace(FormFace& form, TimePicker& picker, QWidget* parent);

 protected:
  void takeEdited() override;
  void takeNone() override;
  void showContent() override;

 private:
  TimeFace(FormFace& form, TimePicker& picker, QTimeEdit* edit);

  TimePicker& picker_;
  QTimeEdit* edit_;
};

}  // namespace awizo::desktop
