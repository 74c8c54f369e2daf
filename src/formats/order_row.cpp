#include "formats/order_row.h"

#include <string>

#include "formats/order_line.h"
#include "tables/columns/columns.h"
#include "tables/row.h"

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

std::string readValue(const Work& work, const XmlNode& line, const LineSource& source) {
  if (source.path.empty()) return "";
  std::string value = orderValue(line, source.path, source.missing);
  if (source.decimals == asItStands) return value;
  return work.conversions.NormalizeDecimal(value, source.decimals);
}

/// The amount that the order states, else the price of what is despatched.
std::string netAmount(const Conversions& conversions, const Row& row, std::string stated) {
  if (stated.empty()) {
    stated = conversions.MultiplyToAmount(Conversions::CommaToDot(row.cell(GRD_POZ_QTY_DESPATCHED)),
                                          Conversions::CommaToDot(row.cell(GRD_POZ_PRICE)));
  }
  return conversions.NormalizeDecimal(stated, 2);
}

std::string cellText(const Editor& editor, const XmlNode& line, const Row& row, int column,
                     Date today) {
  const auto stated = [&] {
    return readValue(editor, line, sources[static_cast<std::size_t>(column)]);
  };
  switch (column) {
    case GRD_POZ_LP:
      return std::to_string(row.number());
    case GRD_POZ_NET_AMOUNT:
      return netAmount(editor.conversions, row, stated());
    case GRD_POZ_PRODUCTION_DATE:
      return editor.platform.locale.shortDate(today);
    case GRD_POZ_PACKED_QTY:
      return editor.conversions.NormalizeDecimal("0", 3);
    default:
      return stated();
  }
}

}  // namespace

const LineSources& orderLineSources() { return sources; }

void readOrderLine(Editor& editor, const XmlNode& line, std::int16_t row) {
  const Row filled = lineRow(editor, row);
  const Date today = editor.platform.clock.today();
  for (const Column& column : lineColumns) {
    filled.set(column.number, cellText(editor, line, filled, column.number, today));
    if (column.number == GRD_POZ_PERIOD_FORMAT) {
      filled.set(GRD_POZ_EXPIRY_DATE,
                 editor.conversions.AddPeriodToDate(today, filled.cell(GRD_POZ_PERIOD),
                                                    filled.cell(GRD_POZ_PERIOD_FORMAT)));
    }
  }
}

}  // namespace awizo
