#pragma once

#include <functional>
#include <string>
#include <vector>

#include "session/record/editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {

/// This many lines with plain values; none of them is in a package.
inline void putLines(Editor& editor, int count) {
  Table& lines = editor.form.grdPozycje;
  lines.setRows(count == 0 ? 2 : count + 1);
  editor.session.LineCount = static_cast<std::int16_t>(count);
  for (int row = 1; row <= count; ++row) {
    lines.setCell(row, GRD_POZ_LP, std::to_string(row));
    lines.setCell(row, GRD_POZ_EAN, "4607000000116");
    lines.setCell(row, GRD_POZ_QTY_ORDERED, "5,000");
    lines.setCell(row, GRD_POZ_QTY_DESPATCHED, "1,000");
    lines.setCell(row, GRD_POZ_NET_AMOUNT, "2,00");
    lines.setCell(row, GRD_POZ_PRODUCTION_DATE, "2026-11-21");
    lines.setCell(row, GRD_POZ_PACKED_QTY, "0,000");
  }
  lines.setRow(1);
}

/// This many packages; row i has serial i + 1. `parentRow` returns the row of a row's parent, 0 for
/// a top package.
inline void putPackages(Editor& editor, int count, const std::function<int(int row)>& parentRow) {
  Table& packages = editor.form.grdOpakowania;
  packages.setRows(count == 0 ? 2 : count + 1);
  editor.session.IloscPozycjiOpak = static_cast<std::int16_t>(count);
  editor.form.LastPackageSerial = static_cast<std::int16_t>(count + 1);
  for (int row = 1; row <= count; ++row) {
    const int parent = parentRow(row);
    packages.setCell(row, GRD_OPAK_LP, std::to_string(row));
    packages.setCell(row, GRD_OPAK_ID_LOW, std::to_string(row));
    packages.setCell(row, GRD_OPAK_DESC, "П" + std::to_string(row));
    packages.setCell(row, GRD_OPAK_LEVEL, "1");
    packages.setCell(row, GRD_OPAK_PARENT_SERIAL, std::to_string(parent + 1));
    packages.setCell(row, GRD_OPAK_SERIAL, std::to_string(row + 1));
  }
  packages.setRow(1);
}

/// Texts of one column, from row 1 to the last.
inline std::vector<std::string> column(const Table& table, int column) {
  std::vector<std::string> texts;
  for (int row = 1; row < table.rows(); ++row) texts.push_back(table.cell(row, column));
  return texts;
}

}  // namespace awizo::test
