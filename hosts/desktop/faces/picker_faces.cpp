#include "hosts/desktop/faces/picker_faces.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>

#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/faces/key_codes.h"
#include "hosts/desktop/faces/text.h"
#include "platform/forms/face_words.h"

namespace awizo::desktop {
namespace {

QDate fromDate(Date date) {
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

Date toDate(const QDate& date) {
  return makeDate(date.year(), static_cast<unsigned>(date.month()),
                  static_cast<unsigned>(date.day()));
}

/// The locale's form of a date without the day of the week, its year with all four digits.
QString dateFormat(const QLocale& locale, DateForm form) {
  QString format =
      locale.dateFormat(form == DateForm::longDate ? QLocale::LongFormat : QLocale::ShortFormat);
  format.remove("dddd, ");
  if (!format.contains("yyyy")) format.replace("yy", "yyyy");
  return format;
}

}  // namespace

PickerFace::PickerFace(FormFace& form, Control& picker, QDateTimeEdit* edit, bool allowsNone,
                       const QString& caption)
    : Face(form, picker, edit->parentWidget()), edit_(edit) {
  auto* row = new QHBoxLayout(widget());
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  edit_->setFocusPolicy(Qt::TabFocus);
  edit_->setAccessibleName(caption);
  watch(edit_);
  watch(edit_->findChild<QLineEdit*>());
  if (allowsNone) {
    hasValue_ = new QCheckBox(widget());
    hasValue_->setFocusPolicy(Qt::TabFocus);
    hasValue_->setAccessibleName(caption);
    hasValue_->setToolTip(fromText(words::hasValue));
    watch(hasValue_);
    row->addWidget(hasValue_);
    connect(hasValue_, &QCheckBox::clicked, this, &PickerFace::takeChecked);
  }
  row->addWidget(edit_, 1);
}

QWidget* PickerFace::focusWidget() const {
  return hasValue_ == nullptr || hasValue_->isChecked() ? static_cast<QWidget*>(edit_) : hasValue_;
}

void PickerFace::finishTyping() {
  if (edit_->hasFocus()) edit_->interpretText();
}

void PickerFace::takeChecked(bool checked) {
  if (checked) {
    takeEdited();
  } else {
    takeNone();
  }
  form().followFocus();
}

void PickerFace::showHasValue(bool hasValue) {
  const auto following = form().following();
  if (hasValue_ != nullptr) hasValue_->setChecked(hasValue);
  edit_->setEnabled(hasValue);
}

bool PickerFace::pressKey(QKeyEvent& key) {
  if (keyCodeOf(key) == keys::blank && hasValue_ != nullptr) {
    takeChecked(!hasValue_->isChecked());
    return true;
  }
  return Face::pressKey(key);
}

/// A click marks the day, month or year that it hits, so that the next key replaces it.
bool PickerFace::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease && watched == edit_->findChild<QLineEdit*>()) {
    edit_->setSelectedSection(edit_->currentSection());
  }
  return Face::eventFilter(watched, event);
}

DateFace::DateFace(FormFace& form, DatePicker& picker, QWidget* parent)
    : DateFace(form, picker, new QDateEdit(new QWidget(parent))) {}

DateFace::DateFace(FormFace& form, DatePicker& picker, QDateEdit* edit)
    : PickerFace(form, picker, edit, picker.allowsNone(), fromText(picker.caption())),
      picker_(picker),
      edit_(edit) {
  edit_->setCalendarPopup(true);
  edit_->setDateRange(fromDate(DatePicker::min()), fromDate(DatePicker::max()));
  edit_->setDisplayFormat(dateFormat(edit_->locale(), picker_.shownForm()));
  connect(edit_, &QDateEdit::userDateChanged, this, [this] { takeEdited(); });
}

void DateFace::takeEdited() {
  const Date date = toDate(edit_->date());
  act([&] { picker_.userSet(date); });
}

void DateFace::takeNone() {
  act([&] { picker_.userSet(std::nullopt); });
}

void DateFace::showContent() {
  const QSignalBlocker quietly(edit_);
  const QDate date = fromDate(picker_.date().value_or(picker_.lastDate()));
  if (edit_->date() != date) edit_->setDate(date);
  showHasValue(picker_.date().has_value());
}

TimeFace::TimeFace(FormFace& form, TimePicker& picker, QWidget* parent)
    : TimeFace(form, picker, new QTimeEdit(new QWidget(parent))) {}

TimeFace::TimeFace(FormFace& form, TimePicker& picker, QTimeEdit* edit)
    : PickerFace(form, picker, edit, true, fromText(picker.caption())),
      picker_(picker),
      edit_(edit) {
  edit_->setDisplayFormat("HH:mm");
  connect(edit_, &QTimeEdit::userTimeChanged, this, [this] { takeEdited(); });
}

void TimeFace::takeEdited() {
  const QTime time = edit_->time();
  act([&] { picker_.userSet(TimeOfDay{time.hour(), time.minute(), time.second()}); });
}

void TimeFace::takeNone() {
  act([&] { picker_.userSet(std::nullopt); });
}

void TimeFace::showContent() {
  const QSignalBlocker quietly(edit_);
  if (picker_.time()) {
    const QTime time(picker_.time()->hour, picker_.time()->minute, picker_.time()->second);
    if (edit_->time() != time) edit_->setTime(time);
  }
  showHasValue(picker_.time().has_value());
}

}  // namespace awizo::desktop
