#pragma once

#include <string>

#include "platform/program_version.h"
#include "session/record/editor.h"

namespace awizo {

/// "VIRDDesAdv 1.0.0.0".
std::string versionText(const ProgramVersion& version);

/// Makes the form ready before anything is read: lists, tables, headings, the locale's separator,
/// the version. An error is shown to the user and ends the program.
void setUpControl(Editor& editor);

}  // namespace awizo
