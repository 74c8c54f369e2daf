#include "formats/order_row.h"

#include <string>

#include "formats/order_line.h"
#include "tables/columns.h"
#include "tables/flat_index.h"

namespace awizo {
namespace {

constexpr LineSources sources = [] {
  using enum Missing;
  LineSources all{};
  all[GRD_POZ_EAN] = {"Line-Item/EAN"};
  all[GRD_POZ_NAME] = {"Line-Item/ItemDescription"};
  all[GRD_POZ_QTY_ORDERED] = {"Line-Item/OrderedQuantity", minusOne, 3};
  // A new document despatches what was ordered, until the user says otherwise.
  all[GRD_POZ_QTY_DESPATCHED] = all[GRD_POZ_QTY_ORDERED];
  all[GRD_POZ_PRICE] = {"Line-Item/OrderedUnitNetPrice", blank, 2};
  all[GRD_POZ_CODE_BY_BUYER] = {"Line-Item/BuyerItemCode"};
  all[GRD_POZ_CODE_BY_SELLER] = {"Line-Item/SupplierItemCode"};
  all[GRD_POZ_WEIGHT] = {"Line-Item/Weight", minusOne, 3};
  all[GRD_POZ_UNIT] = {"Line-Item/UnitOfMeasure"};
  all[GRD_POZ_ORDER_LINE] = {"Line-Item/LineNumber", minusOne};
  all[GRD_POZ_NET_AMOUNT] = {"Line-Item/NetAmount"};
  all[GRD_POZ_TAX_RATE] = {"Line-Item/TaxRate", minusOne};
  all[GRD_POZ_TAX_CATEGORY] = {"Line-Item/TaxCategoryCode"};
  all[GRD_POZ_PERIOD] = {"Line-Item/Period"};
  all[GRD_POZ_PERIOD_FORMAT] = {"Line-Item/PeriodFormat"};
  return all;
}();

/// The row under way.
class OrderRow {
 public:
  OrderRow(Editor& editor, const XmlNode& line, std::int16_t row)
      : editor_(editor), line_(line), row_(row), today_(editor.platform.clock.today()) {}

  void fill();

 private:
  std::string textOf(int column) const;
  std::string readValue(const LineSource& source) const;
  std::string netAmount(std::string&& stated) const;
  std::string expiryDate() const;

  int index(int column) const {
    return IndexGrdPozycje(editor_, row_, static_cast<std::int16_t>(column));
  }
  const std::string& cell(int column) const { return editor_.form.grdPozycje.cell(index(column)); }
  void setCell(int column, std::string_view text) {
    editor_.form.grdPozycje.setCell(index(column), text);
  }

  Editor& editor_;
  const XmlNode& line_;
  std::int16_t row_;
  Date today_;
};

void OrderRow::fill() {
  for (int column = 0; column < lineColumns; ++column) {
    setCell(column, textOf(column));
    if (column == GRD_POZ_PERIOD_FORMAT) setCell(GRD_POZ_EXPIRY_DATE, expiryDate());
  }
}

std::string OrderRow::textOf(int column) const {
  switch (column) {
    case GRD_POZ_LP:
      return std::to_string(row_);
    case GRD_POZ_NET_AMOUNT:
      return netAmount(readValue(sources[GRD_POZ_NET_AMOUNT]));
    case GRD_POZ_PRODUCTION_DATE:
      return editor_.platform.locale.shortDate(today_);
    case GRD_POZ_PACKED_QTY:
      return editor_.conversions.NormalizeDecimal("0", 3);
    default:
      return readValue(sources[static_cast<std::size_t>(column)]);
  }
}

std::string OrderRow::readValue(const LineSource& source) const {
  if (source.path.empty()) return "";
  std::string value = orderValue(line_, source.path, source.missing);
  if (source.decimals == asItStands) return value;
  return editor_.conversions.NormalizeDecimal(value, source.decimals);
}

std::string OrderRow::netAmount(std::string&& stated) const {
  const Conversions& conversions = editor_.conversions;
  if (stated.empty()) {
    stated = conversions.MultiplyToAmount(Conversions::CommaToDot(cell(GRD_POZ_QTY_DESPATCHED)),
                                          Conversions::CommaToDot(cell(GRD_POZ_PRICE)));
  }
  return conversions.NormalizeDecimal(stated, 2);
}

std::string OrderRow::expiryDate() const {
  return editor_.conversions.AddPeriodToDate(today_, cell(GRD_POZ_PERIOD),
                                             cell(GRD_POZ_PERIOD_FORMAT));
}

}  // namespace

const LineSources& orderLineSources() { return sources; }

void readOrderLine(Editor& editor, const XmlNode& line, std::int16_t row) {
  OrderRow(editor, line, row).fill();
}

}  // namespace awizo
