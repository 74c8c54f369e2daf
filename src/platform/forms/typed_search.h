#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace awizo {

/// Finds a row of a list by the beginning of its text, typed character by character. No clock ends
/// what is typed: a character that no row goes on with begins again, after the current row, so that
/// one letter over and over goes through all rows that begin with it.
class TypedSearch {
 public:
  /// `rows` and `character` in one case, so that they can be compared. Returns the row found.
  std::optional<int> add(std::string_view character, const std::vector<std::string>& rows,
                         int current);
  void forget() { typed_.clear(); }

 private:
  std::string typed_;
};

}  // namespace awizo
