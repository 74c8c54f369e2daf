#include "formats/row_check.h"

#include "formats/customs_number.h"
#include "tables/columns/columns.h"
#include "tables/row.h"
#include "tables/row_colour.h"
#include "tables/totals.h"

namespace awizo {
namespace {

/// `faultyField` finds the faulty field of a customs number.
template <class FaultyField>
std::optional<RowFault> firstFault(const Conversions& conversions, const Row& line,
                                   const FaultyField& faultyField) {
  const auto isEmptyOrNumber = [&](int column) {
    return line.cell(column).empty() || conversions.isNumeric(line.cell(column));
  };
  if (!conversions.isNumeric(line.cell(GRD_POZ_EAN))) return RowFault{GRD_POZ_EAN, "EAN"};
  if (!isEmptyOrNumber(GRD_POZ_QTY_ORDERED)) {
    return RowFault{GRD_POZ_QTY_ORDERED, "Zamowiona ilosc"};
  }
  if (!conversions.isNumeric(Conversions::DotToComma(line.cell(GRD_POZ_QTY_DESPATCHED)))) {
    return RowFault{GRD_POZ_QTY_DESPATCHED, "Potwierdzana ilosc"};
  }
  if (!isEmptyOrNumber(GRD_POZ_PRICE)) return RowFault{GRD_POZ_PRICE, "Cena netto"};
  if (!isEmptyOrNumber(GRD_POZ_NET_AMOUNT)) {
    return RowFault{GRD_POZ_NET_AMOUNT, "Wartosc netto"};
  }
  const int faulty = faultyField(line.cell(GRD_POZ_CDN));
  if (faulty == 0) return std::nullopt;
  return RowFault{GRD_POZ_CDN, "CustomsDeclarationNumber_" + std::to_string(faulty), faulty};
}

}  // namespace

std::optional<RowFault> firstFault(Editor& editor, std::int16_t row) {
  return firstFault(editor.conversions, lineRow(editor, row),
                    [&](const std::string& cdn) { return faultyCustomsNumberField(editor, cdn); });
}

std::optional<RowFault> firstFaultToTell(const Editor& editor, std::int16_t row) {
  const Conversions& conversions = editor.conversions;
  return firstFault(conversions, lineRow(editor, row), [&](const std::string& cdn) {
    return faultyCustomsNumberField(conversions, cdn);
  });
}

bool CheckGridRow(Editor& editor, std::int16_t row) {
  const std::optional<RowFault> fault = firstFault(editor, row);
  if (fault) editor.form.BadColumnName = fault->name;
  return !fault;
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
