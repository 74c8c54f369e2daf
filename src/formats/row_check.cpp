#include "formats/row_check.h"

#include <string>

#include "formats/customs_number.h"
#include "tables/columns/columns.h"
#include "tables/row.h"
#include "tables/row_colour.h"
#include "tables/totals.h"

namespace awizo {
namespace {

bool fails(Editor& editor, std::string_view columnName) {
  editor.form.BadColumnName = columnName;
  return false;
}

/// A cell of the table that may stay empty.
bool isEmptyOrNumber(const Work& work, const std::string& text) {
  return text.empty() || work.conversions.isNumeric(text);
}

}  // namespace

bool CheckGridRow(Editor& editor, std::int16_t row) {
  const Row line = lineRow(editor, row);
  const Conversions& conversions = editor.conversions;
  if (!conversions.isNumeric(line.cell(GRD_POZ_EAN))) return fails(editor, "EAN");
  if (!isEmptyOrNumber(editor, line.cell(GRD_POZ_QTY_ORDERED)))
    return fails(editor, "Zamowiona ilosc");
  if (!conversions.isNumeric(Conversions::DotToComma(line.cell(GRD_POZ_QTY_DESPATCHED)))) {
    return fails(editor, "Potwierdzana ilosc");
  }
  if (!isEmptyOrNumber(editor, line.cell(GRD_POZ_PRICE))) return fails(editor, "Cena netto");
  if (!isEmptyOrNumber(editor, line.cell(GRD_POZ_NET_AMOUNT)))
    return fails(editor, "Wartosc netto");
  const std::string faulty = faultyCustomsNumberField(editor, line.cell(GRD_POZ_CDN));
  return faulty.empty() || fails(editor, faulty);
}

void RepaintValidRows(Editor& editor) {
  for (std::int16_t row = 1; row <= editor.session.LineCount; ++row) {
    if (CheckGridRow(editor, row)) paintRow(editor.form.grdPozycje, row, GRD_POZ_PACKED_QTY, white);
  }
}

void CountValidRows(Editor& editor) {
  AwizoForm& form = editor.form;
  form.ValidLineCount = 0;
  for (std::int16_t line = 1; line <= editor.session.LineCount; ++line) {
    if (CheckGridRow(editor, line)) ++form.ValidLineCount;
  }
  const int row = form.grdPozycje.row();
  const int column = form.grdPozycje.column();
  PoprawGrdSuma(editor);
  form.grdPozycje.setRow(row);
  form.grdPozycje.setColumn(column);
}

}  // namespace awizo
