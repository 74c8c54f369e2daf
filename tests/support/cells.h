#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "tables/columns/columns.h"

namespace awizo::test {

using CellTexts = std::initializer_list<std::pair<int, std::string>>;

inline std::vector<std::string> rowOf(int columns, CellTexts texts) {
  std::vector<std::string> cells(static_cast<std::size_t>(columns));
  for (const auto& [column, text] : texts) cells[static_cast<std::size_t>(column)] = text;
  return cells;
}

/// The cells of a row of grdPozycje or grdOpakowania: these texts by column, all others empty.
inline std::vector<std::string> lineCells(CellTexts texts = {}) {
  return rowOf(lineColumnCount, texts);
}
inline std::vector<std::string> packageCells(CellTexts texts = {}) {
  return rowOf(packageColumnCount, texts);
}

}  // namespace awizo::test
