#include "hosts/protocol/values/json.h"

#include <cstdint>
#include <limits>

namespace awizo::protocol {

namespace {

[[noreturn]] void wrongType(std::string_view what, std::string_view wanted) {
  throw BadLine("\"" + std::string(what) + "\" must be " + std::string(wanted) + ".");
}

bool limitNesting(int depth, Json::parse_event_t event, Json&) {
  const bool opens =
      event == Json::parse_event_t::object_start || event == Json::parse_event_t::array_start;
  if (opens && depth >= deepestNesting) throw BadLine("The line is nested too deeply.");
  return true;
}

}  // namespace

Json parseLine(std::string_view line) {
  Json json;
  try {
    json = Json::parse(line, limitNesting);
  } catch (const Json::exception&) {
    throw BadLine("The line is not valid JSON.");
  }
  if (!json.is_object()) throw BadLine("The line is not a JSON object.");
  return json;
}

std::string lineText(const Json& json) {
  // A text from outside, a file's name say, may hold bytes that are no UTF-8.
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

const Json& member(const Json& line, std::string_view name) {
  const auto found = line.find(name);
  if (found == line.end()) throw BadLine("\"" + std::string(name) + "\" is missing.");
  return *found;
}

std::string textMember(const Json& line, std::string_view name) {
  return textOf(member(line, name), name);
}

int integerMember(const Json& line, std::string_view name) {
  return integerOf(member(line, name), name);
}

bool booleanMember(const Json& line, std::string_view name, bool missing) {
  const auto found = line.find(name);
  if (found == line.end()) return missing;
  if (!found->is_boolean()) wrongType(name, "true or false");
  return found->get<bool>();
}

std::string textOf(const Json& value, std::string_view what) {
  if (!value.is_string()) wrongType(what, "a text");
  std::string text = value.get<std::string>();
  if (text.find('\0') != std::string::npos) wrongType(what, "a text without the character U+0000");
  return text;
}

int integerOf(const Json& value, std::string_view what) {
  if (!value.is_number_integer()) wrongType(what, "a whole number");
  const bool tooLarge =
      value.is_number_unsigned() &&
      value.get<std::uint64_t>() > static_cast<std::uint64_t>(std::numeric_limits<int>::max());
  if (tooLarge || (!value.is_number_unsigned() &&
                   value.get<std::int64_t>() < std::numeric_limits<int>::min())) {
    wrongType(what, "a whole number of a sensible size");
  }
  return value.get<int>();
}

}  // namespace awizo::protocol
