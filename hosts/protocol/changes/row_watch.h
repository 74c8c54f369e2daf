#pragma once

#include <algorithm>
#include <vector>

namespace awizo::protocol {

/// The rows of a list or table that a client shows. One that says nothing shows the first hundred.
struct RowRange {
  int first = 0;
  int count = 100;

  bool holds(int row) const { return row >= first && row - first < count; }
};

/// Which rows must be sent to a client: those that it shows and doesn't hold as they are now. Rows
/// that it no longer shows it may forget, so they are sent again when it shows them again.
class RowWatch {
 public:
  /// One row has changed.
  void changed(int row);
  /// Rows came, went or changed; any of them may be another now.
  void allChanged() { held_.clear(); }
  void show(RowRange range);
  /// The rows to send, ascending; from then on the client holds them. The first `fixed` of the
  /// `count` rows are shown always.
  std::vector<int> take(int count, int fixed);

 private:
  RowRange shown_;
  int fixed_ = 0;
  std::vector<bool> held_;
};

}  // namespace awizo::protocol
