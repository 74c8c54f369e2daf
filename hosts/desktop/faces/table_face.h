#pragma once

#include <QPointer>
#include <map>
#include <optional>
#include <vector>

#include "hosts/desktop/faces/face.h"
#include "hosts/desktop/faces/table_rows.h"
#include "hosts/desktop/faces/table_view.h"
#include "platform/forms/list_moves.h"
#include "platform/forms/table.h"

namespace awizo::desktop {

/// A table. Its heading doesn't scroll, columns of no width are hidden, the current cell, the
/// marked range and the first row shown follow the model, and clicks and keys go to it. A row of
/// normal height has room for a line of the font in use; columns begin at their widths in twips,
/// grown with the font, and the user can resize them.
class TableFace : public Face {
 public:
  TableFace(FormFace& form, Table& table, QWidget* parent);

  QTableView* view() const { return view_; }
  /// Lays the face of a field over the current cell, where it stays however the table scrolls and
  /// its columns are resized.
  void layOverCell(Face& editor);
  /// Shows what has changed and waits to be shown; the painting of the view does the same.
  void showNow();
  /// Scrolls the current row into view, as its user would. Of what is chosen from the table's menu
  /// it is the row under which the menu came.
  void bringRowIntoView();
  /// Lets the user move in the table as in a list: characters find a row by the beginning of its
  /// text in this column, Home and End go to the first and last row.
  void moveAsInList(int column);
  /// Runs after the user has double-clicked a cell, with what the table does by itself done. May
  /// be empty.
  std::function<void()> afterDoubleClick;
  /// What a row has to say besides its cells: see TableRows.
  void describeRows(std::function<std::string(int row)> describe);
  /// The widths in twips that the user has given to columns, up to the last such; 0 for one that is
  /// as it began.
  std::vector<int> givenWidths() const;
  void giveWidths(const std::vector<int>& twips);
  /// Gives the table a menu of its own: copying, and the commands whose keys are the table's. The
  /// mouse brings it on a row only that it could go to.
  void offerMenu(const QString& copyWords);
  /// The column takes the room that the others leave.
  void stretchColumn(int column);

 protected:
  void showContent() override;
  void showChange(const Change& change) override;
  bool pressKey(QKeyEvent& key) override;
  bool pressMouse(QMouseEvent& mouse) override;
  void goToRow(int row);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Cell {
    int row = -1;
    int column = -1;
    bool operator==(const Cell&) const = default;
  };

  void setUpView();
  void rowsChanged();
  void showLater();
  void showWidths();
  void relayColumn(int column);
  void takeWidth(int column, int width);
  void copyMarked() const;
  bool isMarked(const Cell& cell) const;
  bool bringMenu(const QContextMenuEvent& wanted);
  void watchHeading(const QEvent& event);
  void showHeights();
  int markedRow() const;
  bool pressCommonKey(const QKeyEvent& key);
  bool pressListKey(const QKeyEvent& key);
  void showSelection();
  void showTop();
  void placeEditor();
  void takeScroll(int value);
  void takeViewHeight();
  void releaseMouse(const QMouseEvent& mouse);
  Cell cellAt(const QPoint& point) const;
  int normalHeight() const;
  double pointsPerTwip() const;

  Table& table_;
  TableView* view_;
  TableRows* rows_;
  QPointer<Face> editor_;
  std::vector<int> shownWidths_;    ///< twips, as the columns were last laid out
  std::map<int, int> givenWidths_;  ///< twips, by the column
  bool headingIsHeld_ = false;      ///< the mouse button is down on it
  Cell pressed_;                    ///< where the mouse button went down and is still held
  std::optional<int> menuRow_;      ///< where the mouse brought the menu that is there
  std::optional<ListMoves> listMoves_;
  bool stale_ = true;
  bool showIsDue_ = false;
};

}  // namespace awizo::desktop
