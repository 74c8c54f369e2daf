#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/xml.h"
#include "session/record/editor.h"

namespace awizo {

enum class Precedence {
  catalogueIsAppended,  ///< the catalogue's value is appended, whatever the order has
  orderWins,            ///< a value that the order has stays
};

/// One value that an order takes from the catalogue. Paths start below the element `Line`.
struct CopiedValue {
  std::string_view cataloguePath;
  std::string_view orderPath;   ///< where the order may have it already
  std::string_view newElement;  ///< name of the element that `Line-Item` gets
  Precedence precedence;
};

/// Completes the lines of an order, in place, by what the product catalogue says of their EANs,
/// compared as numbers; of several catalogue lines the first counts. Returns the order, or none
/// after an error, which a box has shown; what was completed before stays.
XmlDocument* ProductCatalogToOrder(Work& work, XmlDocument& catalogue, XmlDocument& order);

/// Copies one value of a catalogue line into the line `lines[index]` of the order. `orderLine` is
/// where the order's present value is read: the same line, or a copy of it.
void CopyCatalogueValue(XmlDocument& order, const std::vector<XmlNode>& lines,
                        const XmlNode& orderLine, const XmlNode& catalogueLine, std::size_t index,
                        const CopiedValue& value);

/// Shows name and address of the delivery place of this ILN; what the catalogue of places doesn't
/// know is empty. Without a catalogue only the name is emptied.
void CompleteFromLocalizationCatalog(Editor& editor, std::string_view iln);

}  // namespace awizo
