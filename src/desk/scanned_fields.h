#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/scan_marks.h"
#include "session/awizo_wysylki.h"

namespace awizo {

/// A field for a number that is often scanned: the package's number, the product's EAN.
struct ScannedField {
  Control* control = nullptr;  ///< a text field, or a list that can be typed in
  std::size_t limit = 0;       ///< most characters that it takes, 0 for no limit
  /// The number in a scanned text; a text that holds none as it is.
  std::string (*number)(const std::string& text) = nullptr;
  /// The user's typing of the field's whole text.
  std::function<void(const std::string& text)> type;
};

std::vector<ScannedField> scannedFields(AwizoWysylki& control);
/// Tables in which a scanned code leads to its row.
std::vector<Table*> scannedTables(AwizoForm& form);
/// Buttons that keep the focus after a click: a code scanned there leads to its row too. Its digits
/// are nothing to a button, but the Enter behind them would press it.
std::vector<Button*> scannedButtons(AwizoForm& form);

/// Types into the scanned fields for a client with fields of its own, which hands over what is
/// typed where nothing else would be in the field: what a scanner types before a number never
/// reaches it.
class ScannedTyping {
 public:
  explicit ScannedTyping(std::vector<ScannedField> fields) : fields_(std::move(fields)) {}

  const std::vector<ScannedField>& fields() const { return fields_; }
  /// Null for a control into which nothing is scanned.
  const ScannedField* find(const Control* control) const;

  // Each returns what the field holds now; nothing where it holds what it held.

  /// A character, in place of all that the field holds where it `begins`, else after what was typed
  /// so since.
  std::optional<std::string> typed(const ScannedField& field, std::string_view character,
                                   bool begins);
  /// A text that came at once, in place of all that the field holds.
  std::optional<std::string> pasted(const ScannedField& field, const std::string& text);
  /// What was held back is no mark: nothing more of one will come.
  std::optional<std::string> giveBack();

  /// The field's whole text, after it was changed in another way.
  static std::string edited(const ScannedField& field, const std::string& text);

 private:
  std::optional<std::string> put(const ScannedField& field, const std::string& text);

  std::vector<ScannedField> fields_;
  const ScannedField* current_ = nullptr;  ///< what is held back was typed into it
  ScanMarks marks_;
  std::string text_;  ///< typed since it began
};

}  // namespace awizo
