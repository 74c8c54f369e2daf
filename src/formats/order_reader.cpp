#include "formats/order_reader.h"

#include <string>

#include "formats/catalogue_completion.h"
#include "formats/order_line.h"
#include "formats/order_row.h"
#include "platform/narrow.h"
#include "session/record/header_panel.h"

namespace awizo {
namespace {

std::string headerValue(const XmlNode& order, std::string_view path, Missing missing) {
  return orderValue(order, std::string("/Document-Order/").append(path), missing);
}

/// The day when the buyer expects the goods; today where the order doesn't say.
Date deliveryDate(const Work& work, const std::string& text) {
  const Conversions& conversions = work.conversions;
  const bool isMissing =
      text.empty() || (conversions.isNumeric(text) && conversions.toDouble(text) == -1);
  return isMissing ? work.platform.clock.today() : conversions.toDate(text);
}

void readHeader(Editor& editor, const XmlNode& order) {
  AwizoForm& form = editor.form;
  const Conversions& conversions = editor.conversions;
  const auto value = [&](std::string_view path) {
    return headerValue(order, path, Missing::blank);
  };
  form.txtNrZam.setText(headerValue(order, "Order-Header/OrderNumber", Missing::minusOne));
  const std::string orderDate = value("Order-Header/OrderDate");
  form.dpDataZam.setDate(orderDate.empty() ? std::optional<Date>() : conversions.toDate(orderDate));
  form.txtNrAwiza.setText("");
  showParties(editor);
  form.txtCodeByBuyer.setText(value("Order-Parties/Seller/CodeByBuyer"));
  form.DeliveryILN = value("Order-Parties/DeliveryPoint/ILN");
  form.lblILNMiejscaDostValue.setCaption(form.DeliveryILN);
  CompleteFromLocalizationCatalog(editor, form.DeliveryILN);
  form.txtEstimatedDeliveryDate.setDate(
      deliveryDate(editor, value("Order-Header/ExpectedDeliveryDate")));
  form.txtDespatchAdviceTime.setTime(std::nullopt);
  const std::string time = value("Order-Header/ExpectedDeliveryTime");
  form.txtEstimatedDeliveryTime.setTime(time.empty() ? std::optional<TimeOfDay>()
                                                     : conversions.toTime(time));
  const std::string currency = value("Order-Header/Currency");
  form.lblCurrencyWart.setCaption(currency.empty() ? "RUR" : currency);
}

/// Makes a row for each child. Returns false where there are no children.
bool readLines(Editor& editor, const XmlNode& order) {
  Table& table = editor.form.grdPozycje;
  const std::vector<XmlNode> lines = order.selectSingle(orderLinesPath).children();
  table.setFixedRows(1);
  if (lines.empty()) {
    table.setRows(2);
    return false;
  }
  // Lines that can't be counted get no rows, which would take memory without bounds.
  editor.session.LineCount = narrow16(static_cast<std::int64_t>(lines.size()));
  table.setRows(editor.session.LineCount + 1);
  table.setRedraw(false);
  std::int16_t row = 0;
  for (const XmlNode& line : lines) readOrderLine(editor, lineElement(line), ++row);
  table.setRow(1);
  table.setColumn(1);
  table.setRedraw(true);
  return true;
}

void fillFrom(Editor& editor, std::unique_ptr<XmlDocument>& order) {
  AwizoForm& form = editor.form;
  form.setEnabled(false);
  form.OrderAnswer = true;
  form.lblNiepelnaWagaKom.setCaption("");
  if (editor.session.ProductCatalogLoaded &&
      ProductCatalogToOrder(editor, *editor.session.ProductCatalogDom, *order) == nullptr) {
    order.reset();
  }
  const XmlNode document = order ? order->node() : XmlNode();
  readHeader(editor, document);
  const bool hasLines = readLines(editor, document);
  form.setEnabled(true);
  if (!hasLines) return;
  form.cboxPackageDescription.setIndex(1);
  form.txtGoodsIdentity.setText("354107380000001051");
}

}  // namespace

std::optional<RunTimeError> readOrder(Editor& editor, std::unique_ptr<XmlDocument>& order) {
  return caughtError([&] { fillFrom(editor, order); });
}

void Wczytaj_Zamowienie(Editor& editor, std::unique_ptr<XmlDocument>& order) {
  const Cursor earlier = editor.screen().setCursor(editor.session.WaitCursor);
  if (const std::optional<RunTimeError> error = readOrder(editor, order)) {
    editor.screen().showError(*error, "Произошла ошибка в Wczytaj_Zamowienie()");
    editor.form.setEnabled(true);
  }
  editor.screen().setCursor(earlier);
}

}  // namespace awizo
