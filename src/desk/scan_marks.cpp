#include "desk/scan_marks.h"

#include <algorithm>
#include <array>
#include <utility>

namespace awizo {
namespace {

/// Signs of the symbols whose text begins with the number's kind.
constexpr std::array<std::string_view, 4> signsBeforeKind{"C1", "e0", "d2", "Q3"};
constexpr std::size_t signLength = 2;
constexpr std::size_t kindLength = 2;
constexpr std::size_t longestKind = 4;

bool isFunction(char character) {
  return static_cast<unsigned char>(character) < ' ' || character == '\x7f';
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool isLetter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

}  // namespace

std::string ScanMarks::given(char character, bool isFirst) {
  if (!isFirst) {
    giveBack();
    return isFunction(character) ? "" : std::string(1, character);
  }
  if (isFunction(character)) {
    // Before all else it says what the sign of the symbol says.
    return state_ == State::outside ? cutOff(State::inKind) : "";
  }
  switch (state_) {
    case State::outside:
      return outside(character);
    case State::inSign:
      return inSign(character);
    case State::inBracket:
      return inBracket(character);
    case State::inKind:
      return inKind(character);
    case State::beforeProduct:
      return character == '0' ? cutOff(State::outside) : noMark(character);
  }
  return noMark(character);
}

std::string ScanMarks::giveBack() {
  state_ = State::outside;
  return std::exchange(held_, {});
}

std::string ScanMarks::outside(char character) {
  if (character == ']') return holding(State::inSign, character);
  if (character == '(') return holding(State::inBracket, character);
  return noMark(character);
}

std::string ScanMarks::inSign(char character) {
  if (held_.size() < signLength) {
    return isLetter(character) ? holding(State::inSign, character) : noMark(character);
  }
  if (!isLetter(character) && !isDigit(character)) return noMark(character);
  const std::string sign = held_.substr(1) + character;
  const bool isBeforeKind = std::ranges::find(signsBeforeKind, sign) != signsBeforeKind.end();
  return cutOff(isBeforeKind ? State::inKind : State::outside);
}

std::string ScanMarks::inBracket(char character) {
  const std::string kind = held_.substr(1);
  if (isDigit(character) && kind.size() < longestKind) return holding(state_, character);
  return character == ')' && kind.size() >= kindLength ? cutKind(kind) : noMark(character);
}

std::string ScanMarks::inKind(char character) {
  if (character == '(' && held_.empty()) return holding(State::inBracket, character);
  if (!isDigit(character)) return noMark(character);
  if (held_.size() + 1 < kindLength) return holding(state_, character);
  return cutKind(held_ + character);
}

std::string ScanMarks::holding(State state, char character) {
  state_ = state;
  held_ += character;
  return {};
}

std::string ScanMarks::cutOff(State next) {
  state_ = next;
  held_.clear();
  return {};
}

std::string ScanMarks::cutKind(std::string_view kind) {
  const bool isProduct = kind == "01" || kind == "02";
  return cutOff(isProduct ? State::beforeProduct : State::outside);
}

std::string ScanMarks::noMark(char character) { return giveBack() + character; }

std::string withoutScanMarks(std::string_view text) {
  ScanMarks marks;
  std::string left;
  for (const char character : text) left += marks.given(character, left.empty());
  return left + marks.giveBack();
}

}  // namespace awizo
