#pragma once

#include <cstdint>

#include "formats/line_source.h"
#include "platform/xml.h"
#include "session/record/editor.h"

namespace awizo {

/// Fills one row of grdPozycje from an element `Line` of an order, column by column; from none,
/// every value is missing. Error 6 beyond the last row that the cell index reaches.
void readOrderLine(Editor& editor, const XmlNode& line, std::int16_t row);

/// Where the columns come from.
const LineSources& orderLineSources();

}  // namespace awizo
