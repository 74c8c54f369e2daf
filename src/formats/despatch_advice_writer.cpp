#include "formats/despatch_advice_writer.h"

#include <exception>
#include <span>
#include <string>
#include <utility>

#include "formats/advice_of_tables.h"
#include "formats/despatch_advice_elements.h"
#include "formats/despatch_advice_parts.h"
#include "formats/despatch_advice_paths.h"
#include "formats/despatch_advice_skeleton.h"
#include "platform/forms/report_errors.h"

namespace awizo {
namespace {

/// Appends one element for each of the parts to the element at the path.
template <class Part>
void appendParts(const Xml& xml, XmlDocument& document, std::string_view path,
                 std::span<const Part> parts, ElementText textOf(const Part&)) {
  ElementBatch batch(xml, document.node().selectSingle(path));
  for (const Part& part : parts) batch.add(textOf(part));
  batch.flush();
}

void appendPackages(const Xml& xml, XmlDocument& document,
                    std::span<const AdvicePackage> packages) {
  appendParts(xml, document, consignmentPath, packages, packingSequenceText);
}

void appendLines(const Xml& xml, XmlDocument& document, std::span<const AdviceLine> lines) {
  appendParts(xml, document, despatchLinesPath, lines, lineText);
}

/// Writes one document, part by part. The step, shown in a failure's title, says how far it came.
class AdviceWriter {
 public:
  AdviceWriter(const Xml& xml, const DespatchAdvice& advice, std::string& step)
      : xml_(xml), advice_(advice), step_(step), document_(CreateDesAdvSkeleton(xml, advice)) {}

  void fillHeader() {
    for (const HeaderElement& element : headerElements) {
      step_ = element.step;
      const std::string& value = advice_.header.*element.value;
      if (value.empty() && element.presence == Presence::required) {
        throw errors::invalidUseOfNull();
      }
      if (stands(element.presence, value)) fill(element.path, value);
    }
  }
  void addPackages() {
    step_ = "9";
    appendPackages(xml_, *document_, advice_.packages);
  }
  void addLines() {
    step_ = "10";
    if (!advice_.lines.empty()) appendLines(xml_, *document_, advice_.lines);
  }
  void fillTotals() {
    if (advice_.lines.empty()) return;
    for (const auto& element : totalElements) fill(element.path, advice_.totals.*element.value);
  }
  std::unique_ptr<XmlDocument> take() { return std::move(document_); }

 private:
  /// Puts a text where the path below the document element leads.
  void fill(std::string_view path, const std::string& text) {
    std::string whole = "/Document-DespatchAdvice/";
    document_->node().selectSingle(whole.append(path)).setText(text);
  }

  const Xml& xml_;
  const DespatchAdvice& advice_;
  std::string& step_;
  std::unique_ptr<XmlDocument> document_;
};

/// A row that can't be read fails only after all that comes before it has been written.
std::unique_ptr<XmlDocument> make(const Editor& editor, std::string& step) {
  DespatchAdvice advice;
  std::exception_ptr failure;
  try {
    readAdvice(editor, advice);
  } catch (...) {
    failure = std::current_exception();
  }
  AdviceWriter writer(editor.platform.xml, advice, step);
  writer.fillHeader();
  writer.addPackages();
  const bool lacksPackages = std::cmp_less(advice.packages.size(), editor.session.IloscPozycjiOpak);
  if (failure && lacksPackages) std::rethrow_exception(failure);
  writer.addLines();
  if (failure) std::rethrow_exception(failure);
  writer.fillTotals();
  return writer.take();
}

}  // namespace

std::unique_ptr<XmlDocument> MakeDesAdv(Editor& editor) {
  std::string step = "0";
  std::unique_ptr<XmlDocument> document;
  reportErrors(
      editor.screen(), [&] { return "Произошла ошибка в MakeDesAdv()" + step; },
      [&] { document = make(editor, step); });
  return document;
}

std::unique_ptr<XmlDocument> xmlOf(const Xml& xml, const DespatchAdvice& advice) {
  std::string step;
  AdviceWriter writer(xml, advice, step);
  writer.fillHeader();
  writer.addPackages();
  writer.addLines();
  writer.fillTotals();
  return writer.take();
}

void AddPackingSequence(const Xml& xml, XmlDocument& document, const AdvicePackage& package) {
  appendPackages(xml, document, {&package, 1});
}

void AddDesAdvLine(const Xml& xml, XmlDocument& document, const AdviceLine& line) {
  appendLines(xml, document, {&line, 1});
}

}  // namespace awizo
