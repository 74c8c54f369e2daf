#pragma once

#include <cstdint>
#include <functional>
#include <memory>
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
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self),
                          std::tie(self.selectsRows, self.fixedRows_, self.lines_, self.widths_,
                                   self.columnAlignments_, self.row_, self.column_, self.rowSel_,
                                   self.columnSel_, self.topRow_, self.redraw_));
  }

 public:
  static constexpr int normalRowHeight = 240;
  static constexpr int normalColumnWidth = 960;
  static constexpr int normalRowsShown = 10;

  Table(Form& form, std::string name, int columns, int rows = 2, int fixedRows = 1);

  int rows() const { return static_cast<int>(lines_.size()); }
  int columns() const { return columns_; }
  int fixedRows() const { return fixedRows_; }
  // The rows that aren't headings.
  int firstRow() const { return fixedRows_; }
  int lastRow() const { return rows() - 1; }
  /// Growing adds empty rows; shrinking drops rows at the end and holds the current row within,
  /// without events of a cell. Below 0 is error 30009, no row but fixed ones error 30016.
  void setRows(int rows);
  /// Below 0 is error 30009, no fewer than there are rows error 30016.
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
  /// Removes several rows in one pass, as one change; the errors are the same, raised before any
  /// row is gone. `rows` ascends.
  void removeItems(const std::vector<int>& rows);
  /// Empties texts and looks of all cells, headings too; counts, sizes and the alignment of columns
  /// stay, so every cell is aligned as its column again.
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
  /// Paints again; no state changes.
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
  /// Scrolls by code; raises Scroll if it changes. A row that can't be scrolled to is error 30009.
  void setTopRow(int row);
  /// The first row shown once this row has been scrolled into view, as far as needed.
  int topRowShowing(int row) const;
  /// How high the part of the table is that a host shows, fixed rows included; decides what is
  /// scrolled into view. Ten rows and the heading where no host says otherwise.
  void setViewHeight(int height);

  // The current cell's place within the table; reading left or top scrolls the cell into view,
  // which raises Scroll if something had to move.
  int cellLeft();
  int cellTop();
  int cellWidth() const { return columnWidth(column_); }
  int cellHeight() const { return rowHeight(row_); }

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

  /// The user clicks a cell: the focus first, then mouse down, the cell changes and is scrolled
  /// into view, mouse up, Click. Refused: a heading row, a column of no width, a cell that isn't
  /// there.
  void userCell(int row, int column);
  /// The user goes to a row: clicks its cell in the current column or, where that isn't shown, in
  /// the first that is.
  void userRow(int row);
  /// The user double-clicks the current cell: what a click raises, then the double click.
  void userDoubleClick();
  /// The user marks a range with the mouse held down: mouse down, the first cell becomes current,
  /// the mark reaches out to the second, mouse up.
  void userSelect(int row, int column, int rowSel, int columnSel);
  /// Scrolls without taking the focus. Refused: a row that can't be scrolled to.
  void userScroll(int topRow);

  /// Whether all its cells hold the texts that they held then.
  bool holdsTextsOf(const Kept& kept) const;

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  /// A key in the table: KeyDown, then the move of arrows, Home, End and page keys over the shown
  /// columns, then KeyPress for keys that stand for a character, then KeyUp. With the Shift key
  /// held the moving keys move the other corner of the marked range instead of the current cell.
  void pressKey(std::int16_t code, bool shift) override;

  struct Line {
    std::vector<std::string> texts;
    std::vector<CellLook> looks;
    int height = normalRowHeight;
  };

  struct Corner {
    int row;
    int column;
    bool operator==(const Corner&) const = default;
  };
  enum class Scrolling { none, intoView };

  const Line& line(int row) const { return *lines_[static_cast<std::size_t>(row)]; }
  /// A row of the table's own: what is kept of a table shares its rows until they change.
  Line& ownLine(int row);
  /// Row and column of a flat index; error 381.
  Corner at(int index) const;
  void requireCell(int row, int column) const;
  void requireRow(int row) const;
  void requireRemovable(int row) const;
  void requireColumn(int column) const;
  void requireClickable(int row, int column) const;
  bool hasCell(Corner corner) const;
  void assign(Corner corner, const CellLook& look);
  void assign(Corner corner, std::string_view text);

  /// One change of the current cell, which ends the marked range.
  void moveTo(Corner corner, Scrolling scrolling);
  void markTo(Corner corner);
  /// Whether a key moves the current cell, and where to.
  bool moves(std::int16_t code) const;
  Corner keyTarget(Corner from, std::int16_t code) const;
  int shownColumn(int from, int step) const;
  int pageFrom(int row, int direction) const;
  void press(Corner corner);

  int heightOf(int from, int to) const;
  void showRow(int row);
  void holdWithin();
  std::shared_ptr<Line> makeLine() const;

  int columns_;
  int fixedRows_;
  /// Rows by handle, so that taking one out moves no cells.
  std::vector<std::shared_ptr<Line>> lines_;
  std::vector<int> widths_;
  std::vector<Alignment> columnAlignments_;
  int row_ = 0;
  int column_ = 0;
  int rowSel_ = 0;
  int columnSel_ = 0;
  int topRow_ = 0;
  int viewHeight_;
  bool redraw_ = true;
};

}  // namespace awizo
