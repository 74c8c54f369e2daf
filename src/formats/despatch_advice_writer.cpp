#include "formats/despatch_advice_writer.h"

#include <functional>
#include <string>

#include "formats/despatch_advice_paths.h"
#include "platform/forms/report_errors.h"
#include "tables/columns/columns.h"
#include "tables/row.h"

namespace awizo {
namespace {

std::string isoDate(const DatePicker& picker) {
  return picker.date() ? Conversions::FormatDateIso(*picker.date()) : "";
}

std::string hmTime(const TimePicker& picker) {
  return picker.time() ? Conversions::FormatTimeHm(*picker.time()) : "";
}

void appendElement(const Xml& xml, const XmlNode& target, const ElementText& element) {
  ElementBatch batch(xml, target);
  batch.add(element);
  batch.flush();
}

/// Makes one document. The step tells, in a failure's title, how far it came.
class DesAdvMaker {
 public:
  explicit DesAdvMaker(Editor& editor) : editor_(editor), form_(editor.form) {}

  std::unique_ptr<XmlDocument> make();
  const std::string& step() const { return step_; }

 private:
  void fillHeader();
  void fillParties();
  void addPackages();
  void addLines();
  void addElements(std::string_view path, std::int16_t count,
                   const std::function<ElementText(std::int16_t)>& elementOfRow);
  void fillTotals();

  /// Puts a text where the path below the document element leads.
  void fill(std::string_view path, std::string_view text);
  PackingSequenceValues package(std::int16_t row) const;
  DesAdvLineValues line(std::int16_t row) const;
  /// The cell of row 1 of grdSuma as XML number with 2 decimals, "-1" for an empty one.
  std::string total(int column) const;

  Editor& editor_;
  AwizoForm& form_;
  std::string step_ = "0";
  std::string time_;
  std::string estimatedTime_;
  std::string orderDate_;
  std::string codeByBuyer_;
  std::unique_ptr<XmlDocument> document_;
};

std::unique_ptr<XmlDocument> DesAdvMaker::make() {
  time_ = hmTime(form_.txtDespatchAdviceTime);
  estimatedTime_ = hmTime(form_.txtEstimatedDeliveryTime);
  orderDate_ = isoDate(form_.dpDataZam);
  codeByBuyer_ = form_.txtCodeByBuyer.text();
  document_ = CreateDesAdvSkeleton(editor_.platform.xml, time_, estimatedTime_, orderDate_,
                                   editor_.session.LineCount, codeByBuyer_, form_.DeliveryILN,
                                   editor_.session.IloscPozycjiOpak);
  fillHeader();
  fillParties();
  addPackages();
  addLines();
  fillTotals();
  return std::move(document_);
}

void DesAdvMaker::fill(std::string_view path, std::string_view text) {
  std::string whole = "/Document-DespatchAdvice/DespatchAdvice-";
  document_->node().selectSingle(whole.append(path)).setText(text);
}

void DesAdvMaker::fillHeader() {
  step_ = "1";
  fill("Header/DespatchAdviceNumber", form_.txtNrAwiza.text());
  step_ = "2";
  fill("Header/DespatchAdviceDate", isoDate(form_.txtDataAwiza));
  step_ = "3";
  if (!time_.empty()) fill("Header/DespatchAdviceTime", time_);
  step_ = "4";
  // Unlike the other dates, a delivery date that is missing is an error.
  if (!form_.txtEstimatedDeliveryDate.date()) throw errors::invalidUseOfNull();
  fill("Header/EstimatedDeliveryDate", isoDate(form_.txtEstimatedDeliveryDate));
  step_ = "5";
  if (!estimatedTime_.empty()) fill("Header/EstimatedDeliveryTime", estimatedTime_);
  step_ = "6";
  fill("Header/BuyerOrderNumber", form_.txtNrZam.text());
  step_ = "7";
  if (!orderDate_.empty()) fill("Header/BuyerOrderDate", orderDate_);
  fill("Header/Currency", form_.lblCurrencyWart.caption());
}

void DesAdvMaker::fillParties() {
  step_ = "8";
  fill("Parties/Buyer/ILN", form_.lblILNKupWart.caption());
  fill("Parties/Seller/ILN", form_.lblILNSprzedWart.caption());
  if (!codeByBuyer_.empty()) fill("Parties/Seller/CodeByBuyer", codeByBuyer_);
  if (!form_.DeliveryILN.empty()) fill("Parties/DeliveryPoint/ILN", form_.DeliveryILN);
}

void DesAdvMaker::addPackages() {
  step_ = "9";
  addElements(consignmentPath, editor_.session.IloscPozycjiOpak,
              [this](std::int16_t row) { return packingSequenceText(package(row)); });
}

void DesAdvMaker::addLines() {
  step_ = "10";
  if (editor_.session.LineCount < 1) return;
  addElements(despatchLinesPath, editor_.session.LineCount,
              [this](std::int16_t row) { return lineText(line(row)); });
}

void DesAdvMaker::addElements(std::string_view path, std::int16_t count,
                              const std::function<ElementText(std::int16_t)>& elementOfRow) {
  ElementBatch batch(editor_.platform.xml, document_->node().selectSingle(path));
  try {
    for (std::int16_t row = 1; row <= count; ++row) batch.add(elementOfRow(row));
  } catch (const RunTimeError&) {
    // Of two rows that fail, the upper one is told; it may still lie in the batch.
    batch.flush();
    throw;
  }
  batch.flush();
}

void DesAdvMaker::fillTotals() {
  if (editor_.session.LineCount < 1) return;
  fill("Summary/TotalQuantity", total(GRD_SUMA_QTY_DESPATCHED));
  fill("Summary/TotalAmount", total(GRD_SUMA_NET_AMOUNT));
}

PackingSequenceValues DesAdvMaker::package(std::int16_t row) const {
  const Row package = packageRow(editor_, row);
  const auto number = [&](int column) { return Conversions::CommaToDot(package.cell(column)); };
  PackingSequenceValues values;
  values.packageId = package.cell(GRD_OPAK_SERIAL);
  values.parentId = row == 1 ? "1" : package.cell(GRD_OPAK_PARENT_SERIAL);
  values.packageType = package.cell(GRD_OPAK_TYPE);
  values.serialNumber = package.cell(GRD_OPAK_SERIAL_NUMBER);
  values.deliveryPlace = package.cell(GRD_OPAK_LOCATION_ILN);
  values.weight = number(GRD_OPAK_WEIGHT);
  values.height = number(GRD_OPAK_HEIGHT);
  values.length = number(GRD_OPAK_LENGTH);
  values.width = number(GRD_OPAK_WIDTH);
  return values;
}

DesAdvLineValues DesAdvMaker::line(std::int16_t row) const {
  const Row line = lineRow(editor_, row);
  const auto number = [&](int column) { return Conversions::CommaToDot(line.cell(column)); };
  DesAdvLineValues values;
  values.lineNumber = line.cell(GRD_POZ_LP);
  values.orderLineNumber = line.cell(GRD_POZ_ORDER_LINE);
  values.ean = line.cell(GRD_POZ_EAN);
  values.despatchedQty = number(GRD_POZ_QTY_DESPATCHED);
  values.orderedQty = number(GRD_POZ_QTY_ORDERED);
  values.unit = line.cell(GRD_POZ_UNIT);
  values.description = line.cell(GRD_POZ_NAME);
  values.price = number(GRD_POZ_PRICE);
  values.netAmount = number(GRD_POZ_NET_AMOUNT);
  values.taxRate = number(GRD_POZ_TAX_RATE);
  values.taxCategory = line.cell(GRD_POZ_TAX_CATEGORY);
  values.expiryDate = line.cell(GRD_POZ_EXPIRY_DATE);
  values.country = line.cell(GRD_POZ_COUNTRY);
  values.customsNumber = line.cell(GRD_POZ_CDN);
  values.buyerCode = line.cell(GRD_POZ_CODE_BY_BUYER);
  values.supplierCode = line.cell(GRD_POZ_CODE_BY_SELLER);
  values.packRefs = line.cell(GRD_POZ_PACK_REFS);
  return values;
}

std::string DesAdvMaker::total(int column) const {
  return editor_.conversions.FormatForXml(totalsRow(editor_).cell(column), 2);
}

}  // namespace

std::unique_ptr<XmlDocument> MakeDesAdv(Editor& editor) {
  DesAdvMaker maker(editor);
  std::unique_ptr<XmlDocument> document;
  reportErrors(
      editor.screen(), [&] { return "Произошла ошибка в MakeDesAdv()" + maker.step(); },
      [&] { document = maker.make(); });
  return document;
}

std::unique_ptr<XmlDocument> CreateDesAdvSkeleton(
    const Xml& xml, std::string_view timeText, std::string_view estimatedTimeText,
    std::string_view orderDateText, std::int16_t lineCount, std::string_view codeByBuyer,
    std::string_view deliveryILN, std::int16_t /*packageCount*/) {
  std::string text =
      "<Document-DespatchAdvice><DespatchAdvice-Header>"
      "<DespatchAdviceNumber/><DespatchAdviceDate/>";
  if (!timeText.empty()) text += "<DespatchAdviceTime/>";
  text += "<EstimatedDeliveryDate/>";
  if (!estimatedTimeText.empty()) text += "<EstimatedDeliveryTime/>";
  text += "<BuyerOrderNumber/>";
  if (!orderDateText.empty()) text += "<BuyerOrderDate/>";
  text +=
      "<Currency>RUR</Currency></DespatchAdvice-Header>"
      "<DespatchAdvice-Parties><Buyer><ILN/></Buyer><Seller><ILN/>";
  if (!codeByBuyer.empty()) text += "<CodeByBuyer/>";
  text += "</Seller>";
  if (!deliveryILN.empty()) text += "<DeliveryPoint><ILN/></DeliveryPoint>";
  text +=
      "</DespatchAdvice-Parties><DespatchAdvice-Consignment>"
      "<Packing-Sequence><PackageId>1</PackageId></Packing-Sequence>"
      "</DespatchAdvice-Consignment>";
  if (lineCount > 0) {
    text +=
        "<DespatchAdvice-Lines/>"
        "<DespatchAdvice-Summary><TotalAmount/><TotalQuantity/></DespatchAdvice-Summary>";
  }
  text += "</Document-DespatchAdvice>";
  std::unique_ptr<XmlDocument> document = xml.createDocument();
  document->loadText(text);
  return document;
}

void AddPackingSequence(const Xml& xml, XmlDocument& document,
                        const PackingSequenceValues& values) {
  appendElement(xml, document.node().selectSingle(consignmentPath), packingSequenceText(values));
}

void AddDesAdvLine(const Xml& xml, XmlDocument& document, const DesAdvLineValues& values) {
  appendElement(xml, document.node().selectSingle(despatchLinesPath), lineText(values));
}

}  // namespace awizo
