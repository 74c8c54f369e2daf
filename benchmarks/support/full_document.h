#pragma once

#include <string>
#include <vector>

#include "benchmarks/support/full_size.h"
#include "tests/support/cells.h"
#include "tests/support/test_editor.h"

namespace awizo::benchmarks {

// A document in the tables. Its user links the tests' support.

inline std::vector<std::string> packageOfRow(int row) {
  std::vector<std::string> cells = test::packageCells();
  cells[GRD_OPAK_PARENT_SERIAL] = std::to_string(row / 2 + 1);
  cells[GRD_OPAK_SERIAL] = std::to_string(row + 1);
  cells[GRD_OPAK_TYPE] = "201";
  cells[GRD_OPAK_SERIAL_NUMBER] = "354107380000001051";
  cells[GRD_OPAK_LOCATION_ILN] = "9520002000026";
  for (const int column : {GRD_OPAK_WEIGHT, GRD_OPAK_HEIGHT, GRD_OPAK_LENGTH, GRD_OPAK_WIDTH}) {
    cells[static_cast<std::size_t>(column)] = "1,250";
  }
  return cells;
}

inline std::vector<std::string> lineOfRow(int row) {
  std::vector<std::string> cells = test::lineCells();
  const std::string number = std::to_string(row);
  cells[GRD_POZ_LP] = number;
  cells[GRD_POZ_EAN] = catalogueEAN(row);
  cells[GRD_POZ_NAME] = "Чай чёрный байховый листовой, пачка " + number;
  cells[GRD_POZ_QTY_ORDERED] = "10,000";
  cells[GRD_POZ_QTY_DESPATCHED] = "10,000";
  cells[GRD_POZ_PRICE] = "12,50";
  cells[GRD_POZ_CODE_BY_BUYER] = "B-" + number;
  cells[GRD_POZ_CODE_BY_SELLER] = "S-" + number;
  cells[GRD_POZ_UNIT] = "PCE";
  cells[GRD_POZ_ORDER_LINE] = number;
  cells[GRD_POZ_NET_AMOUNT] = "125,00";
  cells[GRD_POZ_TAX_RATE] = "18";
  cells[GRD_POZ_COUNTRY] = "RU";
  cells[GRD_POZ_CDN] = "12345678/010108/1234567";
  cells[GRD_POZ_PACK_REFS] = number + "@Коробка@1@5,000$" + number + "@Поддон@2@5,000";
  return cells;
}

/// Fills lines and packages of a form; the package of row i has serial i + 1 and lies in that of
/// row i / 2.
inline void fillDocument(Editor& editor, int lines, int packages) {
  std::vector<std::vector<std::string>> rows;
  for (int row = 1; row <= lines; ++row) rows.push_back(lineOfRow(row));
  test::TestEditor::fill(editor.form.grdPozycje, rows);
  editor.session.LineCount = static_cast<std::int16_t>(lines);
  rows.clear();
  for (int row = 1; row <= packages; ++row) rows.push_back(packageOfRow(row));
  test::TestEditor::fill(editor.form.grdOpakowania, rows);
  editor.session.IloscPozycjiOpak = static_cast<std::int16_t>(packages);
}

}  // namespace awizo::benchmarks
