#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "formats/despatch_advice_elements.h"
#include "platform/xml.h"
#include "session/record/editor.h"

namespace awizo {

/// The despatch advice as the header fields and the tables hold it; none after an error, which a
/// box has shown. Changes no field and no table.
std::unique_ptr<XmlDocument> MakeDesAdv(Editor& editor);

/// A despatch advice without values. Times are "hh:mm", the date is "yyyy-mm-dd"; an optional
/// value that is empty gives no element. Lines and summary stand in it where there are lines.
std::unique_ptr<XmlDocument> CreateDesAdvSkeleton(
    const Xml& xml, std::string_view timeText, std::string_view estimatedTimeText,
    std::string_view orderDateText, std::int16_t lineCount, std::string_view codeByBuyer,
    std::string_view deliveryILN, std::int16_t packageCount);

/// Appends one package to the consignment. Values that make no well-formed element raise error 5.
void AddPackingSequence(const Xml& xml, XmlDocument& document, const PackingSequenceValues& values);

/// Appends one line with its package references to the lines, in the same way.
void AddDesAdvLine(const Xml& xml, XmlDocument& document, const DesAdvLineValues& values);

}  // namespace awizo
