#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desk/document_faults.h"
#include "numbers/given_numbers.h"
#include "packagedialog/dlg_szczegoly.h"
#include "session/record/editor.h"

namespace awizo {

/// Offers the firm's next number where a new package is made, as if the user had typed it, and
/// tells of numbers that another document has. It hinders nothing.
class NumberOffer {
 public:
  NumberOffer(GivenNumbers& numbers, const Editor& editor, DlgSzczegoly& dialog)
      : numbers_(numbers), editor_(editor), dialog_(dialog) {}

  /// The dialog has come up before the user. A number that was offered before and not taken is
  /// offered again.
  void opened();
  /// It has gone.
  void closed();
  /// The document was read, saved or sent: its numbers are on record from now on.
  void documentKept();

  /// What is to be told beside the field with the number, as it is now; empty for nothing.
  std::string words();
  /// Packages whose numbers another document has.
  std::vector<DocumentFault> faults();

 private:
  std::string document() const;
  /// Of all rows of packages that are shown.
  std::vector<std::string> numbersInTable() const;
  void offer();

  GivenNumbers& numbers_;
  const Editor& editor_;
  DlgSzczegoly& dialog_;
  std::string offered_;  ///< shown, and not accepted yet; empty for none
  std::string trouble_;  ///< why none could be taken
};

/// "Этот номер уже был 12.10.2026 в документе ТН-5.".
std::string useWords(const NumberUse& use);

}  // namespace awizo
