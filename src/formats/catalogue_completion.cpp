#include "formats/catalogue_completion.h"

#include <array>
#include <string>

#include "formats/catalogue_index.h"
#include "formats/order_line.h"
#include "formats/order_reader.h"
#include "platform/forms/report_errors.h"

namespace awizo {
namespace {

using enum Precedence;

/// In the order in which new elements are appended. Weight and lifespan leave their groups, and the
/// price takes the name that it has in an order.
constexpr std::array<CopiedValue, 10> copiedValues{{
    {"Line-Item/UnitOfMeasure", "Line-Item/UnitOfMeasure", "UnitOfMeasure", orderWins},
    {"Line-Item/ItemDescription", "Line-Item/ItemDescription", "ItemDescription", orderWins},
    {"Line-Item/UnitNetPrice", "Line-Item/OrderedUnitNetPrice", "OrderedUnitNetPrice", orderWins},
    {"Line-Item/BuyerItemCode", "Line-Item/BuyerItemCode", "BuyerItemCode", orderWins},
    {"Line-Item/SupplierItemCode", "Line-Item/SupplierItemCode", "SupplierItemCode", orderWins},
    {"Line-Item/TaxRate", "", "TaxRate", catalogueIsAppended},
    {"Line-Item/TaxCategoryCode", "", "TaxCategoryCode", catalogueIsAppended},
    {"Line-Item/PackDetails/Weight", "", "Weight", catalogueIsAppended},
    {"Line-Item/ProductLifespan/Period", "", "Period", catalogueIsAppended},
    {"Line-Item/ProductLifespan/PeriodFormat", "", "PeriodFormat", catalogueIsAppended},
}};

constexpr std::string_view placePath =
    "/dictionary-response/document-content/Document-LocalizationsCatalog/localizations/"
    "localization[iln =";

/// The XML value for a missing one.
constexpr std::string_view missingMark = "-1";

void completeOrder(XmlDocument& catalogue, XmlDocument& order) {
  const std::vector<XmlNode> lines = order.node().selectSingle(orderLinesPath).children();
  std::vector<std::string> eans;
  eans.reserve(lines.size());
  for (const XmlNode& line : lines) {
    eans.push_back(orderValue(lineElement(line), "Line-Item/EAN", Missing::blank));
  }
  const CatalogueIndex index(catalogue, eans);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const XmlNode catalogueLine = index.find(eans[i]);
    if (!catalogueLine) continue;
    for (const CopiedValue& value : copiedValues) {
      CopyCatalogueValue(order, lines, lineElement(lines[i]), catalogueLine, i, value);
    }
  }
}

}  // namespace

XmlDocument* ProductCatalogToOrder(Work& work, XmlDocument& catalogue, XmlDocument& order) {
  const bool completed = reportErrors(work.screen(), "Произошла ошибка в ProductCatalogToOrder",
                                      [&] { completeOrder(catalogue, order); });
  return completed ? &order : nullptr;
}

void CopyCatalogueValue(XmlDocument& order, const std::vector<XmlNode>& lines,
                        const XmlNode& orderLine, const XmlNode& catalogueLine, std::size_t index,
                        const CopiedValue& value) {
  std::string present(missingMark);
  if (value.precedence == orderWins) {
    present = orderValue(orderLine, value.orderPath, Missing::minusOne);
    if (present != missingMark && !present.empty()) return;
  }
  const std::string known = GetNodeValue(catalogueLine, value.cataloguePath, true);
  const XmlNode& line = lines.at(index);
  if (present.empty()) {
    line.selectSingle(value.orderPath).setText(known);
    return;
  }
  const XmlNode added = order.createElement(value.newElement);
  added.setText(known);
  line.selectSingle("Line-Item").append(added);
}

void CompleteFromLocalizationCatalog(Editor& editor, std::string_view iln) {
  AwizoForm& form = editor.form;
  if (!editor.session.LocalizationsLoaded) {
    form.lblNazwaMiejscaDostawy.setCaption("");
    return;
  }
  DebugLog& log = editor.session.log;
  log.trace("CompleteFromLocalizationCatalog start przetwarzania slownika lokalizacji");
  const XmlNode places = editor.session.LocalizationsDom->node();
  const std::string place = std::string(placePath).append(iln).append("]/");
  form.lblNazwaMiejscaDostawy.setCaption(GetNodeValue(places, place + "number", true));
  form.lblAdresMiejscaDostawy.setCaption(GetNodeValue(places, place + "address", true));
  log.trace("CompleteFromLocalizationCatalog przetworzono slownik lokalizacji");
}

}  // namespace awizo
