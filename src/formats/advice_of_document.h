#pragma once

#include <vector>

#include "formats/despatch_advice.h"
#include "platform/xml.h"

namespace awizo {

/// The elements from which the parts of an advice were read, in their order.
struct AdviceNodes {
  XmlNode consignment;  ///< empty where no package stands for the consignment
  std::vector<XmlNode> packages;
  std::vector<XmlNode> lines;
};

/// The despatch advice that a document holds, whoever wrote it: every package, line and reference
/// with its values as written, without the white space around them. Of repeated elements it takes
/// the first that isn't empty; what is missing is empty.
DespatchAdvice adviceOf(XmlDocument& document);
DespatchAdvice adviceOf(XmlDocument& document, AdviceNodes& nodes);

}  // namespace awizo
