#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/file_dialog.h"
#include "platform/run_time_error.h"
#include "session/record/editor.h"

namespace awizo {

/// Lets the user pick a file and puts the despatch advice in it into the form. What the reader
/// takes, and what it forgets, differs from what the writer writes.
void btnWczytaj_Click(Editor& editor, DlgWczytajZapisz& dialog);

enum class ReadingOutcome {
  noXml,
  notDespatchAdvice,
  foreignSeller,
  foreignBuyer,
  failed,      ///< an error ended the reading
  incomplete,  ///< something required was missing
  complete,
};

struct ReadingResult {
  ReadingOutcome outcome = ReadingOutcome::complete;
  std::vector<std::string> missing;        ///< paths of what was required and not there
  std::optional<RunTimeError> error = {};  ///< what ended the reading, where it failed
};

/// Empties the form, loads the file by its classic path into `document` and puts it into the form,
/// as far as it goes. Shows the user what was wrong.
ReadingResult readDespatchAdvice(Editor& editor, XmlDocument& document, std::string_view path);

/// Loads a file by its classic path; one that doesn't parse is read again as text in the machine's
/// single-byte encoding under a declaration of UTF-8. Answers whether the document parsed.
bool LoadDocument(Work& work, XmlDocument& document, std::string_view path);

/// Whether the document is a despatch advice.
bool IsDespatchAdvice(XmlDocument& document);

}  // namespace awizo
