#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

namespace awizo::protocol {

/// Members keep the order in which they were written.
using Json = nlohmann::ordered_json;

/// A line that says nothing that can be done: no JSON, a wrong type, a name that doesn't exist.
class BadLine : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Deepest nesting of a line; anything deeper is an attack or a mistake.
inline constexpr int deepestNesting = 64;

/// The line as a JSON object. Throws BadLine.
Json parseLine(std::string_view line);

/// One line of JSON without its line end, always valid UTF-8.
std::string lineText(const Json& json);

// Members of a line's object; a missing member or one of another type throws BadLine.

const Json& member(const Json& line, std::string_view name);
std::string textMember(const Json& line, std::string_view name);
int integerMember(const Json& line, std::string_view name);
bool booleanMember(const Json& line, std::string_view name, bool missing);

/// A text that a user or host could enter: a JSON string without the character U+0000.
std::string textOf(const Json& value, std::string_view what);
/// A whole number within `int`.
int integerOf(const Json& value, std::string_view what);

}  // namespace awizo::protocol
