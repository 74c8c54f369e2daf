#include "formats/upper/reading/line_reader.h"

#include "service/transport.h"
#include "tables/columns/columns.h"
#include "tables/package_references.h"
#include "tables/row.h"

namespace awizo {
namespace {

constexpr LineSources sources = [] {
  using enum Missing;
  LineSources all{};
  all[GRD_POZ_EAN] = {"Line-Item/EAN"};
  all[GRD_POZ_NAME] = {"Line-Item/ItemDescription"};
  all[GRD_POZ_QTY_ORDERED] = {"Line-Item/OrderedQuantity", blank, 3};
  all[GRD_POZ_QTY_DESPATCHED] = {"Line-Item/DespatchedQuantity", blank, 3};
  all[GRD_POZ_PRICE] = {"Line-Item/UnitNetPrice", blank, 2};
  all[GRD_POZ_CODE_BY_BUYER] = {"Line-Item/BuyerItemCode"};
  all[GRD_POZ_CODE_BY_SELLER] = {"Line-Item/SupplierItemCode"};
  all[GRD_POZ_UNIT] = {"Line-Item/UnitOfMeasure"};
  all[GRD_POZ_ORDER_LINE] = {"Line-Item/LineNumber", blank, 0};
  all[GRD_POZ_NET_AMOUNT] = {"Line-Item/NetAmount", blank, 2};
  all[GRD_POZ_TAX_RATE] = {"Line-Item/TaxRate", blank, 0};
  all[GRD_POZ_COUNTRY] = {"Line-Item/CountryOfOriginCode"};
  return all;
}();

std::string sourceText(Work& work, const XmlNode& line, const LineSource& source) {
  if (source.path.empty()) return {};
  std::string text = GetNodeValue(line, source.path, true);
  if (source.decimals == asItStands || text.empty()) return text;
  return work.conversions.NormalizeDecimal(text, source.decimals);
}

std::string cellText(Editor& editor, const XmlNode& line, const Row& row, int column) {
  switch (column) {
    case GRD_POZ_LP:
      return std::to_string(row.number());
    case GRD_POZ_PRODUCTION_DATE:
      return editor.platform.locale.shortDate(editor.platform.clock.today());
    case GRD_POZ_PACK_REFS:
      return ReadLinePackRefs(editor, line);
    case GRD_POZ_PACKED_QTY:
      return editor.conversions.NormalizeDecimal("0", 3);
    default:
      return sourceText(editor, line, sources[static_cast<std::size_t>(column)]);
  }
}

}  // namespace

const LineSources& despatchLineSources() { return sources; }

void readDespatchLine(Editor& editor, const XmlNode& line, std::int16_t row) {
  const Row filled = lineRow(editor, row);
  for (const Column& column : lineColumns) {
    filled.set(column.number, cellText(editor, line, filled, column.number));
  }
}

std::string ReadLinePackRefs(const Work& work, const XmlNode& line) {
  try {
    const XmlNode found = line.selectSingle("Package-Identification");
    return found ? PackageRefsFromXml(work.platform.xml, found.xml()) : std::string();
  } catch (const RunTimeError&) {
    return {};
  }
}

}  // namespace awizo
