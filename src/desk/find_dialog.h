#pragma once

#include <optional>
#include <string>

#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_field.h"
#include "session/record/editor.h"

namespace awizo {

struct FoundRow {
  Table* table = nullptr;  ///< of lines or of packages
  int row = 0;
};

/// Nothing where there is no row.
inline std::optional<FoundRow> rowIn(Table& table, std::optional<int> row) {
  return row ? std::optional(FoundRow{&table, *row}) : std::nullopt;
}

/// Asks for a text and finds the next line that holds it; a scanned text also finds the line of its
/// EAN and the package of its number. Where nothing is found it says so and stays.
class FindDialog : public Form {
 public:
  FindDialog(Screen& screen, const Editor& editor);

  TextField txtWhat;
  Label lblNothing;  ///< that nothing was found; empty before
  Button btnFind, btnClose;

  /// Shows the dialog until something is found or the user closes it.
  std::optional<FoundRow> ask();
  /// The next row of the text asked for last.
  std::optional<FoundRow> again() const;

 private:
  void btnFind_Click();

  const Editor& editor_;
  std::optional<FoundRow> found_;
};

}  // namespace awizo
