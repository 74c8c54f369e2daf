// The current cell of a table, its marked range, what is scrolled into view, and what a user does
// to them.

#include <algorithm>
#include <numeric>

#include "platform/forms/form.h"
#include "platform/forms/keys.h"
#include "platform/forms/table.h"
#include "platform/run_time_error.h"

namespace awizo {

void Table::setRow(int row) {
  requireRow(row);
  if (row != row_) moveTo({row, column_}, Scrolling::none);
}

void Table::setColumn(int column) {
  requireColumn(column);
  if (column != column_) moveTo({row_, column}, Scrolling::none);
}

void Table::setRowSel(int row) {
  requireRow(row);
  markTo({row, columnSel_});
}

void Table::setColumnSel(int column) {
  requireColumn(column);
  markTo({rowSel_, column});
}

void Table::markTo(Corner corner) {
  if (corner == Corner{rowSel_, columnSel_}) return;
  rowSel_ = corner.row;
  columnSel_ = corner.column;
  changed(Aspect::selection);
  raise(onSelectionChange);
}

void Table::moveTo(Corner corner, Scrolling scrolling) {
  const bool moved = corner != Corner{row_, column_};
  if (moved) raise(onLeaveCell);
  // The event procedure may have taken rows away.
  if (!hasCell(corner)) return;
  const bool marked = corner != Corner{rowSel_, columnSel_};
  row_ = rowSel_ = corner.row;
  column_ = columnSel_ = corner.column;
  if (moved || marked) changed(Aspect::selection);
  if (scrolling == Scrolling::intoView) showRow(corner.row);
  if (moved || marked) raise(onSelectionChange);
}

void Table::setTopRow(int row) {
  if (row < fixedRows_ || row >= rows()) throw errors::invalidRow();
  if (row == topRow_) return;
  topRow_ = row;
  changed(Aspect::scroll);
  raise(onScroll);
}

void Table::setViewHeight(int height) {
  if (viewHeight_ == height) return;
  viewHeight_ = height;
  if (ActObserver* observer = form().screen().actObserver) observer->viewHeightSet(*this, height);
}

/// The height of the rows from the first to before the second.
int Table::heightOf(int from, int to) const {
  int height = 0;
  for (int row = from; row < to; ++row) height += line(row).height;
  return height;
}

int Table::topRowShowing(int row) const {
  requireRow(row);
  if (row < fixedRows_) return topRow_;
  int top = std::min(topRow_, row);
  const int room = viewHeight_ - heightOf(0, fixedRows_);
  int height = heightOf(top, row + 1);
  while (top < row && height > room) height -= line(top++).height;
  return top;
}

void Table::showRow(int row) { setTopRow(topRowShowing(row)); }

int Table::cellLeft() {
  showRow(row_);
  return std::accumulate(widths_.begin(), widths_.begin() + column_, 0);
}

int Table::cellTop() {
  showRow(row_);
  if (row_ < fixedRows_) return heightOf(0, row_);
  return heightOf(0, fixedRows_) + heightOf(topRow_, row_);
}

void Table::requireClickable(int row, int column) const {
  if (!hasCell({row, column})) throw Refused(name() + " has no such cell");
  if (row < fixedRows_) throw Refused("a heading row of " + name() + " can't be clicked");
  if (columnWidth(column) == 0) throw Refused("the column isn't shown in " + name());
}

/// The mouse goes down on a cell, which becomes the current one.
void Table::press(Corner corner) {
  raise(onMouseDown);
  if (hasCell(corner)) moveTo(corner, Scrolling::intoView);
}

void Table::userCell(int row, int column) {
  requireUser();
  requireClickable(row, column);
  const Acting clicking = acting(ActKind::clickCell, {}, {row, column});
  if (!takeUserFocus()) return;
  press({row, column});
  raise(onMouseUp);
  if (takesInput()) raise(onClick);
}

void Table::userRow(int row) {
  const bool isShown = hasCell({row, column_}) && columnWidth(column_) > 0;
  userCell(row, isShown ? column_ : shownColumn(0, 1));
}

void Table::userDoubleClick() {
  requireUser();
  requireClickable(row_, column_);
  const Acting clicking = acting(ActKind::doubleClick);
  if (!takeUserFocus()) return;
  press({row_, column_});
  raise(onMouseUp);
  if (takesInput()) raise(onClick);
  if (takesInput()) raise(onDoubleClick);
}

void Table::userSelect(int row, int column, int rowSel, int columnSel) {
  requireUser();
  requireClickable(row, column);
  requireClickable(rowSel, columnSel);
  const Acting marking = acting(ActKind::selectCells, {}, {row, column, rowSel, columnSel});
  if (!takeUserFocus()) return;
  press({row, column});
  if (takesInput() && hasCell({rowSel, columnSel})) {
    markTo({rowSel, columnSel});
    showRow(rowSel);
  }
  raise(onMouseUp);
}

void Table::userScroll(int topRow) {
  requireUser();
  if (topRow < fixedRows_ || topRow >= rows()) throw Refused(name() + " has no such row");
  const Acting scrolling = acting(ActKind::scroll, {}, {topRow});
  setTopRow(topRow);
}

void Table::pressKey(std::int16_t code, bool shift) {
  if (!takeUserKey(code, shift)) return;
  const auto stillHere = [this] { return hasFocus() && takesInput(); };
  if (onKeyDown) raise([&] { onKeyDown(code, shift); });
  if (moves(code) && stillHere()) {
    if (shift) {
      const Corner target = keyTarget({rowSel_, columnSel_}, code);
      markTo(target);
      showRow(target.row);
    } else {
      moveTo(keyTarget({row_, column_}, code), Scrolling::intoView);
    }
  }
  std::int16_t character = keys::characterOf(code, shift);
  if (character != 0 && onKeyPress && stillHere()) raise([&] { onKeyPress(character); });
  // Where the focus has gone elsewhere, the key comes up there.
  if (onKeyUp && stillHere()) raise([&] { onKeyUp(code, shift); });
}

bool Table::moves(std::int16_t code) const { return code >= keys::pageUp && code <= keys::down; }

/// The next column with a width, from `from` in steps of `step`; -1 if there is none.
int Table::shownColumn(int from, int step) const {
  for (int column = from; column >= 0 && column < columns_; column += step) {
    if (widths_[static_cast<std::size_t>(column)] > 0) return column;
  }
  return -1;
}

/// The row that lies one page further: as many rows as there is room for, at least one.
int Table::pageFrom(int row, int direction) const {
  int room = viewHeight_ - heightOf(0, fixedRows_) - line(row).height;
  int target = row;
  while (target + direction >= fixedRows_ && target + direction < rows()) {
    room -= line(target + direction).height;
    if (room < 0 && target != row) break;
    target += direction;
  }
  return target;
}

Table::Corner Table::keyTarget(Corner from, std::int16_t code) const {
  int row = from.row;
  int column = -1;
  if (code == keys::up) --row;
  if (code == keys::down) ++row;
  if (code == keys::pageUp) row = pageFrom(row, -1);
  if (code == keys::pageDown) row = pageFrom(row, 1);
  if (code == keys::left) column = shownColumn(from.column - 1, -1);
  if (code == keys::right) column = shownColumn(from.column + 1, 1);
  if (code == keys::home) column = shownColumn(0, 1);
  if (code == keys::end) column = shownColumn(columns_ - 1, -1);
  // The keys never enter a heading row.
  return {std::clamp(row, fixedRows_, rows() - 1), column < 0 ? from.column : column};
}

}  // namespace awizo
