#include "tables/set_up_tables.h"

#include <span>

#include "platform/forms/report_errors.h"
#include "tables/columns/columns.h"

namespace awizo {
namespace {

void writeHeadings(Table& table, std::span<const Column> columns) {
  table.setRow(0);
  for (const Column& column : columns) {
    table.setColumn(column.number);
    table.setText(column.heading);
    table.setAlignment(0, column.number, Alignment::centre);
  }
}

void alignTotals(Table& table) {
  table.setRow(1);
  for (int column = table.columns() - 1; column >= 0; --column) {
    table.setColumn(column);
    table.setAlignment(1, column, Alignment::right);
  }
}

}  // namespace

void setUpTables(AwizoForm& form) {
  setUpColumns(form.grdOpakowania, packageColumns);
  setUpColumns(form.grdPozycje, lineColumns);
  setUpColumns(form.grdSuma, totalColumns);
}

void UstawNaglowki(Editor& editor) {
  reportErrors(editor.screen(), "Произошла ошибка в  UstawNaglowki()", [&] {
    writeHeadings(editor.form.grdOpakowania, packageColumns);
    writeHeadings(editor.form.grdPozycje, lineColumns);
    writeHeadings(editor.form.grdSuma, totalColumns);
    alignTotals(editor.form.grdSuma);
  });
}

}  // namespace awizo
