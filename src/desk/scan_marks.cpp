#include "desk/scan_marks.h"

#include <algorithm>
#include <array>

namespace awizo {
namespace {

/// Signs of the symbols whose text begins with the number's kind.
constexpr std::array<std::string_view, 4> signsBeforeKind{"C1", "e0", "d2", "Q3"};
constexpr std::size_t signLength = 2;
constexpr std::size_t kindLength = 2;

bool isFunction(char character) {
  return static_cast<unsigned char>(character) < ' ' || character == '\x7f';
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

}  // namespace

bool ScanMarks::lets(char character, bool isFirst) {
  if (!isFirst) {
    forget();
    return !isFunction(character);
  }
  if (isFunction(character)) {
    // Before all else it says what the sign of the symbol says.
    if (state_ == State::outside) enter(State::inKind);
    return false;
  }
  switch (state_) {
    case State::outside:
      if (character == ']') enter(State::inSign);
      if (character == '(') enter(State::inBracket);
      return state_ == State::outside;
    case State::inSign:
      held_ += character;
      if (held_.size() == signLength) {
        const bool isBeforeKind =
            std::ranges::find(signsBeforeKind, held_) != signsBeforeKind.end();
        enter(isBeforeKind ? State::inKind : State::outside);
      }
      return false;
    case State::inBracket:
      held_ += character;
      if (isDigit(character)) return false;
      held_.pop_back();
      enterNumber();
      return character != ')';
    case State::inKind:
      if (character == '(' && held_.empty()) {
        enter(State::inBracket);
        return false;
      }
      if (!isDigit(character)) {
        enter(State::outside);
        return true;
      }
      held_ += character;
      if (held_.size() == kindLength) enterNumber();
      return false;
    case State::beforeProduct:
      enter(State::outside);
      return character != '0';
  }
  return true;
}

void ScanMarks::enterNumber() {
  const bool isProduct = held_ == "01" || held_ == "02";
  enter(isProduct ? State::beforeProduct : State::outside);
}

void ScanMarks::enter(State state) {
  state_ = state;
  held_.clear();
}

std::string withoutScanMarks(std::string_view text) {
  ScanMarks marks;
  std::string left;
  for (const char character : text) {
    if (marks.lets(character, left.empty())) left += character;
  }
  return left;
}

}  // namespace awizo
