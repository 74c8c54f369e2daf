#include "hosts/protocol/changes/row_watch.h"

#include <cstddef>
#include <cstdint>

namespace awizo::protocol {

void RowWatch::changed(int row) {
  const auto place = static_cast<std::size_t>(row);
  if (place < held_.size()) held_[place] = false;
}

void RowWatch::show(RowRange range) {
  shown_ = range;
  for (auto row = static_cast<std::size_t>(fixed_); row < held_.size(); ++row) {
    if (!shown_.holds(static_cast<int>(row))) held_[row] = false;
  }
}

std::vector<int> RowWatch::take(int count, int fixed) {
  held_.resize(static_cast<std::size_t>(count), false);
  fixed_ = fixed;
  std::vector<int> rows;
  const auto tell = [&](int from, int to) {
    for (int row = from; row < to; ++row) {
      if (held_[static_cast<std::size_t>(row)]) continue;
      held_[static_cast<std::size_t>(row)] = true;
      rows.push_back(row);
    }
  };
  tell(0, std::min(fixed, count));
  const std::int64_t end = std::int64_t{shown_.first} + shown_.count;
  tell(std::max(shown_.first, fixed), static_cast<int>(std::min<std::int64_t>(end, count)));
  return rows;
}

}  // namespace awizo::protocol
