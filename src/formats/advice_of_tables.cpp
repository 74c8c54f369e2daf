#include "formats/advice_of_tables.h"

#include <algorithm>

#include "tables/columns/columns.h"
#include "tables/package_references.h"
#include "tables/row.h"

namespace awizo {
namespace {

std::string isoDate(const DatePicker& picker) {
  return picker.date() ? Conversions::FormatDateIso(*picker.date()) : "";
}

std::string hmTime(const TimePicker& picker) {
  return picker.time() ? Conversions::FormatTimeHm(*picker.time()) : "";
}

std::string number(const Row& row, int column) { return Conversions::CommaToDot(row.cell(column)); }

AdviceHeader headerOf(const AwizoForm& form) {
  AdviceHeader header;
  header.number = form.txtNrAwiza.text();
  header.date = isoDate(form.txtDataAwiza);
  header.time = hmTime(form.txtDespatchAdviceTime);
  header.deliveryDate = isoDate(form.txtEstimatedDeliveryDate);
  header.deliveryTime = hmTime(form.txtEstimatedDeliveryTime);
  header.orderNumber = form.txtNrZam.text();
  header.orderDate = isoDate(form.dpDataZam);
  header.currency = form.lblCurrencyWart.caption();
  header.buyerILN = form.lblILNKupWart.caption();
  header.sellerILN = form.lblILNSprzedWart.caption();
  header.codeByBuyer = form.txtCodeByBuyer.text();
  header.deliveryILN = form.DeliveryILN;
  return header;
}

AdvicePackage packageOf(const Row& row) {
  AdvicePackage package;
  package.id = row.cell(GRD_OPAK_SERIAL);
  // The first package lies in the consignment, whatever its cell says.
  package.parentId = row.number() == 1 ? consignmentId : row.cell(GRD_OPAK_PARENT_SERIAL);
  package.type = row.cell(GRD_OPAK_TYPE);
  package.serialNumber = row.cell(GRD_OPAK_SERIAL_NUMBER);
  package.deliveryPlace = row.cell(GRD_OPAK_LOCATION_ILN);
  package.weight = number(row, GRD_OPAK_WEIGHT);
  package.height = number(row, GRD_OPAK_HEIGHT);
  package.length = number(row, GRD_OPAK_LENGTH);
  package.width = number(row, GRD_OPAK_WIDTH);
  return package;
}

AdviceLine lineOf(const Row& row) {
  AdviceLine line;
  line.number = row.cell(GRD_POZ_LP);
  line.orderLine = row.cell(GRD_POZ_ORDER_LINE);
  line.ean = row.cell(GRD_POZ_EAN);
  line.buyerCode = row.cell(GRD_POZ_CODE_BY_BUYER);
  line.supplierCode = row.cell(GRD_POZ_CODE_BY_SELLER);
  line.despatched = number(row, GRD_POZ_QTY_DESPATCHED);
  line.ordered = number(row, GRD_POZ_QTY_ORDERED);
  line.unit = row.cell(GRD_POZ_UNIT);
  line.description = row.cell(GRD_POZ_NAME);
  line.price = number(row, GRD_POZ_PRICE);
  line.netAmount = number(row, GRD_POZ_NET_AMOUNT);
  line.taxRate = number(row, GRD_POZ_TAX_RATE);
  // Of all marks of a missing value this one alone stays out of the document.
  if (line.taxRate == "-1") line.taxRate.clear();
  line.country = row.cell(GRD_POZ_COUNTRY);
  line.customsNumber = row.cell(GRD_POZ_CDN);
  line.packages = packageReferences(row.cell(GRD_POZ_PACK_REFS));
  return line;
}

/// With 2 decimals, "-1" for an empty one.
std::string totalOf(const Editor& editor, int column) {
  return editor.conversions.FormatForXml(totalsRow(editor).cell(column), 2);
}

}  // namespace

DespatchAdvice adviceOf(const Editor& editor) {
  DespatchAdvice advice;
  readAdvice(editor, advice);
  return advice;
}

void readAdvice(const Editor& editor, DespatchAdvice& advice) {
  advice.header = headerOf(editor.form);
  const SessionState& session = editor.session;
  advice.packages.reserve(static_cast<std::size_t>(std::max<int>(session.IloscPozycjiOpak, 0)));
  for (int row = 1; row <= session.IloscPozycjiOpak; ++row) {
    advice.packages.push_back(packageOf(packageRow(editor, row)));
  }
  advice.lines.reserve(static_cast<std::size_t>(std::max<int>(session.LineCount, 0)));
  for (int row = 1; row <= session.LineCount; ++row) {
    advice.lines.push_back(lineOf(lineRow(editor, row)));
  }
  if (advice.lines.empty()) return;
  advice.totals.amount = totalOf(editor, GRD_SUMA_NET_AMOUNT);
  advice.totals.quantity = totalOf(editor, GRD_SUMA_QTY_DESPATCHED);
}

}  // namespace awizo
