#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/fault_list.h"
#include "desk/find_dialog.h"
#include "desk/line_search.h"

namespace awizo {

/// Leads the user to lines, packages and what is wrong: by a text, by a scanned code typed into one
/// of the tables, by the list of faults. What the host calls here are the user's acts, which may be
/// Refused.
class LineFinder {
 public:
  /// Its dialogs are shown on the editor's screen.
  explicit LineFinder(const Editor& editor);

  FindDialog findDialog;
  FaultList faultList;

  /// Faults beside those of the document itself. May be empty.
  std::function<std::vector<DocumentFault>()> moreFaults;

  /// What becomes of a scanned EAN in place of going to its line; returns words for the user. May
  /// be empty.
  std::function<std::string(std::string_view ean)> takeProduct;

  /// Shows these words in place of the current line's until another line is the current one; the
  /// line's own again for empty ones.
  std::function<void(std::string_view words)> say;

  void find();
  void findAgain();
  /// What was being typed has been handed over.
  void showFaults();

  /// A key in one of the tables, before the table has it: the code of a digit or of Enter, 0 for
  /// any other. Returns whether it is one of a scanned code's.
  bool takeKey(std::int16_t code);
  /// Whether Enter is the end of a scanned code now, and nobody else's.
  bool takesEnter() const { return code_.isWhole(); }
  /// The focus has left the table.
  void forgetCode();

 private:
  void goToRow(const std::optional<FoundRow>& found, std::string_view nothing);
  void goToScanned(std::string_view code);
  void tell(std::string_view words) const;

  const Editor& editor_;
  ScannedCode code_;
};

}  // namespace awizo
