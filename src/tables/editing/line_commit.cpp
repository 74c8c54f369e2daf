#include "tables/editing/line_commit.h"

#include <array>

#include "formats/customs_number.h"
#include "formats/row_check.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "session/record/header_panel.h"
#include "tables/columns.h"
#include "tables/editing/in_table_editing.h"
#include "tables/editing/line_dialog_fill.h"
#include "tables/editing/numbered_row.h"
#include "tables/flat_index.h"
#include "tables/package_references.h"
#include "tables/row_colour.h"

namespace awizo {
namespace {

// Countries that were added in the dialog reach the main form, also after a cancelled dialog.
void copyCountries(Editor& editor, const DlgDodaj& dialog) {
  editor.form.comboCountry.clear();
  for (const std::string& row : dialog.comboCountry.rows()) editor.form.comboCountry.addRow(row);
}

std::string pickedDate(const DatePicker& picker) {
  return picker.date() ? Conversions::FormatDateIso(*picker.date()) : std::string();
}

// Writes the dialog's fields into the cells of one row.
class LineWriter {
 public:
  LineWriter(Editor& editor, DlgDodaj& dialog, std::int16_t row)
      : editor_(editor), dialog_(dialog), row_(row) {}

  void writeAll() {
    writeProduct();
    writeAmounts();
    writeOrigin();
    writePackages();
  }

 private:
  std::int16_t index(std::int16_t column) const { return IndexGrdPozycje(editor_, row_, column); }
  const std::string& read(std::int16_t column) const {
    return editor_.form.grdPozycje.cell(index(column));
  }
  void write(std::int16_t column, std::string_view text) {
    editor_.form.grdPozycje.setCell(index(column), text);
  }
  std::string fixed(const TextField& field, int decimals) const {
    return editor_.conversions.FormatFixed(field.text(), decimals);
  }

  void writeProduct() {
    write(GRD_POZ_EAN, dialog_.txtlEANProdWart.text());
    write(GRD_POZ_NAME, dialog_.txtNazwaProdWart.text());
    write(GRD_POZ_QTY_ORDERED, fixed(dialog_.txtIloscZam, 3));
    write(GRD_POZ_QTY_DESPATCHED, fixed(dialog_.txtIloscPotw, 3));
    write(GRD_POZ_PRICE, fixed(dialog_.txtCenaNetto, 2));
    write(GRD_POZ_CODE_BY_BUYER, dialog_.txtKodKup.text());
    write(GRD_POZ_CODE_BY_SELLER, dialog_.txtKodSprzed.text());
    write(GRD_POZ_WEIGHT, dialog_.LineWeight);
    write(GRD_POZ_UNIT, dialog_.symbolJednostkiMiary(narrow16(dialog_.cboxJednostkaMiary.index())));
    write(GRD_POZ_ORDER_LINE, dialog_.LineOrderNumber);
  }

  void writeAmounts() {
    write(GRD_POZ_NET_AMOUNT, fixed(dialog_.txtAmount, 2));
    write(GRD_POZ_TAX_RATE, dialog_.symbolStawkaVAT(narrow16(dialog_.cboxStawkaVAT.index())));
    write(GRD_POZ_TAX_CATEGORY, dialog_.symbolKodVAT(narrow16(dialog_.cboxKodVAT.index())));
    write(GRD_POZ_EXPIRY_DATE, pickedDate(dialog_.dtExpiryDate));
  }

  void writeOrigin() {
    const DropDownList& country = dialog_.comboCountry;
    write(GRD_POZ_COUNTRY, symbolKraj(narrow16(country.index()), country.text()));
    if (read(GRD_POZ_COUNTRY).empty()) write(GRD_POZ_COUNTRY, country.text());
    write(GRD_POZ_CDN,
          JoinCDN(dialog_.txtCDN1.text(), FormatCDNDate(editor_, dialog_.dpCDN2.date().value()),
                  dialog_.txtCDN3.text(), dialog_.txtCDN4.text()));
    write(GRD_POZ_PRODUCTION_DATE, pickedDate(dialog_.dtProdDate));
    write(GRD_POZ_PERIOD, dialog_.LinePeriod);
    write(GRD_POZ_PERIOD_FORMAT, dialog_.LinePeriodFormat);
  }

  void writePackages() {
    write(GRD_POZ_PACK_REFS, GridToString(dialog_.grdPozycje));
    write(GRD_POZ_PACKED_QTY, GetPackedQuantity(editor_, read(GRD_POZ_PACK_REFS)));
  }

  Editor& editor_;
  DlgDodaj& dialog_;
  std::int16_t row_;
};

struct UnitName {
  std::string_view name;
  std::string_view symbol;
};

// Russian words for the first, Polish ones for the rest.
constexpr std::array<UnitName, 9> unitNames{{{"штука", "PCE"},
                                             {"килограмм", "KGM"},
                                             {"метр", "MTR"},
                                             {"kilometr", "KMT"},
                                             {"opakowanie", "PA"},
                                             {"komplet", "SET"},
                                             {"para", "PR"},
                                             {"tona", "TNE"},
                                             {"литр", "LTR"}}};

}  // namespace

void btnDodaj_Click(Editor& editor, DlgDodaj& dialog) {
  reportErrors(editor.screen(), "Произошла ошибка в btnDodaj_Click()", [&] {
    closeOpenEdits(editor);
    editor.form.setEnabled(false);
    dialog.touch();
    fillDialogForNewLine(editor, dialog);
    dialog.showModal();
    editor.form.setEnabled(true);
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
    LineWriter(editor, dialog, row).writeAll();
    editor.form.grdPozycje.setRow(row);
    CountValidRows(editor);
  });
}

std::string JednostkiMiaryNazwaToSymbol(const Locale& locale, std::string_view name) {
  const std::string lower = locale.lower(name);
  for (const UnitName& unit : unitNames) {
    if (lower == unit.name) return std::string(unit.symbol);
  }
  return std::string(name);
}

}  // namespace awizo
