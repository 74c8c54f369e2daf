#pragma once

#include <cstddef>
#include <deque>
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

  /// What a user without a range is told where a package first wants a number, once; empty where
  /// nobody is told.
  std::string noRangeWords;

  /// The dialog has come up before the user. A number that was offered before and not taken is
  /// offered again.
  void opened();
  /// It has gone.
  void closed();
  /// Whether the user is told now that there is no range, which is to be entered.
  bool asksForRange() const { return asksForRange_; }
  /// The user has come back from where the range is entered.
  void rangeShown();
  /// So many packages will be added one after the other: their numbers are taken in one step.
  void prepare(std::size_t count);
  /// Whether there are numbers for so many packages.
  std::string wordsFor(std::size_t count);
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
  bool isOffered(std::string_view number) const {
    return !waiting_.empty() && waiting_.front() == number;
  }
  /// Numbers that aren't of the stored range any more wait no longer.
  void dropOthers();
  /// So many numbers wait to be accepted, fewer where there are no more.
  void takeFor(std::size_t count);
  void offer();
  bool hasRange() const;

  GivenNumbers& numbers_;
  const Editor& editor_;
  DlgSzczegoly& dialog_;
  /// Taken, and not accepted yet; the first is offered next.
  std::deque<std::string> waiting_;
  std::string trouble_;  ///< why none could be taken
  bool asksForRange_ = false;
  bool hasAsked_ = false;  ///< the user has been told
};

/// "Этот номер уже был 12.10.2026 в документе ТН-5.".
std::string useWords(const NumberUse& use);

}  // namespace awizo
