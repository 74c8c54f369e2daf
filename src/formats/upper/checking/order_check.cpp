#include "formats/upper/checking/order_check.h"

#include "formats/catalogue_index.h"
#include "formats/order_line.h"
#include "formats/order_reader.h"
#include "formats/order_row.h"
#include "formats/upper/checking/ignored_elements.h"
#include "formats/upper/checking/line_findings.h"
#include "formats/upper/checking/scratch_editor.h"
#include "formats/upper/checking/stopped_reading.h"

namespace awizo {
namespace {

/// Whether a catalogue can be asked for this EAN; where not, no line of the order is completed, and
/// the order isn't read.
bool canBeCompleted(XmlDocument& catalogue, const std::string& ean) {
  try {
    CatalogueIndex(catalogue, {ean}).find(ean);
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

class OrderCheck {
 public:
  OrderCheck(const Platform& platform, XmlDocument& order)
      : scratch_(platform), order_(order), map_(order) {
    catalogue_ = platform.xml.createDocument();
    catalogue_->loadText("<Document-ProductCatalogue/>");
  }

  Editor& editor() { return scratch_.editor; }
  const DocumentMap& map() const { return map_; }

  std::vector<Finding> header() const {
    std::vector<Finding> found;
    if (scratch_.form.txtNrZam.text() == "-1") {
      found.push_back(at("Order-Header/OrderNumber", "нет номера заказа, будет показано «-1»"));
    }
    const XmlNode lines = order_.node().selectSingle(orderLinesPath);
    if (!lines) {
      found.push_back(at("Order-Lines", "нет строк: заказ не будет прочитан"));
    } else if (lines.children().empty()) {
      found.push_back(at("Order-Lines", "в заказе нет ни одной строки"));
    }
    return found;
  }

  std::vector<Finding> lines() {
    LineFindings rows(scratch_.editor, map_, orderLineSources());
    std::vector<Finding> found;
    const XmlNode parent = order_.node().selectSingle(orderLinesPath);
    std::int16_t row = 0;
    try {
      for (const XmlNode& line : parent ? parent.children() : std::vector<XmlNode>()) {
        if (row == scratch_.session.LineCount) break;
        ++row;
        if (!lineElement(line)) {
          found.push_back(
              {line.line(), ordersLines(), quoted(line.name()) + " не Line: строка будет пустой"});
        } else {
          rows.add(line, row);
        }
        addLine(found, line);
      }
    } catch (const RunTimeError&) {
      // The reading stopped at this row, which is reported already.
    }
    found.insert(found.end(), rows.found().begin(), rows.found().end());
    return found;
  }

 private:
  /// A comment among the lines has no place of its own.
  static std::string ordersLines() { return belowRoot(orderLinesPath); }

  Finding at(std::string_view path, std::string text) const {
    const XmlNode node = order_.root().selectSingle(path);
    return {(node ? node : order_.root()).line(), std::string(path), std::move(text)};
  }

  void addLine(std::vector<Finding>& found, const XmlNode& line) const {
    const XmlNode element = lineElement(line);
    if (element && !element.selectSingle("Line-Item/OrderedQuantity")) {
      found.push_back(map_.finding(line, "нет OrderedQuantity: количеством станет -1"));
    }
    const std::string ean = orderValue(element, "Line-Item/EAN", Missing::blank);
    if (!canBeCompleted(*catalogue_, ean)) {
      found.push_back({line.line(), element ? map_.pathOf(line) : ordersLines(),
                       "EAN " + quoted(ean) +
                           " нельзя искать в каталоге: с каталогом заказ не будет "
                           "прочитан"});
    }
  }

  ScratchEditor scratch_;
  XmlDocument& order_;
  DocumentMap map_;
  std::unique_ptr<XmlDocument> catalogue_;
};

}  // namespace

std::vector<Finding> checkOrder(const Platform& platform, std::unique_ptr<TracedDocument> order) {
  TracedDocument& traced = *order;
  OrderCheck check(platform, traced.within());
  std::unique_ptr<XmlDocument> document = std::move(order);
  const std::optional<RunTimeError> failure = readOrder(check.editor(), document);

  std::vector<Finding> findings = check.header();
  // An order without the element of its lines is a finding of its own.
  std::size_t end = check.map().places().size();
  if (failure && failure->number() != errors::objectNotSet().number()) {
    findings.push_back(stoppedReading(check.map(), traced, *failure));
    end = check.map().numberOf(traced.last());
  }
  const auto ignored =
      ignoredElements(check.map(), traced, end, [](const std::string&) { return true; });
  for (const auto& more : {check.lines(), ignored}) {
    findings.insert(findings.end(), more.begin(), more.end());
  }
  return findings;
}

}  // namespace awizo
