#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/xml.h"

namespace awizo {

/// What one package is written from: XML numbers, texts as they stand. An optional value that is
/// empty gives no element.
struct PackingSequenceValues {
  std::string packageId;
  std::string parentId;
  std::string packageType;
  std::string serialNumber;
  std::string deliveryPlace;
  std::string weight;  ///< kilograms
  std::string height;  ///< metres, like the next two
  std::string length;
  std::string width;
};

/// What one line is written from: XML numbers, texts as they stand, and its package reference
/// string. Tax category and expiry date live in the table only and are not written.
struct DesAdvLineValues {
  std::string lineNumber;
  std::string orderLineNumber;
  std::string ean;
  std::string despatchedQty;
  std::string orderedQty;
  std::string unit;
  std::string description;
  std::string price;
  std::string netAmount;
  std::string taxRate;
  std::string taxCategory;
  std::string expiryDate;
  std::string country;
  std::string customsNumber;
  std::string buyerCode;
  std::string supplierCode;
  std::string packRefs;
};

/// An element as XML text. Its values stand in it as they are, so that markup in a value is markup.
struct ElementText {
  std::string text;
  /// Whether no value can hold markup; the text then can't but be one element.
  bool plain = true;
};

ElementText packingSequenceText(const PackingSequenceValues& values);
ElementText lineText(const DesAdvLineValues& values);

/// Appends elements, given as texts, to one node of a document. Each counts as loaded on its own:
/// one that isn't well-formed raises error 5. Plain ones are gathered and loaded together, since a
/// load costs more than a small element.
class ElementBatch {
 public:
  ElementBatch(const Xml& xml, const XmlNode& target);

  void add(const ElementText& element);
  /// Appends what is still gathered.
  void flush();

 private:
  XmlNode target_;
  std::unique_ptr<XmlDocument> scratch_;
  std::string gathered_;
};

}  // namespace awizo
