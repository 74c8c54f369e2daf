#include "tables/upper/editing/line_dialog_fill.h"

#include "formats/customs_number.h"
#include "linedialog/captions.h"
#include "platform/narrow.h"
#include "platform/text.h"
#include "session/record/countries.h"
#include "tables/columns/columns.h"
#include "tables/package_references.h"
#include "tables/row.h"
#include "tables/upper/editing/package_commit.h"

namespace awizo {
namespace {

constexpr CellLook wrappedHeading{white, Alignment::centre, false, true};

void emptyProductFields(DlgDodaj& dialog) {
  for (DropDownList* list : {&dialog.cboxNazwaProd, &dialog.cboxEANProd, &dialog.cboxKodAPP,
                             &dialog.cboxKodSprzed, &dialog.cboxStawkaVAT, &dialog.cboxKodVAT}) {
    list->clearSelection();
  }
  for (TextField* field :
       {&dialog.txtNazwaProdWart, &dialog.txtlEANProdWart, &dialog.txtKodSprzed, &dialog.txtKodKup,
        &dialog.txtIloscZam, &dialog.txtIloscPotw, &dialog.txtCenaNetto, &dialog.txtAmount}) {
    field->setText("");
  }
  dialog.cboxJednostkaMiary.clearSelection();
  dialog.comboCountry.clearSelection();
  for (TextField* field : {&dialog.txtCDN1, &dialog.txtCDN3, &dialog.txtCDN4}) field->setText("");
}

void emptyMembersAndDates(Editor& editor, DlgDodaj& dialog) {
  const Date today = editor.platform.clock.today();
  dialog.dtProdDate.setDate(today);
  dialog.showExpiryDate("");
  dialog.LinePeriod.clear();
  dialog.LinePeriodFormat.clear();
  dialog.LineOrderNumber.clear();
  dialog.LineWeight.clear();
  dialog.LineFromOrder = editor.form.OrderAnswer;
  dialog.dpCDN2.setDate(today);
  dialog.lblPackedQuantityValue.setCaption(editor.conversions.NormalizeDecimal("0", 3));
}

/// Each row that is equal is selected, one after another.
void selectEAN(DropDownList& list, const std::string& ean) {
  for (int i = 0; i < list.count(); ++i) {
    if (list.rows()[static_cast<std::size_t>(i)] == ean) list.setIndex(i);
  }
}

void selectOrType(DropDownList& list, std::int16_t index, const std::string& text) {
  if (index >= 0) {
    list.setIndex(index);
  } else {
    list.setText(text);
  }
}

// A line's cells are handed to the fields in the order of their columns.

void fillProduct(DlgDodaj& dialog, const Row& line) {
  dialog.txtlEANProdWart.setText(line.cell(GRD_POZ_EAN));
  selectEAN(dialog.cboxEANProd, line.cell(GRD_POZ_EAN));
  dialog.txtNazwaProdWart.setText(line.cell(GRD_POZ_NAME));
  dialog.txtIloscZam.setText(line.cell(GRD_POZ_QTY_ORDERED));
  dialog.txtIloscPotw.setText(line.cell(GRD_POZ_QTY_DESPATCHED));
  dialog.txtCenaNetto.setText(line.cell(GRD_POZ_PRICE));
  dialog.txtKodKup.setText(line.cell(GRD_POZ_CODE_BY_BUYER));
  dialog.txtKodSprzed.setText(line.cell(GRD_POZ_CODE_BY_SELLER));
  dialog.LineWeight = line.cell(GRD_POZ_WEIGHT);
  const std::string& unit = line.cell(GRD_POZ_UNIT);
  selectOrType(dialog.cboxJednostkaMiary, dialog.indexJednostkiMiary(unit), unit);
  dialog.LineOrderNumber = line.cell(GRD_POZ_ORDER_LINE);
}

void fillAmounts(DlgDodaj& dialog, const Row& line) {
  dialog.txtAmount.setText(line.cell(GRD_POZ_NET_AMOUNT));
  dialog.cboxStawkaVAT.setIndex(dialog.indexStawkaVAT(line.cell(GRD_POZ_TAX_RATE)));
  dialog.cboxKodVAT.setIndex(dialog.indexKodVAT(line.cell(GRD_POZ_TAX_CATEGORY)));
  dialog.CheckVAT(0);
}

void fillExpiryAndCountry(DlgDodaj& dialog, const Row& line) {
  dialog.showExpiryDate(line.cell(GRD_POZ_EXPIRY_DATE));
  const std::string& country = line.cell(GRD_POZ_COUNTRY);
  selectOrType(dialog.comboCountry, indexKraj(country), country);
}

void fillCustomsNumber(Editor& editor, DlgDodaj& dialog, const Row& line) {
  const CustomsNumberFields fields = SplitCDN(editor, line.cell(GRD_POZ_CDN));
  dialog.txtCDN1.setText(fields[0]);
  DebugLog& log = editor.session.log;
  const std::string& date = fields[1];
  log.trace("Edycja: cdnTab(1)=", date);
  if (countCharacters(date) == 6 && editor.conversions.isNumeric(date)) {
    const std::string day(firstCharacters(date, 2));
    const std::string month(lastCharacters(firstCharacters(date, 4), 2));
    const std::string year(lastCharacters(date, 2));
    log.trace("Edycja-DD: ", day);
    log.trace("Edycja-MM: ", month);
    log.trace("Edycja-YY: ", year);
    dialog.dpCDN2.setDate(editor.conversions.toDate(day + "-" + month + "-" + year));
  } else {
    dialog.dpCDN2.setDate(editor.platform.clock.today());
  }
  dialog.txtCDN3.setText(fields[2]);
  dialog.txtCDN4.setText(fields[3]);
}

void fillRest(const Work& work, DlgDodaj& dialog, const Row& line) {
  dialog.dtProdDate.setDate(work.conversions.toDate(line.cell(GRD_POZ_PRODUCTION_DATE)));
  dialog.LinePeriod = line.cell(GRD_POZ_PERIOD);
  dialog.LinePeriodFormat = line.cell(GRD_POZ_PERIOD_FORMAT);
  StringToGrid(dialog.grdPozycje, line.cell(GRD_POZ_PACK_REFS));
  dialog.lblPackedQuantityValue.setCaption(line.cell(GRD_POZ_PACKED_QTY));
}

}  // namespace

void fillDialogForNewLine(Editor& editor, DlgDodaj& dialog) {
  dialog.setCaption("Добавь продукт");
  dialog.lblPozycjaTow.setCaption("Позиция номер " +
                                  std::to_string(narrow16(editor.session.LineCount + 1)));
  dialog.btnDodaj.setCaption("&Добавить");
  PreparePackageArrays(editor);
  emptyProductFields(dialog);
  emptyMembersAndDates(editor, dialog);
  dialog.grdPozycje.clear();
  dialog.grdPozycje.setRows(2);
  dialog.grdPozycje.setRow(0);
  writePackageHeadings(dialog.grdPozycje, wrappedHeading);
  for (Button* button : {&dialog.Command1, &dialog.Command2, &dialog.Command3}) {
    button->setEnabled(false);
  }
}

void fillDialogForEdit(Editor& editor, DlgDodaj& dialog, std::int16_t row) {
  dialog.setCaption("Издание продукта");
  dialog.btnDodaj.setCaption(captions::confirm);
  for (int column = 0; column < dialog.grdPozycje.columns(); ++column) {
    dialog.grdPozycje.setLook(0, column, wrappedHeading);
  }
  PreparePackageArrays(editor);
  dialog.cboxEANProd.clearSelection();
  dialog.cboxNazwaProd.clearSelection();
  // The empty text is an entry where a product has no such code.
  dialog.cboxKodAPP.setText("");
  dialog.cboxKodSprzed.setText("");
  dialog.txtNazwaProdWart.setText("");
  const Row line = lineRow(editor, row);
  fillProduct(dialog, line);
  fillAmounts(dialog, line);
  fillExpiryAndCountry(dialog, line);
  fillCustomsNumber(editor, dialog, line);
  fillRest(editor, dialog, line);
  dialog.LineFromOrder = editor.form.OrderAnswer;
  dialog.SetButtons();
  dialog.txtIloscZam.setEnabled(false);
  dialog.lblPozycjaTow.setCaption("Позиция номер " + line.cell(GRD_POZ_LP));
}

}  // namespace awizo
