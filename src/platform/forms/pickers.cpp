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
  if (!takeUserFocus() || time_ == time) return;
  setTime(time);
  raise(onChange);
}

}  // namespace awizo
