#include "tables/editing/line_dialog_fill.h"

#include "formats/customs_number.h"
#include "platform/narrow.h"
#include "platform/text.h"
#include "session/record/header_panel.h"
#include "tables/columns.h"
#include "tables/editing/package_commit.h"
#include "tables/flat_index.h"
#include "tables/package_references.h"

namespace awizo {
namespace {

constexpr CellLook wrappedHeading{white, Alignment::centre, false, true};

// No date leaves the picker empty but opening on today.
void showNoDate(DatePicker& picker, Date today) {
  picker.setDate(today);
  picker.setDate(std::nullopt);
}

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
  showNoDate(dialog.dtExpiryDate, today);
  dialog.LinePeriod.clear();
  dialog.LinePeriodFormat.clear();
  dialog.LineOrderNumber.clear();
  dialog.LineWeight.clear();
  dialog.LineFromOrder = editor.form.OrderAnswer;
  dialog.dpCDN2.setDate(today);
  dialog.lblPackedQuantityValue.setCaption(
      editor.conversions.NormalizeDecimal(std::string("0"), 3));
}

// A line's cells, handed to the fields in the order of their columns.
class DialogFiller {
 public:
  DialogFiller(Editor& editor, DlgDodaj& dialog, std::int16_t row)
      : editor_(editor), dialog_(dialog), row_(row) {}

  void fillAll() {
    fillProduct();
    fillAmounts();
    fillDates();
    fillCustomsNumber();
    fillRest();
  }

 private:
  std::string cell(std::int16_t column) const {
    return editor_.form.grdPozycje.cell(IndexGrdPozycje(editor_, row_, column));
  }

  // Every row that is equal is selected in turn.
  void selectEAN(const std::string& ean) {
    DropDownList& list = dialog_.cboxEANProd;
    for (int i = 0; i < list.count(); ++i) {
      if (list.rows()[static_cast<std::size_t>(i)] == ean) list.setIndex(i);
    }
  }

  static void selectOrType(DropDownList& list, std::int16_t index, const std::string& text) {
    if (index >= 0) {
      list.setIndex(index);
    } else {
      list.setText(text);
    }
  }

  void fillProduct() {
    dialog_.txtlEANProdWart.setText(cell(GRD_POZ_EAN));
    selectEAN(cell(GRD_POZ_EAN));
    dialog_.txtNazwaProdWart.setText(cell(GRD_POZ_NAME));
    dialog_.txtIloscZam.setText(cell(GRD_POZ_QTY_ORDERED));
    dialog_.txtIloscPotw.setText(cell(GRD_POZ_QTY_DESPATCHED));
    dialog_.txtCenaNetto.setText(cell(GRD_POZ_PRICE));
    dialog_.txtKodKup.setText(cell(GRD_POZ_CODE_BY_BUYER));
    dialog_.txtKodSprzed.setText(cell(GRD_POZ_CODE_BY_SELLER));
    dialog_.LineWeight = cell(GRD_POZ_WEIGHT);
    const std::string unit = cell(GRD_POZ_UNIT);
    selectOrType(dialog_.cboxJednostkaMiary, dialog_.indexJednostkiMiary(unit), unit);
    dialog_.LineOrderNumber = cell(GRD_POZ_ORDER_LINE);
  }

  void fillAmounts() {
    dialog_.txtAmount.setText(cell(GRD_POZ_NET_AMOUNT));
    dialog_.cboxStawkaVAT.setIndex(dialog_.indexStawkaVAT(cell(GRD_POZ_TAX_RATE)));
    dialog_.cboxKodVAT.setIndex(dialog_.indexKodVAT(cell(GRD_POZ_TAX_CATEGORY)));
    dialog_.CheckVAT(0);
  }

  void fillDates() {
    const std::string expiry = cell(GRD_POZ_EXPIRY_DATE);
    if (expiry.empty()) {
      showNoDate(dialog_.dtExpiryDate, editor_.platform.clock.today());
    } else {
      dialog_.dtExpiryDate.setDate(editor_.conversions.toDate(expiry));
    }
    const std::string country = cell(GRD_POZ_COUNTRY);
    selectOrType(dialog_.comboCountry, indexKraj(country), country);
  }

  void fillCustomsNumber() {
    const CustomsNumberFields fields = SplitCDN(editor_, cell(GRD_POZ_CDN));
    dialog_.txtCDN1.setText(fields[0]);
    DebugLog& log = editor_.session.log;
    const std::string& date = fields[1];
    log.WriteDebugLine("Edycja: cdnTab(1)=" + date);
    if (countCharacters(date) == 6 && editor_.conversions.isNumeric(date)) {
      const std::string day(firstCharacters(date, 2));
      const std::string month(lastCharacters(firstCharacters(date, 4), 2));
      const std::string year(lastCharacters(date, 2));
      log.WriteDebugLine("Edycja-DD: " + day);
      log.WriteDebugLine("Edycja-MM: " + month);
      log.WriteDebugLine("Edycja-YY: " + year);
      dialog_.dpCDN2.setDate(editor_.conversions.toDate(day + "-" + month + "-" + year));
    } else {
      dialog_.dpCDN2.setDate(editor_.platform.clock.today());
    }
    dialog_.txtCDN3.setText(fields[2]);
    dialog_.txtCDN4.setText(fields[3]);
  }

  void fillRest() {
    dialog_.dtProdDate.setDate(editor_.conversions.toDate(cell(GRD_POZ_PRODUCTION_DATE)));
    dialog_.LinePeriod = cell(GRD_POZ_PERIOD);
    dialog_.LinePeriodFormat = cell(GRD_POZ_PERIOD_FORMAT);
    StringToGrid(dialog_.grdPozycje, cell(GRD_POZ_PACK_REFS));
    dialog_.lblPackedQuantityValue.setCaption(cell(GRD_POZ_PACKED_QTY));
  }

  Editor& editor_;
  DlgDodaj& dialog_;
  std::int16_t row_;
};

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
  dialog.btnDodaj.setCaption("&Подтвердить");
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
  DialogFiller(editor, dialog, row).fillAll();
  dialog.LineFromOrder = editor.form.OrderAnswer;
  dialog.SetButtons();
  dialog.txtIloscZam.setEnabled(false);
  dialog.lblPozycjaTow.setCaption(
      "Позиция номер " + editor.form.grdPozycje.cell(IndexGrdPozycje(editor, row, GRD_POZ_LP)));
}

}  // namespace awizo
