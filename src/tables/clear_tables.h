#pragma once

#include "session/record/editor.h"

namespace awizo {

// A table without data keeps one empty row under its headings.

/// Leaves the lines' table with one empty row, which becomes the current one and white from column
/// 1 on; no line is counted any more.
void ClearGrdPozycje(Editor& editor);

/// Leaves the packages' table with one empty row, the current one; no package is counted any more.
/// The serials issued so far stay issued.
void ClearGrdOpakowania(Editor& editor);

/// Leaves the totals' table with one empty row.
void ClearGrdSuma(Editor& editor);

}  // namespace awizo
