#pragma once

#include <cstdint>
#include <string>

#include "formats/line_source.h"
#include "session/record/editor.h"

namespace awizo {

/// Puts an element `Line` of a despatch advice into a row of grdPozycje.
void readDespatchLine(Editor& editor, const XmlNode& line, std::int16_t row);

/// Where the columns come from; what is missing reads as the empty text.
const LineSources& despatchLineSources();

/// The reference string of a line that was read. The references are looked for where the writer
/// doesn't put them, so it is empty for our own documents.
std::string ReadLinePackRefs(const Work& work, const XmlNode& line);

}  // namespace awizo
