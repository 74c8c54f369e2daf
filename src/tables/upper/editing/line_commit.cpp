#include "tables/upper/editing/line_commit.h"

#include "formats/customs_number.h"
#include "formats/row_check.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "session/record/countries.h"
#include "tables/columns/columns.h"
#include "tables/package_references.h"
#include "tables/row.h"
#include "tables/row_colour.h"
#include "tables/upper/editing/country_lists.h"
#include "tables/upper/editing/in_table_editing.h"
#include "tables/upper/editing/line_dialog_fill.h"
#include "tables/upper/editing/numbered_row.h"

namespace awizo {
namespace {

std::string pickedDate(const DatePicker& picker) {
  return picker.date() ? Conversions::FormatDateIso(*picker.date()) : std::string();
}

void writeProduct(const Work& work, DlgDodaj& dialog, const Row& line) {
  const auto fixed = [&](const TextField& field, int decimals) {
    return work.conversions.FormatFixed(field.text(), decimals);
  };
  line.set(GRD_POZ_EAN, dialog.txtlEANProdWart.text());
  line.set(GRD_POZ_NAME, dialog.txtNazwaProdWart.text());
  line.set(GRD_POZ_QTY_ORDERED, fixed(dialog.txtIloscZam, 3));
  line.set(GRD_POZ_QTY_DESPATCHED, fixed(dialog.txtIloscPotw, 3));
  line.set(GRD_POZ_PRICE, fixed(dialog.txtCenaNetto, 2));
  line.set(GRD_POZ_CODE_BY_BUYER, dialog.txtKodKup.text());
  line.set(GRD_POZ_CODE_BY_SELLER, dialog.txtKodSprzed.text());
  line.set(GRD_POZ_WEIGHT, dialog.LineWeight);
  line.set(GRD_POZ_UNIT, dialog.symbolJednostkiMiary(narrow16(dialog.cboxJednostkaMiary.index())));
  line.set(GRD_POZ_ORDER_LINE, dialog.LineOrderNumber);
  line.set(GRD_POZ_NET_AMOUNT, fixed(dialog.txtAmount, 2));
}

void writeTaxAndExpiry(DlgDodaj& dialog, const Row& line) {
  line.set(GRD_POZ_TAX_RATE, dialog.symbolStawkaVAT(narrow16(dialog.cboxStawkaVAT.index())));
  line.set(GRD_POZ_TAX_CATEGORY, dialog.symbolKodVAT(narrow16(dialog.cboxKodVAT.index())));
  line.set(GRD_POZ_EXPIRY_DATE, pickedDate(dialog.dtExpiryDate));
}

void writeOrigin(Editor& editor, DlgDodaj& dialog, const Row& line) {
  const DropDownList& country = dialog.comboCountry;
  line.set(GRD_POZ_COUNTRY, symbolKraj(narrow16(country.index()), country.text()));
  if (line.cell(GRD_POZ_COUNTRY).empty()) line.set(GRD_POZ_COUNTRY, country.text());
  line.set(GRD_POZ_CDN,
           JoinCDN(dialog.txtCDN1.text(), FormatCDNDate(editor, dialog.dpCDN2.date().value()),
                   dialog.txtCDN3.text(), dialog.txtCDN4.text()));
  line.set(GRD_POZ_PRODUCTION_DATE, pickedDate(dialog.dtProdDate));
  line.set(GRD_POZ_PERIOD, dialog.LinePeriod);
  line.set(GRD_POZ_PERIOD_FORMAT, dialog.LinePeriodFormat);
}

void writePackages(Editor& editor, const DlgDodaj& dialog, const Row& line) {
  line.set(GRD_POZ_PACK_REFS, GridToString(dialog.grdPozycje));
  line.set(GRD_POZ_PACKED_QTY, GetPackedQuantity(editor, line.cell(GRD_POZ_PACK_REFS)));
}

}  // namespace

void btnDodaj_Click(Editor& editor, DlgDodaj& dialog) {
  reportErrors(editor.screen(), "Произошла ошибка в btnDodaj_Click()", [&] {
    closeOpenEdits(editor);
    editor.form.setEnabled(false);
    dialog.touch();
    fillDialogForNewLine(editor, dialog);
    dialog.showModal();
    editor.form.setEnabled(true);
    // Countries that were added in the dialog are copied even when the dialog was cancelled.
    copyCountries(editor, dialog);
    Table& grid = editor.form.grdPozycje;
    if (dialog.DlgResult == 1) {
      grid.setRedraw(false);
      const std::int16_t row = addNumberedRow(grid, editor.session.LineCount);
      if (!ZatwierdzPozycje(editor, dialog, row)) return;
      grid.setRedraw(true);
    }
    grid.refresh();
  });
}

void btnEdytuj_Click(Editor& editor, DlgDodaj& dialog) {
  if (editor.session.LineCount == 0) return;
  reportErrors(editor.screen(), "Произошла ошибка в btnEdytuj_Click()", [&] {
    closeOpenEdits(editor);
    editor.form.setEnabled(false);
    dialog.touch();
    Table& grid = editor.form.grdPozycje;
    fillDialogForEdit(editor, dialog, narrow16(grid.row()));
    dialog.showModal();
    dialog.txtIloscZam.setEnabled(true);
    copyCountries(editor, dialog);
    if (dialog.DlgResult == 1) {
      grid.setRedraw(false);
      if (!ZatwierdzPozycje(editor, dialog, narrow16(grid.row()))) return;
      paintRow(grid, grid.row(), GRD_POZ_PACKED_QTY, white);
      grid.setRedraw(true);
    }
    editor.form.setEnabled(true);
  });
}

bool ZatwierdzPozycje(Editor& editor, DlgDodaj& dialog, std::int16_t row) {
  return reportErrors(editor.screen(), "Произошла ошибка в ZatwierdzPozycje()", [&] {
    const Row line = lineRow(editor, row);
    writeProduct(editor, dialog, line);
    writeTaxAndExpiry(dialog, line);
    writeOrigin(editor, dialog, line);
    writePackages(editor, dialog, line);
    editor.form.grdPozycje.setRow(row);
    CountValidRows(editor);
  });
}

}  // namespace awizo
