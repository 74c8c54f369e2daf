#include "linedialog/product_choice.h"

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

/// A change event that fails keeps its mark: its last step is skipped. Lines that share names and
/// codes can lead to each other without end. Such a chain ends as a whole, and only the event with
/// which it began reports it: if each event on the way reported and went on, there would be no end
/// of boxes.
void ProductChoice::followList(DropDownList& list, std::int16_t mark, TextField& field,
                               const std::function<void()>& onward) {
  const std::string event = list.name() + "_Change";
  const bool begins = !std::exchange(inChain_, true);
  reportErrors(work_.screen(), "VIRDПроизошла ошибка в  " + event, [&] {
    try {
      DebugLog& log = work_.session.log;
      log.trace(event, " start");
      if (ProductChangeSource == 0) ProductChangeSource = mark;
      field.setText(list.text());
      onward();
      if (ProductChangeSource == mark) ProductChangeSource = 0;
      log.trace(event, " koniec");
    } catch (const RunTimeError& error) {
      chainIsEndless_ = !begins && error.number() == errors::outOfStackSpace().number();
      if (!chainIsEndless_) throw;
    }
  });
  if (begins) inChain_ = false;
}

void ProductChoice::lead(DropDownList& list, const std::string& text) {
  list.setText(text);
  if (chainIsEndless_) throw errors::outOfStackSpace();
}

void ProductChoice::cboxEANProd_Change() {
  followList(dialog_.cboxEANProd, fromEAN, dialog_.txtlEANProdWart, [&] {
    const ProductDictionary& p = dialog_.dictionary();
    if (!inList(dialog_.cboxEANProd, p.IdxEAN)) return;
    const std::size_t line = lineOf(dialog_.cboxEANProd.index(), p.IdxEAN);
    if (ProductChangeSource != fromBuyerCode) lead(dialog_.cboxKodAPP, p.ProdBuyerCode[line]);
    if (ProductChangeSource != fromName) lead(dialog_.cboxNazwaProd, p.ProdName[line]);
    if (ProductChangeSource != fromSupplierCode)
      lead(dialog_.cboxKodSprzed, p.ProdSupplierCode[line]);
    setFieldsValues(narrow16(dialog_.cboxEANProd.index()));
  });
}

/// The other lists lead to the name, and the name to the EAN, from which the fields are filled.
void ProductChoice::cboxKodAPP_Change() {
  followList(dialog_.cboxKodAPP, fromBuyerCode, dialog_.txtKodKup, [&] {
    const std::vector<std::int32_t>& order = dialog_.dictionary().IdxBuyerCode;
    if (!inList(dialog_.cboxKodAPP, order) || ProductChangeSource == fromName) return;
    lead(dialog_.cboxNazwaProd,
         dialog_.dictionary().ProdName[lineOf(dialog_.cboxKodAPP.index(), order)]);
  });
}

void ProductChoice::cboxKodSprzed_Change() {
  followList(dialog_.cboxKodSprzed, fromSupplierCode, dialog_.txtKodSprzed, [&] {
    const std::vector<std::int32_t>& order = dialog_.dictionary().IdxSupplierCode;
    if (!inList(dialog_.cboxKodSprzed, order) || ProductChangeSource == fromName) return;
    lead(dialog_.cboxNazwaProd,
         dialog_.dictionary().ProdName[lineOf(dialog_.cboxKodSprzed.index(), order)]);
  });
}

void ProductChoice::cboxNazwaProd_Change() {
  followList(dialog_.cboxNazwaProd, fromName, dialog_.txtNazwaProdWart, [&] {
    const std::vector<std::int32_t>& order = dialog_.dictionary().IdxName;
    if (!inList(dialog_.cboxNazwaProd, order)) return;
    lead(dialog_.cboxEANProd,
         dialog_.dictionary().ProdEAN[lineOf(dialog_.cboxNazwaProd.index(), order)]);
  });
}

void ProductChoice::setFieldsValues(int index) {
  reportErrors(work_.screen(), "Произошла ошибка в  setFieldsValues()", [&] {
    if (index >= 0) {
      takeProduct(lineOf(index, dialog_.dictionary().IdxEAN));
    } else {
      forgetProduct();
    }
  });
}

void ProductChoice::takeProduct(std::size_t line) {
  const ProductDictionary& p = dialog_.dictionary();
  dialog_.txtKodSprzed.setText(p.ProdSupplierCode[line]);
  dialog_.txtKodKup.setText(p.ProdBuyerCode[line]);
  const std::int16_t unit = dialog_.indexJednostkiMiary(p.ProdUnit[line]);
  if (unit < 0) {
    dialog_.cboxJednostkaMiary.setText(p.ProdUnit[line]);
  } else {
    dialog_.cboxJednostkaMiary.setIndex(unit);
  }
  dialog_.txtCenaNetto.setText(work_.conversions.NormalizeDecimal(p.ProdPrice[line], 2));
  dialog_.txtAmount.setText(dialog_.MyCalculateAmount());
  dialog_.cboxStawkaVAT.setIndex(dialog_.indexStawkaVAT(p.ProdTaxRate[line]));
  dialog_.cboxKodVAT.setIndex(dialog_.indexKodVAT(p.ProdTaxCategory[line]));
  dialog_.CheckVAT(0);
  dialog_.LinePeriod = p.ProdPeriod[line];
  dialog_.LinePeriodFormat = p.ProdPeriodFormat[line];
  dialog_.showExpiryDate(dialog_.MyCalculateExpiryDate());
  dialog_.LineWeight = p.ProdWeight[line];
}

void ProductChoice::forgetProduct() {
  for (TextField* field :
       {&dialog_.txtKodSprzed, &dialog_.txtKodKup, &dialog_.txtCenaNetto, &dialog_.txtAmount}) {
    field->setText("");
  }
  for (DropDownList* list :
       {&dialog_.cboxJednostkaMiary, &dialog_.cboxStawkaVAT, &dialog_.cboxKodVAT}) {
    list->clearSelection();
  }
  dialog_.LinePeriod.clear();
  dialog_.LinePeriodFormat.clear();
  dialog_.LineWeight.clear();
  dialog_.showExpiryDate("");
}

}  // namespace awizo
