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
  /// A character typed into the field; `isFirst`: nothing of the field's text would be before it.
  /// Returns whether the field gets it.
  bool lets(char character, bool isFirst);
  /// The field has been left.
  void forget() { enter(State::outside); }

 private:
  enum class State {
    outside,
    inSign,         ///< after "]"
    inBracket,      ///< after "("
    inKind,         ///< before or within the number's kind
    beforeProduct,  ///< an EAN follows, brought to 14 digits by a zero
  };

  void enter(State state);
  /// The number's kind is known.
  void enterNumber();

  State state_ = State::outside;
  std::string held_;  ///< what was cut off since the state began
};

/// The same for a text that comes at once.
std::string withoutScanMarks(std::string_view text);

}  // namespace awizo
