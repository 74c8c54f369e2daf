#pragma once

#include "formats/file_dialog.h"
#include "session/record/editor.h"

namespace awizo {

/// Finds out whether the whole despatched quantity of every line lies in packages, by the cells'
/// texts, and there is a package at all. Without lines AllPacked keeps its value.
void CheckAllPacked(Editor& editor);

/// Asks whether a document that is packed only in part shall go out all the same.
bool wantsPartlyPacked(Work& work);

/// Saves the document to a file that the user names. An error shows a box; an old file of that
/// name is then as it was.
void btnZapisz_Click(Editor& editor, DlgWczytajZapisz& dialog);

}  // namespace awizo
