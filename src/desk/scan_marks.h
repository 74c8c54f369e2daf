#pragma once

#include <string>
#include <string_view>

namespace awizo {

/// Cuts off what a scanner types before a number: the sign of the symbol ("]C1"), the number's kind
/// in brackets ("(00)") or after such a sign ("00"), and function characters anywhere; of an EAN
/// after its kind also the zero that brings it to 14 digits. It is for
/// fields that take numbers alone, in which nobody types a bracket.
class ScanMarks {
 public:
  /// What the field gets of a character typed into it: nothing while it may be a mark's, else
  /// itself, after all that was held back where no mark came of it. `isFirst`: nothing of the
  /// field's text would be before it.
  std::string given(char character, bool isFirst);
  /// What is held back, which is held no longer: no mark will come of it.
  std::string giveBack();

 private:
  enum class State {
    outside,
    inSign,         ///< within "]C1"
    inBracket,      ///< within "(00)"
    inKind,         ///< before or within "00" after such a sign
    beforeProduct,  ///< an EAN follows, brought to 14 digits by a zero
  };

  std::string outside(char character);
  std::string inSign(char character);
  std::string inBracket(char character);
  std::string inKind(char character);
  std::string holding(State state, char character);
  std::string cutOff(State next);
  /// The number's kind is known.
  std::string cutKind(std::string_view kind);
  std::string noMark(char character);

  State state_ = State::outside;
  std::string held_;  ///< what may be a mark
};

/// The same for a text that comes at once.
std::string withoutScanMarks(std::string_view text);

}  // namespace awizo
