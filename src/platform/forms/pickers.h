#pragma once

#include <optional>
#include <string_view>

#include "platform/date.h"
#include "platform/forms/control.h"

namespace awizo {

enum class NoValue { allowed, refused };
enum class DateForm { shortDate, longDate };

/// A date picker. Change is raised for what the user does, not for an assignment by code.
class DatePicker : public Control {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.date_, self.lastDate_));
  }

 public:
  /// A picker that nothing has set shows `today`.
  DatePicker(Form& form, std::string name, Date today, NoValue noValue,
             std::string_view caption = "", DateForm shownForm = DateForm::shortDate)
      : Control(form, std::move(name), ControlKind::datePicker),
        caption_(caption),
        noValue_(noValue),
        shownForm_(shownForm),
        date_(today),
        lastDate_(today) {}

  const std::string& caption() const { return caption_; }
  bool allowsNone() const { return noValue_ == NoValue::allowed; }
  DateForm shownForm() const { return shownForm_; }
  static Date min() { return makeDate(1601, 1, 1); }
  static Date max() { return makeDate(9999, 12, 31); }

  const std::optional<Date>& date() const { return date_; }
  /// The date at which the calendar opens: the last that was set.
  Date lastDate() const { return lastDate_; }
  /// By code. A date out of range is error 35773, none where none is allowed error 35787.
  void setDate(std::optional<Date> date);

  Event onChange;

  /// The user puts the focus here and sets a date. Refused what code would be refused.
  void userSet(std::optional<Date> date);

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  std::string caption_;
  NoValue noValue_;
  DateForm shownForm_;
  std::optional<Date> date_;
  Date lastDate_;
};

/// A time picker that may hold no time.
class TimePicker : public Control {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self), std::tie(self.time_));
  }

 public:
  TimePicker(Form& form, std::string name, TimeOfDay now, std::string_view caption = "")
      : Control(form, std::move(name), ControlKind::timePicker), caption_(caption), time_(now) {}

  const std::string& caption() const { return caption_; }
  const std::optional<TimeOfDay>& time() const { return time_; }
  /// Nothing for no time. Error 380 for what is no time of day.
  void setTime(std::optional<TimeOfDay> time);

  Event onChange;

  /// The user puts the focus here and sets a time, as by code.
  void userSet(std::optional<TimeOfDay> time);

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  std::string caption_;
  std::optional<TimeOfDay> time_;
};

}  // namespace awizo
