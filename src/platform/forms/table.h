#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/text_field.h"

namespace awizo {

/// A colour, red, green and blue.
struct Colour {
  std::uint8_t red = 255;
  std::uint8_t green = 255;
  std::uint8_t blue = 255;
  bool operator==(const Colour&) const = default;
};

inline constexpr Colour white{255, 255, 255};
inline constexpr Colour pink{255, 192, 192};

/// How a cell looks.
struct CellLook {
  Colour background = white;
  Alignment alignment = Alignment::left;
  bool bold = false;
  bool wrap = false;
  bool operator==(const CellLook&) const = default;
};

/// A table of text cells with heading rows, a current cell and a marked range. Row, column and
/// cell numbers start at 0; sizes are in twips. A cell's flat index is row x columns + column.
class Table : public Control {
 public:
  static constexpr int normalRowHeight = 240;
  static constexpr int normalColumnWidth = 960;

  Table(Form& form, std::string name, int columns, int rows = 2, int fixedRows = 1);

  int rows() const { return static_cast<int>(lines_.size()); }
  int columns() const { return columns_; }
  int fixedRows() const { return fixedRows_; }
  /// Growing adds empty rows; shrinking drops rows at the end and holds the current row within.
  void setRows(int rows);
  void setFixedRows(int fixedRows);

  // Cells by flat index; out of range is error 381.
  const std::string& cell(int index) const;
  void setCell(int index, std::string_view text);
  // Cells by row and column; the same error.
  const std::string& cell(int row, int column) const;
  void setCell(int row, int column, std::string_view text);
  const CellLook& look(int row, int column) const;
  void setLook(int row, int column, const CellLook& look);
  void setBackground(int row, int column, Colour colour);
  void setAlignment(int row, int column, Alignment alignment);
  /// All cells of the column that are there now, headings included, and of rows that come.
  void setColumnAlignment(int column, Alignment alignment);
  Alignment columnAlignment(int column) const;

  /// Appends a row whose column 0 holds the text.
  void addItem(std::string_view text);
  /// Removes a row with its colours; the current row's number stays unless it lies past the end.
  /// A heading row is error 30000, the last other row 30015, a row that isn't there 30009.
  void removeItem(int row);
  /// Empties texts and looks of all cells, headings too; counts and sizes stay.
  void clear();

  int row() const { return row_; }
  int column() const { return column_; }
  /// By code; each is a change of its own: leave-cell first, then the new cell, then the selection
  /// change. Nothing is scrolled. Out of range is error 30009 or 30010. Equal is no change.
  void setRow(int row);
  void setColumn(int column);
  /// The current cell's text.
  const std::string& text() const { return cell(row_, column_); }
  void setText(std::string_view text) { setCell(row_, column_, text); }

  int rowHeight(int row) const;
  void setRowHeight(int row, int height);
  int columnWidth(int column) const;
  void setColumnWidth(int column, int width);

  bool redraw() const { return redraw_; }
  void setRedraw(bool redraw);
  /// Paints anew; no state changes.
  void refresh();

  /// The other corner of the marked range.
  int rowSel() const { return rowSel_; }
  int columnSel() const { return columnSel_; }
  void setRowSel(int row);
  void setColumnSel(int column);
  /// A table that marks whole rows.
  bool selectsRows = false;

  /// The first data row shown.
  int topRow() const { return topRow_; }
  /// Scrolls by code or user; raises Scroll if it changes.
  void setTopRow(int row);
  /// What a host shows of the table; decides what is scrolled into view.
  void setViewSize(int width, int height);

  // The current cell's place within the table; reading it scrolls the cell into view.
  int cellLeft();
  int cellTop();
  int cellWidth();
  int cellHeight();

  Event onClick;
  Event onDoubleClick;
  Event onLeaveCell;
  Event onSelectionChange;
  Event onScroll;
  Event onMouseDown;
  Event onMouseUp;
  std::function<void(std::int16_t code, bool shift)> onKeyDown;
  std::function<void(std::int16_t code, bool shift)> onKeyUp;
  std::function<void(std::int16_t& code)> onKeyPress;

  /// The user clicks a cell: the focus first, then the cell changes, is scrolled into view, then
  /// Click. Refused: a heading row, a column of no width, a cell that isn't there.
  void userCell(int row, int column);
  /// The user double-clicks the current cell.
  void userDoubleClick();
  /// A key in the table: KeyDown, then the move of arrows, Home, End and page keys over the shown
  /// columns, then KeyPress for keys that stand for a character, then KeyUp.
  void userKey(std::int16_t code, bool shift = false);
  /// The user marks a range with the mouse held down, from the first cell to the second.
  void userSelect(int row, int column, int rowSel, int columnSel);
  void userScroll(int topRow);

 private:
  struct Line {
    std::vector<std::string> texts;
    std::vector<CellLook> looks;
    int height = normalRowHeight;
  };

  void requireCell(int row, int column) const;
  void moveTo(int row, int column);
  void showCurrentCell();
  Line makeLine() const;

  int columns_;
  int fixedRows_;
  std::vector<Line> lines_;
  std::vector<int> widths_;
  std::vector<Alignment> columnAlignments_;
  int row_ = 0;
  int column_ = 0;
  int rowSel_ = 0;
  int columnSel_ = 0;
  int topRow_ = 1;
  int viewWidth_ = 0;
  int viewHeight_ = 0;
  bool redraw_ = true;
};

}  // namespace awizo
