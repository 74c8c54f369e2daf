#pragma once

#include <string_view>

#include "platform/forms/screen_face.h"
#include "platform/run_time_error.h"

namespace awizo {

// Questions and messages of a host, in addition to the control's.

/// Shown where there is no local folder yet; the choice of one follows.
MessageBox folderRequest();
/// Asked before the first exchange with this place; Yes trusts it.
MessageBox newAddressQuestion(std::string_view origin);
/// Shown in place of a session that a launch file should begin. `why`: a sentence.
MessageBox launchFileRefusal(std::string_view file, std::string_view why);
/// No paper came of it. `what`: a file, or words.
MessageBox paperRefusal(std::string_view what, const RunTimeError& error);
/// There is nothing to print on.
MessageBox noPrinter();
/// The printer didn't take the papers.
MessageBox printRefusal();
/// The file that the user brought isn't in the folder.
MessageBox fileRefusal(std::string_view name, const RunTimeError& error);
/// What a disk refuses, in the user's language; else the error's own description.
std::string diskRefusal(const RunTimeError& error);
// A record of earlier work that can't be removed, or not be read.
MessageBox recordThatStays(const RunTimeError& error);
MessageBox unreadableRecord(const RunTimeError& error);
/// `version`: the text of the form's version label.
MessageBox aboutBox(std::string_view version);

}  // namespace awizo
