#pragma once

#include <memory>
#include <string>

#include "formats/despatch_advice.h"
#include "platform/xml.h"

namespace awizo {

/// An element as XML text. Its values aren't escaped, so that markup in a value is markup.
struct ElementText {
  std::string text;
  /// Whether no value can hold markup; the text then can't but be one element.
  bool plain = true;
};

ElementText packingSequenceText(const AdvicePackage& package);
ElementText lineText(const AdviceLine& line);

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
