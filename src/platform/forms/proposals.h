#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/drop_down_list.h"

namespace awizo {

/// Makes texts that differ only in case equal; line feeds stay.
using CaseFolding = std::function<std::string(std::string_view text)>;

/// The rows of a list that fit what is typed. A row fits when it holds every word that is typed, in
/// any case and anywhere; those that begin with what is typed come first. Long lists are searched
/// at every key, so rows are folded once, and only as many are proposed as a user would read.
class Proposals {
 public:
  static constexpr std::size_t most = 100;

  /// The list outlives it.
  Proposals(const DropDownList& list, CaseFolding fold) : list_(list), fold_(std::move(fold)) {}

  /// The list's rows are others now; nothing is proposed until the next call of propose().
  void rowsChanged();
  /// Folds the rows now, which takes its time for a long list, and not at the next key.
  void prepare();
  void propose(std::string_view typed);
  /// The proposed rows of the list, best first.
  const std::vector<int>& rows() const { return rows_; }

 private:
  std::string_view foldedRow(std::size_t row) const;

  const DropDownList& list_;
  CaseFolding fold_;
  std::string folded_;             ///< all rows in one, each with a line feed after it
  std::vector<std::size_t> ends_;  ///< where each row ends in it
  std::vector<int> rows_;
  bool stale_ = true;
};

}  // namespace awizo
