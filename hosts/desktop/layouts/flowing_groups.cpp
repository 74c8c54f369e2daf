#include "hosts/desktop/layouts/flowing_groups.h"

#include <QWidget>
#include <algorithm>

namespace awizo::desktop {
namespace {

constexpr int betweenLines = 6;

int stretchOf(const QLayoutItem& item) {
  return item.widget() == nullptr ? 1 : item.widget()->sizePolicy().horizontalStretch();
}

int heightOf(const QLayoutItem& item, int width) {
  return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

}  // namespace

void FlowingGroups::addGroup(QWidget* group, int stretch) {
  QSizePolicy policy = group->sizePolicy();
  policy.setHorizontalStretch(stretch);
  group->setSizePolicy(policy);
  addWidget(group);
}

void FlowingGroups::share(int rest, Line& line) const {
  int stretches = 0;
  for (std::size_t i = 0; i < line.widths.size(); ++i) {
    stretches += stretchOf(*items()[line.first + i]);
  }
  for (std::size_t i = 0; i < line.widths.size(); ++i) {
    const QLayoutItem& item = *items()[line.first + i];
    const int stretch = stretchOf(item);
    // What rounding leaves is the last one's.
    const int more = stretches == 0 ? 0 : rest * stretch / stretches;
    rest -= more;
    stretches -= stretch;
    line.widths[i] += more;
    line.height = std::max(line.height, heightOf(item, line.widths[i]));
  }
}

std::vector<FlowingGroups::Line> FlowingGroups::linesOf(int width) const {
  std::vector<Line> lines;
  int rest = 0;
  for (std::size_t i = 0; i < items().size(); ++i) {
    const int least = std::min(items()[i]->minimumSize().width(), width);
    if (lines.empty() || least + spacing() > rest) {
      if (!lines.empty()) share(rest, lines.back());
      lines.push_back({i});
      rest = width - least;
    } else {
      rest -= spacing() + least;
    }
    lines.back().widths.push_back(least);
  }
  if (!lines.empty()) share(rest, lines.back());
  return lines;
}

int FlowingGroups::heightForWidth(int width) const {
  int height = 0;
  for (const Line& line : linesOf(width)) {
    height += line.height + (line.first == 0 ? 0 : betweenLines);
  }
  return height;
}

void FlowingGroups::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  int y = area.top();
  for (const Line& line : linesOf(area.width())) {
    int x = area.left();
    for (std::size_t i = 0; i < line.widths.size(); ++i) {
      items()[line.first + i]->setGeometry({x, y, line.widths[i], line.height});
      x += line.widths[i] + spacing();
    }
    y += line.height + betweenLines;
  }
}

}  // namespace awizo::desktop
