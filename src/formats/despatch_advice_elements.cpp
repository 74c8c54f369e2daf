#include "formats/despatch_advice_elements.h"

#include "tables/package_references.h"

namespace awizo {
namespace {

/// Writes the children of one element, in the order of the calls.
class ElementWriter {
 public:
  void open(std::string_view name) { element_.text.append("<").append(name).append(">"); }
  void close(std::string_view name) { element_.text.append("</").append(name).append(">"); }

  void always(std::string_view name, std::string_view value) {
    open(name);
    insert(value, value);
    close(name);
  }

  void unlessEmpty(std::string_view name, std::string_view value) {
    if (!value.empty()) always(name, value);
  }

  /// A text made from `source`, which decides whether it is plain.
  void insert(std::string_view text, std::string_view source) {
    element_.text += text;
    if (source.find_first_of("<&") != source.npos) element_.plain = false;
  }

  ElementText take() { return std::move(element_); }

 private:
  ElementText element_;
};

void writeDescription(ElementWriter& writer, std::string_view description) {
  if (description.empty()) return;
  writer.open("ItemDescription");
  writer.insert("<![CDATA[", "");
  writer.insert(description, description);
  writer.insert("]]>", "");
  writer.close("ItemDescription");
}

}  // namespace

ElementText packingSequenceText(const PackingSequenceValues& values) {
  ElementWriter writer;
  writer.open("Packing-Sequence");
  writer.always("PackageId", values.packageId);
  writer.unlessEmpty("ParentId", values.parentId);
  writer.unlessEmpty("PackageType", values.packageType);
  writer.unlessEmpty("SerialNumber", values.serialNumber);
  writer.unlessEmpty("DeliveryPlace", values.deliveryPlace);
  writer.unlessEmpty("PackageWeight", values.weight);
  writer.unlessEmpty("PackageHeight", values.height);
  writer.unlessEmpty("PackageLength", values.length);
  writer.unlessEmpty("PackageWidth", values.width);
  writer.close("Packing-Sequence");
  return writer.take();
}

ElementText lineText(const DesAdvLineValues& values) {
  ElementWriter writer;
  writer.open("Line");
  writer.open("Line-Item");
  writer.always("LineNumber", values.lineNumber);
  writer.unlessEmpty("OrderLineNumber", values.orderLineNumber);
  writer.always("EAN", values.ean);
  writer.unlessEmpty("BuyerItemCode", values.buyerCode);
  writer.unlessEmpty("SupplierItemCode", values.supplierCode);
  writer.always("DespatchedQuantity", values.despatchedQty);
  writer.unlessEmpty("OrderedQuantity", values.orderedQty);
  writer.unlessEmpty("UnitOfMeasure", values.unit);
  writeDescription(writer, values.description);
  writer.unlessEmpty("UnitNetPrice", values.price);
  writer.unlessEmpty("NetAmount", values.netAmount);
  if (values.taxRate != "-1") writer.unlessEmpty("TaxRate", values.taxRate);
  writer.unlessEmpty("CountryOfOriginCode", values.country);
  writer.unlessEmpty("CustomsDeclarationNumber", values.customsNumber);
  writer.close("Line-Item");
  if (!values.packRefs.empty()) {
    writer.insert(PackageRefsToXml(values.packRefs), values.packRefs);
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
