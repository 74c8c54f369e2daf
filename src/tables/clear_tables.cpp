#include "tables/clear_tables.h"

#include "tables/row.h"

namespace awizo {
namespace {

void emptyFirstRow(Table& table) {
  const Row first(table, 1);
  for (int column = 0; column < table.columns(); ++column) first.set(column, "");
}

}  // namespace

void ClearGrdPozycje(Editor& editor) {
  Table& table = editor.form.grdPozycje;
  table.setRows(2);
  table.setRow(1);
  emptyFirstRow(table);
  for (int column = 1; column < table.columns(); ++column) table.setBackground(1, column, white);
  editor.session.LineCount = 0;
  editor.form.ValidLineCount = 0;
}

void ClearGrdOpakowania(Editor& editor) {
  Table& table = editor.form.grdOpakowania;
  table.setRows(2);
  table.setRow(1);
  emptyFirstRow(table);
  editor.session.IloscPozycjiOpak = 0;
}

void ClearGrdSuma(Editor& editor) {
  Table& table = editor.form.grdSuma;
  table.setRows(2);
  emptyFirstRow(table);
}

}  // namespace awizo
