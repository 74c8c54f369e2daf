#pragma once

#include <vector>

#include "hosts/desktop/layouts/wrapping.h"

namespace awizo::desktop {

/// Groups side by side, as many in a line as have room for what they need at least; those of one
/// line share the rest of its width by their stretch.
class FlowingGroups : public ListLayout {
 public:
  using ListLayout::ListLayout;

  void addGroup(QWidget* group, int stretch);
  int heightForWidth(int width) const override;
  void setGeometry(const QRect& area) override;

 private:
  /// Groups that are side by side, from `first` on.
  struct Line {
    std::size_t first = 0;
    std::vector<int> widths = {};
    int height = 0;
  };

  std::vector<Line> linesOf(int width) const;
  void share(int rest, Line& line) const;
};

}  // namespace awizo::desktop
