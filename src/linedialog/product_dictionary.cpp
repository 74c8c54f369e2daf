#include "linedialog/product_dictionary.h"

#include <algorithm>
#include <numeric>

#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "service/transport.h"

namespace awizo {
namespace {

std::vector<std::string> inOrder(const std::vector<std::string>& texts,
                                 const std::vector<std::int32_t>& order) {
  std::vector<std::string> rows;
  rows.reserve(order.size());
  for (const std::int32_t line : order) rows.push_back(texts[static_cast<std::size_t>(line)]);
  return rows;
}

/// Reads the values of a catalogue line below its Line-Item. A child that is no line has none.
class LineReader {
 public:
  explicit LineReader(const XmlNode& line) : line_(line.isElement("Line") ? line : XmlNode{}) {
    if (!line_) return;
    const XmlNode first = line_.firstChild();
    if (first && first.isElement("Line-Item") && !first.nextSibling()) onlyItem_ = first;
  }

  std::string value(std::string_view path, bool blankOnMissing) const {
    if (onlyItem_) return GetNodeValue(onlyItem_, path, blankOnMissing);
    // Of several items the first that has the value counts.
    return GetNodeValue(line_, std::string("Line-Item/").append(path), blankOnMissing);
  }

 private:
  XmlNode line_;
  XmlNode onlyItem_;
};

}  // namespace

void ProductDictionary::read(const XmlNode& catalogue, const Conversions& conversions,
                             Sorter& sorter, Screen& screen, std::string_view title) {
  std::vector<XmlNode> lines;
  reportErrors(screen, title,
               [&] { lines = catalogue.selectSingle("ProductCatalogue-Lines").children(); });
  makeRoom(lines.size());
  // The counter has 16 bits: each line beyond takes the place of the one before it.
  std::int16_t i = 0;
  for (const XmlNode& line : lines) {
    readLine(line, static_cast<std::size_t>(i), conversions);
    reportErrors(screen, title, [&] { i = narrow16(i + 1); });
  }
  sort(sorter, narrow32(static_cast<std::int64_t>(lines.size())));
}

void ProductDictionary::makeRoom(std::size_t lines) {
  const std::size_t size = std::max<std::size_t>(lines, 1);
  for (auto* texts :
       {&ProdEAN, &ProdName, &ProdSupplierCode, &ProdBuyerCode, &ProdUnit, &ProdPackSize,
        &ProdTaxRate, &ProdPrice, &ProdTaxCategory, &ProdPeriod, &ProdPeriodFormat, &ProdWeight}) {
    texts->assign(size, "");
  }
  for (auto* order : {&IdxEAN, &IdxName, &IdxSupplierCode, &IdxBuyerCode}) {
    order->resize(size);
    std::iota(order->begin(), order->end(), 0);
  }
}

void ProductDictionary::readLine(const XmlNode& line, std::size_t place,
                                 const Conversions& conversions) {
  const LineReader read(line);
  const auto orEmpty = [&](std::string_view path) { return read.value(path, true); };
  const auto orMarker = [&](std::string_view path) { return read.value(path, false); };
  ProdEAN[place] = orMarker("EAN");
  ProdName[place] = orMarker("ItemDescription");
  ProdSupplierCode[place] = orEmpty("SupplierItemCode");
  ProdBuyerCode[place] = orEmpty("BuyerItemCode");
  ProdUnit[place] = orMarker("UnitOfMeasure");
  if (ProdUnit[place] == "-1") ProdUnit[place].clear();
  ProdPackSize[place] = orEmpty("PackDetails/UnitPacksize");
  if (ProdPackSize[place].empty()) ProdPackSize[place] = "1";
  ProdTaxRate[place] = orEmpty("TaxRate");
  ProdPrice[place] = conversions.NormalizeDecimal(orEmpty("UnitNetPrice"), 2);
  ProdTaxCategory[place] = conversions.NormalizeDecimal(orEmpty("TaxCategoryCode"), 2);
  ProdPeriod[place] = orEmpty("ProductLifespan/Period");
  ProdPeriodFormat[place] = orEmpty("ProductLifespan/PeriodFormat");
  ProdWeight[place] = orEmpty("PackDetails/Weight");
}

void ProductDictionary::sort(Sorter& sorter, std::int32_t lines) {
  const std::int32_t last = lines - 1;
  sorter.ReDimSplitArrays(lines + 1);
  sorter.QuickSort(ProdEAN, IdxEAN, 0, last);
  sorter.QuickSort(ProdName, IdxName, 0, last);
  sorter.QuickSort(ProdSupplierCode, IdxSupplierCode, 0, last);
  sorter.QuickSort(ProdBuyerCode, IdxBuyerCode, 0, last);
}

std::vector<std::string> ProductDictionary::rowsByEAN() const { return inOrder(ProdEAN, IdxEAN); }

std::vector<std::string> ProductDictionary::rowsByName() const {
  return inOrder(ProdName, IdxName);
}

std::vector<std::string> ProductDictionary::rowsBySupplierCode() const {
  return inOrder(ProdSupplierCode, IdxSupplierCode);
}

std::vector<std::string> ProductDictionary::rowsByBuyerCode() const {
  return inOrder(ProdBuyerCode, IdxBuyerCode);
}

}  // namespace awizo
