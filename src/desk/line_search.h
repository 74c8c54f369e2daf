#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "session/record/editor.h"

namespace awizo {

/// The next row of grdPozycje, after the current one and on from the first, whose number, EAN, name
/// or one of the item codes holds the text, case ignored. Nothing for the empty text.
std::optional<int> findLine(const Editor& editor, std::string_view text);

/// The same for a scanned code: a line of this EAN, zeros before it apart. Before 14 digits "01" or
/// "02" says on the label what they are, after the "1" of "]C1"; after "02" the count, behind "37",
/// may follow.
std::optional<int> findScanned(const Editor& editor, std::string_view code);

/// All lines of this EAN, the current one first.
std::vector<int> linesScanned(const Editor& editor, std::string_view code);

/// The package number (SSCC) in a scanned code: 18 digits, after "00" where that says on the label
/// what they are, and after the "1" of "]C1", by which scanners name the symbol. Empty for others.
std::string_view packageNumberIn(std::string_view code);

/// The row of grdOpakowania that has this number.
std::optional<int> findPackage(const Editor& editor, std::string_view number);

/// Collects the digits that a scanner types into a table, which takes none itself. A scanner is
/// recognised by what it types, not by how fast: at least as many digits as the shortest EAN has,
/// and Enter.
class ScannedCode {
 public:
  void add(char digit) { digits_ += digit; }
  /// Any other key, or the focus gone elsewhere.
  void forget() { digits_.clear(); }
  const std::string& digits() const { return digits_; }
  /// Whether Enter would end a code now.
  bool isWhole() const;
  /// Enter: returns the code that it ends, empty where the digits are no code; they are forgotten.
  std::string end();

 private:
  std::string digits_;
};

}  // namespace awizo
