#include <functional>
#include <utility>

#include "linedialog/dlg_dodaj.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"

namespace awizo {
namespace {

// Marks of the list at which a chain of changes began. A change that the chain itself makes finds
// the mark set, and doesn't run back to where it came from.
constexpr std::int16_t fromEAN = 1;
constexpr std::int16_t fromBuyerCode = 2;
constexpr std::int16_t fromName = 3;
constexpr std::int16_t fromSupplierCode = 4;

bool inList(const DropDownList& list, const std::vector<std::int32_t>& order) {
  return list.index() >= 0 && static_cast<std::size_t>(list.index()) < order.size();
}

std::size_t lineOf(int index, const std::vector<std::int32_t>& order) {
  const auto place = static_cast<std::size_t>(index);
  if (place >= order.size()) throw errors::subscriptOutOfRange();
  return static_cast<std::size_t>(order[place]);
}

}  // namespace

// A change event that fails keeps its mark: its last step is skipped. Lines that share names and
// codes can lead to each other without end. Such a chain ends as a whole, and the event with which
// it began tells so: would each event on the way report and go on, there were no end of boxes.
void DlgDodaj::followList(DropDownList& list, std::int16_t mark, TextField& field,
                          const std::function<void()>& onward) {
  const std::string event = list.name() + "_Change";
  const bool begins = !std::exchange(inChain_, true);
  reportErrors(screen(), "VIRDПроизошла ошибка в  " + event, [&] {
    try {
      DebugLog& log = editor_.session.log;
      log.WriteDebugLine(event + " start");
      if (ProductChangeSource == 0) ProductChangeSource = mark;
      field.setText(list.text());
      onward();
      if (ProductChangeSource == mark) ProductChangeSource = 0;
      log.WriteDebugLine(event + " koniec");
    } catch (const RunTimeError& error) {
      chainIsEndless_ = !begins && error.number() == errors::outOfStackSpace().number();
      if (!chainIsEndless_) throw;
    }
  });
  if (begins) inChain_ = false;
}

void DlgDodaj::lead(DropDownList& list, const std::string& text) {
  list.setText(text);
  if (chainIsEndless_) throw errors::outOfStackSpace();
}

void DlgDodaj::cboxEANProd_Change() {
  followList(cboxEANProd, fromEAN, txtlEANProdWart, [&] {
    const ProductDictionary& p = products_;
    if (!inList(cboxEANProd, p.IdxEAN)) return;
    const std::size_t line = lineOf(cboxEANProd.index(), p.IdxEAN);
    if (ProductChangeSource != fromBuyerCode) lead(cboxKodAPP, p.ProdBuyerCode[line]);
    if (ProductChangeSource != fromName) lead(cboxNazwaProd, p.ProdName[line]);
    if (ProductChangeSource != fromSupplierCode) lead(cboxKodSprzed, p.ProdSupplierCode[line]);
    setFieldsValues(narrow16(cboxEANProd.index()));
  });
}

// The other lists lead to the name, and the name to the EAN, from which the fields are filled.
void DlgDodaj::cboxKodAPP_Change() {
  followList(cboxKodAPP, fromBuyerCode, txtKodKup, [&] {
    const std::vector<std::int32_t>& order = products_.IdxBuyerCode;
    if (!inList(cboxKodAPP, order) || ProductChangeSource == fromName) return;
    lead(cboxNazwaProd, products_.ProdName[lineOf(cboxKodAPP.index(), order)]);
  });
}

void DlgDodaj::cboxKodSprzed_Change() {
  followList(cboxKodSprzed, fromSupplierCode, txtKodSprzed, [&] {
    const std::vector<std::int32_t>& order = products_.IdxSupplierCode;
    if (!inList(cboxKodSprzed, order) || ProductChangeSource == fromName) return;
    lead(cboxNazwaProd, products_.ProdName[lineOf(cboxKodSprzed.index(), order)]);
  });
}

void DlgDodaj::cboxNazwaProd_Change() {
  followList(cboxNazwaProd, fromName, txtNazwaProdWart, [&] {
    const std::vector<std::int32_t>& order = products_.IdxName;
    if (!inList(cboxNazwaProd, order)) return;
    lead(cboxEANProd, products_.ProdEAN[lineOf(cboxNazwaProd.index(), order)]);
  });
}

void DlgDodaj::setFieldsValues(int index) {
  reportErrors(screen(), "Произошла ошибка в  setFieldsValues()", [&] {
    if (index >= 0) {
      takeProduct(lineOf(index, products_.IdxEAN));
    } else {
      forgetProduct();
    }
  });
}

void DlgDodaj::takeProduct(std::size_t line) {
  const ProductDictionary& p = products_;
  txtKodSprzed.setText(p.ProdSupplierCode[line]);
  txtKodKup.setText(p.ProdBuyerCode[line]);
  const std::int16_t unit = indexJednostkiMiary(p.ProdUnit[line]);
  if (unit < 0) {
    cboxJednostkaMiary.setText(p.ProdUnit[line]);
  } else {
    cboxJednostkaMiary.setIndex(unit);
  }
  txtCenaNetto.setText(editor_.conversions.NormalizeDecimal(std::string(p.ProdPrice[line]), 2));
  txtAmount.setText(MyCalculateAmount());
  cboxStawkaVAT.setIndex(indexStawkaVAT(p.ProdTaxRate[line]));
  cboxKodVAT.setIndex(indexKodVAT(p.ProdTaxCategory[line]));
  CheckVAT(0);
  LinePeriod = p.ProdPeriod[line];
  LinePeriodFormat = p.ProdPeriodFormat[line];
  showExpiryDate(MyCalculateExpiryDate());
  LineWeight = p.ProdWeight[line];
}

void DlgDodaj::forgetProduct() {
  for (TextField* field : {&txtKodSprzed, &txtKodKup, &txtCenaNetto, &txtAmount}) {
    field->setText("");
  }
  for (DropDownList* list : {&cboxJednostkaMiary, &cboxStawkaVAT, &cboxKodVAT}) {
    list->clearSelection();
  }
  LinePeriod.clear();
  LinePeriodFormat.clear();
  LineWeight.clear();
  showExpiryDate("");
}

// No date leaves the picker empty but opening on today.
void DlgDodaj::showExpiryDate(const std::string& isoDate) {
  if (!isoDate.empty()) {
    dtExpiryDate.setDate(editor_.conversions.toDate(isoDate));
    return;
  }
  dtExpiryDate.setDate(editor_.platform.clock.today());
  dtExpiryDate.setDate(std::nullopt);
}

}  // namespace awizo
