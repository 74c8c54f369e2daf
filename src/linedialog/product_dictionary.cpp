#include <algorithm>
#include <numeric>

#include "linedialog/dlg_dodaj.h"
#include "platform/forms/report_errors.h"
#include "platform/narrow.h"
#include "service/transport.h"

namespace awizo {
namespace {

constexpr std::string_view formLoadTitle = "Произошла ошибка в Form_Load() (Dodaj)";

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
    // Of several items the first that has the value gives it.
    return GetNodeValue(line_, std::string("Line-Item/").append(path), blankOnMissing);
  }

 private:
  XmlNode line_;
  XmlNode onlyItem_;
};

}  // namespace

// A failure in one part is told to the user and doesn't stop the rest.
void DlgDodaj::Form_Load() {
  DebugLog& log = editor_.session.log;
  editor_.session.IsoCheckOk = true;
  ProductChangeSource = 0;
  log.WriteDebugLine("Form_Load start");
  const Cursor earlier = screen().setCursor(editor_.session.WaitCursor);
  reportErrors(screen(), formLoadTitle, [&] { fillFixedLists(); });
  reportErrors(screen(), formLoadTitle, [&] { setUpPackageTable(); });
  log.WriteDebugLine("Form_Load utworzono obiekty MSXML2 ");
  if (editor_.session.ProductCatalogLoaded) {
    reportErrors(screen(), formLoadTitle, [&] { readCatalogue(); });
  } else {
    for (DropDownList* list : {&cboxNazwaProd, &cboxEANProd, &cboxKodAPP, &cboxKodSprzed}) {
      list->setVisible(false);
    }
  }
  screen().setCursor(earlier);
  log.WriteDebugLine("Form_Load zmiana kursora na poczatkowy");
}

void DlgDodaj::readCatalogue() {
  DebugLog& log = editor_.session.log;
  log.WriteDebugLine("Form_Load start przetwarzania slownika produktow");
  const XmlNode catalogue =
      editor_.session.ProductCatalogDom->node().selectSingle("Document-ProductCatalogue");
  if (catalogue) {
    std::vector<XmlNode> lines;
    reportErrors(screen(), formLoadTitle,
                 [&] { lines = catalogue.selectSingle("ProductCatalogue-Lines").children(); });
    products_.makeRoom(lines.size());
    readCatalogueLines(lines);
    sortCatalogue(narrow32(static_cast<std::int64_t>(lines.size())));
    fillCatalogueLists();
  }
  log.WriteDebugLine("Form_Load przetworzono slownik produktow");
}

// There is always one element, also for a catalogue without lines.
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

// The counter has 16 bits: each line beyond is reported and takes the place of the one before it.
void DlgDodaj::readCatalogueLines(const std::vector<XmlNode>& lines) {
  std::int16_t i = 0;
  for (const XmlNode& line : lines) {
    readCatalogueLine(line, static_cast<std::size_t>(i));
    reportErrors(screen(), formLoadTitle, [&] { i = narrow16(i + 1); });
  }
}

void DlgDodaj::readCatalogueLine(const XmlNode& line, std::size_t place) {
  const LineReader read(line);
  const auto orEmpty = [&](std::string_view path) { return read.value(path, true); };
  const auto orMarker = [&](std::string_view path) { return read.value(path, false); };
  ProductDictionary& p = products_;
  p.ProdEAN[place] = orMarker("EAN");
  p.ProdName[place] = orMarker("ItemDescription");
  p.ProdSupplierCode[place] = orEmpty("SupplierItemCode");
  p.ProdBuyerCode[place] = orEmpty("BuyerItemCode");
  p.ProdUnit[place] = orMarker("UnitOfMeasure");
  if (p.ProdUnit[place] == "-1") p.ProdUnit[place].clear();
  p.ProdPackSize[place] = orEmpty("PackDetails/UnitPacksize");
  if (p.ProdPackSize[place].empty()) p.ProdPackSize[place] = "1";
  p.ProdTaxRate[place] = orEmpty("TaxRate");
  p.ProdPrice[place] = editor_.conversions.NormalizeDecimal(orEmpty("UnitNetPrice"), 2);
  p.ProdTaxCategory[place] = editor_.conversions.NormalizeDecimal(orEmpty("TaxCategoryCode"), 2);
  p.ProdPeriod[place] = orEmpty("ProductLifespan/Period");
  p.ProdPeriodFormat[place] = orEmpty("ProductLifespan/PeriodFormat");
  p.ProdWeight[place] = orEmpty("PackDetails/Weight");
}

void DlgDodaj::sortCatalogue(std::int32_t lines) {
  ProductDictionary& p = products_;
  const std::int32_t last = lines - 1;
  sorter_.ReDimSplitArrays(lines + 1);
  sorter_.QuickSort(p.ProdEAN, p.IdxEAN, 0, last);
  sorter_.QuickSort(p.ProdName, p.IdxName, 0, last);
  sorter_.QuickSort(p.ProdSupplierCode, p.IdxSupplierCode, 0, last);
  sorter_.QuickSort(p.ProdBuyerCode, p.IdxBuyerCode, 0, last);
}

// Empty texts get a row too, so that a list's index is a place in its index vector.
void DlgDodaj::fillCatalogueLists() {
  const ProductDictionary& p = products_;
  cboxNazwaProd.setRows(inOrder(p.ProdName, p.IdxName));
  cboxEANProd.setRows(inOrder(p.ProdEAN, p.IdxEAN));
  cboxKodSprzed.setRows(inOrder(p.ProdSupplierCode, p.IdxSupplierCode));
  cboxKodAPP.setRows(inOrder(p.ProdBuyerCode, p.IdxBuyerCode));
}

}  // namespace awizo
