#pragma once

#include <cstdint>
#include <string>

#include "session/record/editor.h"

namespace awizo {

/// Puts an element `Line` of a despatch advice into a row of grdPozycje.
void readDespatchLine(Editor& editor, const XmlNode& line, std::int16_t row);

/// The reference string of a line that was read. The references are looked for where the writer
/// doesn't put them, so it is empty for our own documents.
std::string ReadLinePackRefs(const Editor& editor, const XmlNode& line);

}  // namespace awizo
