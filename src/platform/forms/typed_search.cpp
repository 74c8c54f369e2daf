#include "platform/forms/typed_search.h"

#include <algorithm>

namespace awizo {
namespace {

/// The first row from `from` on, going on from the first of all; blanks before a row's text don't
/// count.
std::optional<int> rowWith(const std::vector<std::string>& rows, std::string_view beginning,
                           int from) {
  const int count = static_cast<int>(rows.size());
  for (int step = 0; step < count; ++step) {
    const int row = (std::max(from, 0) + step) % count;
    std::string_view text = rows[static_cast<std::size_t>(row)];
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.starts_with(beginning)) return row;
  }
  return std::nullopt;
}

}  // namespace

std::optional<int> TypedSearch::add(std::string_view character,
                                    const std::vector<std::string>& rows, int current) {
  if (!typed_.empty()) {
    typed_ += character;
    if (const std::optional<int> row = rowWith(rows, typed_, current)) return row;
  }
  typed_ = character;
  return rowWith(rows, typed_, current + 1);
}

}  // namespace awizo
