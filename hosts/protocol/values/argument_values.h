#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "hosts/protocol/values/json.h"
#include "platform/date.h"

namespace awizo::protocol {

// Arguments and results of procedures, to and from JSON: texts, numbers, Booleans, dates and times
// (ISO texts), arrays of these. A value of another type, or out of range, throws BadLine.

template <class Value>
inline constexpr bool isOptional = false;
template <class Value>
inline constexpr bool isOptional<std::optional<Value>> = true;
template <class Value>
inline constexpr bool isVector = false;
template <class Value>
inline constexpr bool isVector<std::vector<Value>> = true;

void fromJson(const Json& json, std::string& value);
void fromJson(const Json& json, bool& value);
void fromJson(const Json& json, std::int16_t& value);
void fromJson(const Json& json, std::int32_t& value);
void fromJson(const Json& json, double& value);
void fromJson(const Json& json, Date& value);
void fromJson(const Json& json, TimeOfDay& value);
/// Any value, as it is.
inline void fromJson(const Json& json, Json& value) { value = json; }

template <class Value>
void fromJson(const Json& json, std::vector<Value>& value) {
  if (!json.is_array()) throw BadLine("An argument must be an array.");
  for (const Json& item : json) {
    Value read{};
    fromJson(item, read);
    value.push_back(std::move(read));
  }
}

template <class Value>
void fromJson(const Json& json, std::optional<Value>& value) {
  if (json.is_null()) return;
  fromJson(json, value.emplace());
}

/// The argument at that place; nothing for an optional one that was left out.
template <class Value>
Value argumentAt(const Json& arguments, std::size_t index) {
  Value value{};
  if (isOptional<Value> && index >= arguments.size()) return value;
  fromJson(arguments.at(index), value);
  return value;
}

Json toJson(const Date& value);
Json toJson(const TimeOfDay& value);

template <class Value>
Json toJson(const Value& value) {
  if constexpr (isVector<Value>) {
    Json array = Json::array();
    for (const auto& item : value) array.push_back(toJson(item));
    return array;
  } else if constexpr (isOptional<Value>) {
    return value ? toJson(*value) : Json(nullptr);
  } else {
    return Json(value);
  }
}

}  // namespace awizo::protocol
