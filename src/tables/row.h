#pragma once

#include <string>
#include <string_view>

#include "session/record/editor.h"
#include "tables/flat_index.h"

namespace awizo {

/// One row of a table, its cells by their column. Every access goes through the flat index: error 6
/// where that has no room, error 381 for a row that isn't there.
class Row {
 public:
  Row(Table& table, int number) : table_(&table), number_(number) {}

  int number() const { return number_; }
  const std::string& cell(int column) const { return table_->cell(index(column)); }
  void set(int column, std::string_view text) const { table_->setCell(index(column), text); }

 private:
  std::int16_t index(int column) const { return flatIndex(*table_, number_, column); }

  Table* table_;
  int number_;
};

// Rows of the three tables of the document.
inline Row lineRow(const Editor& editor, int row) { return {editor.form.grdPozycje, row}; }
inline Row packageRow(const Editor& editor, int row) { return {editor.form.grdOpakowania, row}; }
inline Row totalsRow(const Editor& editor) { return {editor.form.grdSuma, 1}; }

}  // namespace awizo
