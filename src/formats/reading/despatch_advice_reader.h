#pragma once

#include <string_view>

#include "formats/file_dialog.h"
#include "session/record/editor.h"

namespace awizo {

/// Lets the user pick a file and puts the despatch advice in it into the form. What the reader
/// takes, and what it forgets, differs from what the writer writes.
void btnWczytaj_Click(Editor& editor, DlgWczytajZapisz& dialog);

/// Loads a file by its classic path; one that doesn't parse is read again as text in the machine's
/// single-byte encoding under a declaration of UTF-8. Answers whether the document parsed.
bool LoadDocument(Editor& editor, XmlDocument& document, std::string_view path);

/// Whether the document is a despatch advice.
bool IsDespatchAdvice(XmlDocument& document);

}  // namespace awizo
