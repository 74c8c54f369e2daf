#include "formats/despatch_advice_parts.h"

#include <utility>

#include "formats/despatch_advice_elements.h"
#include "tables/package_references.h"

namespace awizo {
namespace {

/// Writes elements one after another and in one another, in the order of the calls.
class ElementWriter {
 public:
  void open(std::string_view name) { element_.text.append("<").append(name).append(">"); }
  void close(std::string_view name) { element_.text.append("</").append(name).append(">"); }

  void write(std::string_view name, std::string_view value) {
    open(name);
    insert(value, value);
    close(name);
  }

  /// The value is text, whatever it holds but the end of the section.
  void writeProtected(std::string_view name, std::string_view value) {
    open(name);
    element_.text += "<![CDATA[";
    insert(value, value);
    element_.text += "]]>";
    close(name);
  }

  /// A text made of these values, which decide whether it is plain.
  template <class... Values>
  void insert(std::string_view text, const Values&... values) {
    element_.text += text;
    if ((isMarkup(values) || ...)) element_.plain = false;
  }

  ElementText take() { return std::move(element_); }

 private:
  static bool isMarkup(std::string_view value) { return value.find_first_of("<&") != value.npos; }

  ElementText element_;
};

}  // namespace

ElementText packingSequenceText(const AdvicePackage& package) {
  ElementWriter writer;
  writer.open("Packing-Sequence");
  for (const auto& element : packageElements) {
    const std::string& value = package.*element.value;
    if (stands(element.presence, value)) writer.write(element.path, value);
  }
  writer.close("Packing-Sequence");
  return writer.take();
}

ElementText lineText(const AdviceLine& line) {
  ElementWriter writer;
  writer.open("Line");
  writer.open("Line-Item");
  for (const auto& element : lineElements) {
    const std::string& value = line.*element.value;
    if (!stands(element.presence, value)) continue;
    if (element.value == &AdviceLine::description) {
      writer.writeProtected(element.path, value);
    } else {
      writer.write(element.path, value);
    }
  }
  writer.close("Line-Item");
  for (const PackageReference& package : line.packages) {
    const std::string_view quantity = package.quantity ? *package.quantity : std::string_view();
    writer.insert(packageReferenceXml(package), package.packageId, quantity);
  }
  writer.close("Line");
  return writer.take();
}

ElementBatch::ElementBatch(const Xml& xml, const XmlNode& target)
    : target_(target), scratch_(xml.createDocument()) {}

void ElementBatch::add(const ElementText& element) {
  if (element.plain) {
    gathered_ += element.text;
    return;
  }
  flush();
  scratch_->loadText(element.text);
  target_.append(scratch_->root());
}

void ElementBatch::flush() {
  if (gathered_.empty()) return;
  scratch_->loadText("<Batch>" + gathered_ + "</Batch>");
  gathered_.clear();
  const XmlNode batch = scratch_->root();
  if (!batch) throw errors::invalidProcedureCall();
  for (const XmlNode& element : batch.children()) target_.append(element);
}

}  // namespace awizo
