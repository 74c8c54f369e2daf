#include "adapters/libxml2/path_shapes.h"

#include <array>
#include <cstddef>

#include "adapters/libxml2/text.h"
#include "platform/xpath_number.h"

namespace awizo::libxml2 {
namespace {

enum class Sign : unsigned char { other, startsName, continuesName, slash };

constexpr std::array<Sign, 256> signs = [] {
  std::array<Sign, 256> kinds{};
  for (unsigned letter = 'a'; letter <= 'z'; ++letter) kinds[letter] = Sign::startsName;
  for (unsigned letter = 'A'; letter <= 'Z'; ++letter) kinds[letter] = Sign::startsName;
  for (unsigned digit = '0'; digit <= '9'; ++digit) kinds[digit] = Sign::continuesName;
  kinds['_'] = Sign::startsName;
  kinds['-'] = kinds['.'] = Sign::continuesName;
  kinds['/'] = Sign::slash;
  return kinds;
}();

Sign signOf(char letter) { return signs[static_cast<unsigned char>(letter)]; }

bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

/// Letters beyond ASCII are all taken for letters of names: no other sign of XPath lies there.
bool startsName(char letter) {
  return signOf(letter) == Sign::startsName || static_cast<unsigned char>(letter) >= 0x80;
}
bool continuesName(char letter) {
  return startsName(letter) || signOf(letter) == Sign::continuesName;
}

template <class Accepts>
std::size_t skip(std::string_view text, std::size_t from, const Accepts& accepts) {
  while (from < text.size() && accepts(text[from])) ++from;
  return from;
}

/// The value of a number as an expression writes it, with any count of minus signs before it.
std::optional<double> writtenNumber(std::string_view text) {
  bool negative = false;
  text = trimmed(text);
  for (; text.starts_with('-'); text = trimmed(text.substr(1))) negative = !negative;
  const std::optional<double> number = xpathNumber(text);
  return number && negative ? -*number : number;
}

std::size_t behindLiteral(std::string_view expression, std::size_t quote) {
  const std::size_t end = expression.find(expression[quote], quote + 1);
  return end == expression.npos ? expression.size() : end + 1;
}

std::size_t behindNumber(std::string_view expression, std::size_t start) {
  const std::size_t end = skip(expression, start, isDigit);
  if (end == expression.size() || expression[end] != '.') return end;
  return skip(expression, end + 1, isDigit);
}

/// The names of plain child steps and nothing else; empty when there is anything else.
std::string_view plainNames(std::string_view names) {
  bool atStart = true;
  for (const char letter : names) {
    const Sign sign = signOf(letter);
    if (sign == Sign::other || (atStart && sign != Sign::startsName)) return {};
    atStart = sign == Sign::slash;
  }
  return atStart ? std::string_view() : names;
}

/// Takes a slash off the start, if one is there.
bool takeSlash(std::string_view& path) {
  if (!path.starts_with('/')) return false;
  path.remove_prefix(1);
  return true;
}

/// From the bracket on: "[Line-Item/EAN = -5.0]/Price".
bool readComparison(std::string_view text, WalkedPath& path) {
  const std::size_t equals = text.find('=');
  const std::size_t close = text.find(']', equals);
  if (close == text.npos) return false;
  path.compared = plainNames(trimmed(text.substr(1, equals - 1)));
  const std::optional<double> number = writtenNumber(text.substr(equals + 1, close - equals - 1));
  if (path.compared.empty() || !number) return false;
  path.number = *number;
  path.rest = text.substr(close + 1);
  if (path.rest.empty()) return true;
  if (!takeSlash(path.rest)) return false;
  path.rest = plainNames(path.rest);
  return !path.rest.empty();
}

}  // namespace

std::optional<WalkedPath> walkedPath(std::string_view path) {
  WalkedPath walked;
  walked.fromDocument = takeSlash(path);
  const std::size_t bracket = path.find('[');
  walked.names = plainNames(path.substr(0, bracket));
  if (walked.names.empty()) return std::nullopt;
  if (bracket != path.npos && !readComparison(path.substr(bracket), walked)) return std::nullopt;
  return walked;
}

bool hasExponent(std::string_view expression) {
  std::size_t at = 0;
  while (at < expression.size()) {
    const char letter = expression[at];
    if (letter == '\'' || letter == '"') {
      at = behindLiteral(expression, at);
    } else if (startsName(letter)) {
      at = skip(expression, at, continuesName);
    } else if (isDigit(letter)) {
      at = behindNumber(expression, at);
      if (at < expression.size() && (expression[at] == 'e' || expression[at] == 'E')) return true;
    } else {
      ++at;
    }
  }
  return false;
}

}  // namespace awizo::libxml2
