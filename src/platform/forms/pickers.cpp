#include "platform/forms/pickers.h"

#include "platform/run_time_error.h"

namespace awizo {
namespace {

bool pickerHolds(Date date) {
  return date.ok() && date >= DatePicker::min() && date <= DatePicker::max();
}

bool isTimeOfDay(const TimeOfDay& time) {
  return time.hour >= 0 && time.hour < 24 && time.minute >= 0 && time.minute < 60 &&
         time.second >= 0 && time.second < 60;
}

std::array<int, 4> numbersOf(const std::optional<Date>& date) {
  if (!date) return {};
  return {int(date->year()), int(unsigned(date->month())), int(unsigned(date->day()))};
}

std::array<int, 4> numbersOf(const std::optional<TimeOfDay>& time) {
  if (!time) return {-1};
  return {time->hour, time->minute, time->second};
}

}  // namespace

void DatePicker::setDate(std::optional<Date> date) {
  if (!date && !allowsNone()) throw errors::pickerNeedsDate();
  if (date && !pickerHolds(*date)) throw errors::dateOutsidePicker();
  if (date) lastDate_ = *date;
  if (date_ == date) return;
  date_ = date;
  changed(Aspect::content);
}

void DatePicker::userSet(std::optional<Date> date) {
  requireUser();
  if (!date && !allowsNone()) throw Refused(name() + " always holds a date");
  if (date && !pickerHolds(*date)) throw Refused(name() + " doesn't offer this date");
  const Acting setting = acting(ActKind::setDate, {}, numbersOf(date));
  if (!takeUserFocus() || date_ == date) return;
  setDate(date);
  raise(onChange);
}

void TimePicker::setTime(std::optional<TimeOfDay> time) {
  if (time && !isTimeOfDay(*time)) throw errors::invalidPropertyValue();
  if (time_ == time) return;
  time_ = time;
  changed(Aspect::content);
}

void TimePicker::userSet(std::optional<TimeOfDay> time) {
  requireUser();
  if (time && !isTimeOfDay(*time)) throw Refused(name() + " doesn't offer this time");
  const Acting setting = acting(ActKind::setTime, {}, numbersOf(time));
  if (!takeUserFocus() || time_ == time) return;
  setTime(time);
  raise(onChange);
}

KeptPart DatePicker::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void DatePicker::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

KeptPart TimePicker::keep(const KeptPart& earlier) const { return keptOf(earlier, members(*this)); }

void TimePicker::putBack(const Kept& kept) { putBackInto(members(*this), kept); }

}  // namespace awizo
