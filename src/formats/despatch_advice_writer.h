#pragma once

#include <memory>

#include "formats/despatch_advice.h"
#include "platform/xml.h"
#include "session/record/editor.h"

namespace awizo {

/// The despatch advice as the header fields and the tables hold it; none after an error, which a
/// box has shown. Changes no field and no table.
std::unique_ptr<XmlDocument> MakeDesAdv(Editor& editor);

/// The document of a despatch advice. Error 94 without a delivery date, error 5 for a value that
/// XML can't hold or that makes no well-formed element.
std::unique_ptr<XmlDocument> xmlOf(const Xml& xml, const DespatchAdvice& advice);

/// Appends one package to the consignment. Values that make no well-formed element raise error 5.
void AddPackingSequence(const Xml& xml, XmlDocument& document, const AdvicePackage& package);

/// Appends one line with its package references to the lines, in the same way.
void AddDesAdvLine(const Xml& xml, XmlDocument& document, const AdviceLine& line);

}  // namespace awizo
