#include "hosts/protocol/values/argument_values.h"

#include <limits>

#include "foundation/date_text.h"
#include "hosts/common/value_texts.h"

namespace awizo::protocol {

namespace {

constexpr std::string_view argumentsName = "args";

}  // namespace

void fromJson(const Json& json, std::string& value) { value = textOf(json, argumentsName); }

void fromJson(const Json& json, bool& value) {
  if (!json.is_boolean()) throw BadLine("An argument must be true or false.");
  value = json.get<bool>();
}

void fromJson(const Json& json, std::int16_t& value) {
  const int read = integerOf(json, argumentsName);
  if (read < std::numeric_limits<std::int16_t>::min() ||
      read > std::numeric_limits<std::int16_t>::max()) {
    throw BadLine("An argument must be a number of 16 bits.");
  }
  value = static_cast<std::int16_t>(read);
}

void fromJson(const Json& json, std::int32_t& value) { value = integerOf(json, argumentsName); }

void fromJson(const Json& json, double& value) {
  if (!json.is_number()) throw BadLine("An argument must be a number.");
  value = json.get<double>();
}

void fromJson(const Json& json, Date& value) {
  const std::string text = textOf(json, argumentsName);
  const std::optional<Moment> moment = parseMoment(text);
  const std::optional<Date> read = moment ? std::optional(moment->date) : parseDate(text);
  if (!read) throw BadLine("An argument must be a date of the form yyyy-mm-dd.");
  value = *read;
}

void fromJson(const Json& json, TimeOfDay& value) {
  const std::string text = textOf(json, argumentsName);
  const std::optional<Moment> moment = parseMoment(text);
  const std::optional<TimeOfDay> read = moment ? std::optional(moment->time) : parseTime(text);
  if (!read) throw BadLine("An argument must be a time of the form hh:mm.");
  value = *read;
}

Json toJson(const Date& value) { return isoDate(value); }

Json toJson(const TimeOfDay& value) { return hourMinute(value); }

}  // namespace awizo::protocol
