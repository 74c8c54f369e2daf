#include "platform/forms/list_moves.h"

#include <vector>

#include "platform/forms/keys.h"

namespace awizo {

std::optional<int> ListMoves::rowOfKey(std::int16_t code) {
  typed_.forget();
  if (code == keys::home) return table_.firstRow();
  if (code == keys::end) return table_.lastRow();
  return std::nullopt;
}

std::optional<int> ListMoves::rowTyped(std::string_view character) {
  std::vector<std::string> rows;
  for (int row = table_.firstRow(); row <= table_.lastRow(); ++row) {
    rows.push_back(upper_(table_.cell(row, column_)));
  }
  const std::optional<int> found =
      typed_.add(upper_(character), rows, table_.row() - table_.firstRow());
  if (!found) return std::nullopt;
  return *found + table_.firstRow();
}

}  // namespace awizo
