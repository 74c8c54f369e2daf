#include "hosts/desktop/faces/table_face.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

#include "hosts/desktop/faces/form_face.h"
#include "hosts/desktop/faces/key_codes.h"
#include "platform/forms/table_text.h"

namespace awizo::desktop {
namespace {

bool isByKeyboard(const QFocusEvent& focus) {
  return focus.reason() == Qt::TabFocusReason || focus.reason() == Qt::BacktabFocusReason;
}

}  // namespace

TableFace::TableFace(FormFace& form, Table& table, QWidget* parent)
    : Face(form, table, new TableView(parent)),
      table_(table),
      view_(static_cast<TableView*>(widget())),
      rows_(new TableRows(table, this)) {
  view_->currentRow = [this] { return markedRow(); };
  setUpView();
  watch(view_->viewport());
  view_->horizontalHeader()->viewport()->installEventFilter(this);
  connect(view_->verticalScrollBar(), &QScrollBar::valueChanged, this, &TableFace::takeScroll);
  connect(view_->horizontalScrollBar(), &QScrollBar::valueChanged, this, &TableFace::placeEditor);
  connect(view_->horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int column, int, int width) {
            takeWidth(column, width);
            placeEditor();
          });
}

void TableFace::setUpView() {
  view_->setModel(rows_);
  view_->setFocusPolicy(Qt::TabFocus);
  view_->verticalHeader()->hide();
  view_->verticalHeader()->setMinimumSectionSize(1);
  view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view_->horizontalHeader()->setHighlightSections(false);
  view_->horizontalHeader()->setSectionsClickable(false);
  view_->horizontalHeader()->setMinimumSectionSize(1);
  view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  view_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  view_->setTabKeyNavigation(false);
  view_->setWordWrap(true);
  view_->setTextElideMode(Qt::ElideRight);
}

void TableFace::layOverCell(Face& editor) {
  editor_ = &editor;
  editor.widget()->setParent(view_->viewport());
  editor.showAll();
  form().onStateShown.add([this](Face& face) {
    if (&face == editor_) placeEditor();
  });
  placeEditor();
}

void TableFace::showContent() {
  if (stale_) showLater();
}

void TableFace::rowsChanged() {
  stale_ = true;
  showLater();
}

void TableFace::showChange(const Change& change) {
  switch (change.aspect) {
    case Aspect::visible:
    case Aspect::enabled:
      Face::showChange(change);
      break;
    case Aspect::cell:
      // A heading may need more room than the one before.
      if (change.row < table_.fixedRows()) relayColumn(change.column);
      if (table_.redraw() && !stale_) {
        rows_->cellChanged(change.row, change.column);
      } else {
        rowsChanged();
      }
      break;
    case Aspect::selection:
    case Aspect::scroll:
      if (stale_) break;
      showSelection();
      showTop();
      placeEditor();
      break;
    case Aspect::layout:
      showWidths();
      showHeights();
      placeEditor();
      break;
    case Aspect::focus:
    case Aspect::place:
      break;
    case Aspect::redraw:
      showContent();
      break;
    default:
      rowsChanged();
      break;
  }
}

/// Rows come and go by the thousand in one event; the view is notified once. While the model's
/// redrawing is off it keeps what it shows.
void TableFace::showLater() {
  if (!table_.redraw() || std::exchange(showIsDue_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        showIsDue_ = false;
        showNow();
      },
      Qt::QueuedConnection);
}

void TableFace::showNow() {
  if (!stale_ || !table_.redraw()) return;
  stale_ = false;
  const auto following = form().following();
  rows_->changed();
  showWidths();
  showHeights();
  takeViewHeight();
  showSelection();
  showTop();
  placeEditor();
}

double TableFace::pointsPerTwip() const {
  // A normal row has 240 twips, so this is the height that the font grows over its usual one.
  const double perTwip = view_->logicalDpiX() / 1440.0;
  return std::max(perTwip, view_->fontMetrics().height() / 225.0);
}

int TableFace::normalHeight() const {
  return std::max(view_->fontMetrics().height() + 6,
                  qRound(Table::normalRowHeight * pointsPerTwip()));
}

void TableFace::showWidths() {
  shownWidths_.resize(static_cast<std::size_t>(table_.columns()), -1);
  for (int column = 0; column < table_.columns(); ++column) {
    const int width = table_.columnWidth(column);
    int& shown = shownWidths_[static_cast<std::size_t>(column)];
    if (shown == width) continue;
    shown = width;
    view_->setColumnHidden(column, width == 0);
    if (width == 0) continue;
    const auto given = givenWidths_.find(column);
    if (given != givenWidths_.end()) {
      view_->setColumnWidth(column, std::max(1, qRound(given->second * pointsPerTwip())));
      continue;
    }
    const int heading = view_->horizontalHeader()->sectionSizeHint(column);
    view_->setColumnWidth(column, std::max(heading, qRound(width * pointsPerTwip())));
  }
}

/// Only the user resizes with the mouse held down on the headings.
void TableFace::takeWidth(int column, int width) {
  if (!headingIsHeld_) return;
  givenWidths_[column] = std::max(1, qRound(width / pointsPerTwip()));
}

std::vector<int> TableFace::givenWidths() const {
  if (givenWidths_.empty()) return {};
  std::vector<int> widths(static_cast<std::size_t>(givenWidths_.rbegin()->first) + 1);
  for (const auto& [column, width] : givenWidths_) widths[static_cast<std::size_t>(column)] = width;
  return widths;
}

void TableFace::giveWidths(const std::vector<int>& twips) {
  givenWidths_.clear();
  for (std::size_t column = 0; column < twips.size(); ++column) {
    if (twips[column] > 0) givenWidths_[static_cast<int>(column)] = twips[column];
  }
  shownWidths_.clear();
  if (!stale_) showWidths();
}

void TableFace::relayColumn(int column) {
  const auto place = static_cast<std::size_t>(column);
  if (place < shownWidths_.size()) shownWidths_[place] = -1;
  if (!stale_) showWidths();
}

void TableFace::showHeights() {
  view_->verticalHeader()->setDefaultSectionSize(normalHeight());
  const int shownRows = rows_->rowCount();
  for (int viewRow = 0; viewRow < shownRows; ++viewRow) {
    const int row = rows_->tableRow(viewRow);
    if (row >= table_.rows()) break;
    const int height = normalHeight() * table_.rowHeight(row) / Table::normalRowHeight;
    if (view_->rowHeight(viewRow) != height) view_->setRowHeight(viewRow, height);
  }
}

int TableFace::markedRow() const {
  const int row = table_.row();
  if (stale_ || row < table_.firstRow() || row > table_.lastRow()) return -1;
  return hasText(table_, row) ? row - table_.firstRow() : -1;
}

void TableFace::bringRowIntoView() {
  const std::optional<int> menuRow = std::exchange(menuRow_, std::nullopt);
  if (menuRow && *menuRow != table_.row()) goToRow(*menuRow);
  showNow();
  const int top = table_.topRowShowing(table_.row());
  if (top == table_.topRow()) return;
  form().act([&] { table_.userScroll(top); });
  showNow();
}

void TableFace::showSelection() {
  // The mark reaches over the whole row.
  view_->viewport()->update();
  view_->setSelectionBehavior(table_.selectsRows ? QAbstractItemView::SelectRows
                                                 : QAbstractItemView::SelectItems);
  const QModelIndex current = rows_->indexOf(table_.row(), table_.column());
  const QModelIndex corner = rows_->indexOf(table_.rowSel(), table_.columnSel());
  QItemSelectionModel* selection = view_->selectionModel();
  const QItemSelectionModel::SelectionFlags how =
      QItemSelectionModel::ClearAndSelect |
      (table_.selectsRows ? QItemSelectionModel::Rows : QItemSelectionModel::NoUpdate);
  // Qt would scroll to the current cell; what is in view is the model's to say.
  const bool scrolls = view_->hasAutoScroll();
  view_->setAutoScroll(false);
  selection->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  view_->setAutoScroll(scrolls);
  if (current.isValid() && corner.isValid()) {
    const auto [top, bottom] = std::minmax({current.row(), corner.row()});
    const auto [left, right] = std::minmax({current.column(), corner.column()});
    selection->select({rows_->index(top, left), rows_->index(bottom, right)}, how);
  } else {
    selection->clearSelection();
  }
}

void TableFace::showTop() {
  const auto following = form().following();
  view_->verticalScrollBar()->setValue(table_.topRow() - table_.fixedRows());
  // A wide table's current column comes into view along the row.
  const QModelIndex current = view_->currentIndex();
  if (!current.isValid() || table_.columnWidth(current.column()) == 0) return;
  const int left = view_->columnViewportPosition(current.column());
  const int right = left + view_->columnWidth(current.column());
  QScrollBar* bar = view_->horizontalScrollBar();
  if (left < 0) {
    bar->setValue(bar->value() + left);
  } else if (right > view_->viewport()->width()) {
    bar->setValue(bar->value() + std::min(left, right - view_->viewport()->width()));
  }
}

void TableFace::describeRows(std::function<std::string(int row)> describe) {
  rows_->describe = std::move(describe);
}

void TableFace::stretchColumn(int column) {
  view_->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
}

void TableFace::placeEditor() {
  // Nothing has its place before the view has its size, and that is told.
  if (!editor_ || !view_->isVisible()) return;
  const QModelIndex current = rows_->indexOf(table_.row(), table_.column());
  editor_->widget()->setGeometry(view_->visualRect(current));
  editor_->widget()->raise();
}

void TableFace::takeScroll(int value) {
  placeEditor();
  const int row = rows_->tableRow(value);
  if (stale_ || table_.topRow() == row) return;
  form().act([&] { table_.userScroll(row); });
  placeEditor();
}

void TableFace::takeViewHeight() {
  // Half a row too much isn't a row: only whole rows count as shown.
  const int wholeRows = std::max(1, view_->viewport()->height() / normalHeight());
  table_.setViewHeight((table_.fixedRows() + wholeRows) * Table::normalRowHeight);
}

void TableFace::copyMarked() const {
  QApplication::clipboard()->setText(fromText(markedText(table_)));
}

void TableFace::offerMenu(const QString& copyWords) {
  auto* copy = new QAction(copyWords, view_);
  connect(copy, &QAction::triggered, this, [this] { copyMarked(); });
  view_->addAction(copy);
  view_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

bool TableFace::isMarked(const Cell& cell) const {
  const auto [top, bottom] = std::minmax({table_.row(), table_.rowSel()});
  const auto [left, right] = std::minmax({table_.column(), table_.columnSel()});
  return cell.row >= top && cell.row <= bottom && cell.column >= left && cell.column <= right;
}

/// Where the click was refused the menu would act on another row, and below the rows there is none.
/// Answers whether the view has nothing more to do.
bool TableFace::bringMenu(const QContextMenuEvent& wanted) {
  const bool isOurs = view_->contextMenuPolicy() == Qt::ActionsContextMenu;
  if (!isOurs || wanted.reason() != QContextMenuEvent::Mouse) return false;
  const Cell cell = cellAt(wanted.pos());
  if (cell == Cell{} || !hasFocus() || !isMarked(cell)) return true;
  // The marked range stays for copying until another entry acts on the row.
  menuRow_ = cell.row;
  const QPointer<TableFace> face = this;
  QMenu::exec(view_->actions(), wanted.globalPos(), nullptr, view_);
  if (face) menuRow_.reset();
  return true;
}

/// The keys that tables have everywhere else too, and the model's table doesn't know.
bool TableFace::pressCommonKey(const QKeyEvent& key) {
  if (key.matches(QKeySequence::Copy)) {
    copyMarked();
    return true;
  }
  const bool toStart = key.matches(QKeySequence::MoveToStartOfDocument);
  if (!toStart && !key.matches(QKeySequence::MoveToEndOfDocument)) return false;
  goToRow(toStart ? table_.firstRow() : table_.lastRow());
  return true;
}

bool TableFace::pressListKey(const QKeyEvent& key) {
  if (!listMoves_) return false;
  const QString typed = typedCharacter(key);
  const bool isTyped = !typed.isEmpty();
  const std::optional<int> row =
      isTyped ? listMoves_->rowTyped(toText(typed)) : listMoves_->rowOfKey(keyCodeOf(key));
  if (row) goToRow(*row);
  return row || isTyped;
}

void TableFace::moveAsInList(int column) {
  listMoves_.emplace(table_, column,
                     [](std::string_view text) { return toText(fromText(text).toUpper()); });
}

void TableFace::goToRow(int row) {
  showNow();
  form().act([&] { table_.userRow(row); });
  showNow();
}

bool TableFace::pressKey(QKeyEvent& key) {
  if (pressCommonKey(key) || pressListKey(key)) return true;
  const std::int16_t code = keyCodeOf(key);
  if (code == 0) return false;
  showNow();
  const bool shift = isShifted(key);
  form().act([&] { table_.userKey(code, shift); });
  showNow();
  return true;
}

TableFace::Cell TableFace::cellAt(const QPoint& point) const {
  const QModelIndex cell = view_->indexAt(point);
  return cell.isValid() ? Cell{rows_->tableRow(cell.row()), cell.column()} : Cell{};
}

/// The focus has come with the button's going down; the rest of a click is the model's in one.
bool TableFace::pressMouse(QMouseEvent& mouse) {
  showNow();
  pressed_ = {};
  const Cell cell = cellAt(mouse.position().toPoint());
  if (cell == Cell{}) return true;
  const bool bringsMenu =
      mouse.button() == Qt::RightButton && view_->contextMenuPolicy() == Qt::ActionsContextMenu;
  // It is that of the row under it.
  if (bringsMenu && !isMarked(cell)) {
    form().act([&] { table_.userCell(cell.row, cell.column); });
  }
  if (mouse.button() != Qt::LeftButton) return true;
  const bool again = mouse.type() == QEvent::MouseButtonDblClick;
  if (again && cell == Cell{table_.row(), table_.column()}) {
    const bool taken = form().act([&] { table_.userDoubleClick(); });
    if (taken && afterDoubleClick) afterDoubleClick();
  } else {
    pressed_ = cell;
  }
  return true;
}

void TableFace::releaseMouse(const QMouseEvent& mouse) {
  const Cell from = std::exchange(pressed_, Cell{});
  if (mouse.button() != Qt::LeftButton || from == Cell{}) return;
  const Cell to = cellAt(mouse.position().toPoint());
  form().act([&] {
    if (to == from || to == Cell{}) {
      table_.userCell(from.row, from.column);
    } else {
      table_.userSelect(from.row, from.column, to.row, to.column);
    }
  });
}

void TableFace::watchHeading(const QEvent& event) {
  const bool goesDown =
      event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
  if (goesDown || event.type() == QEvent::MouseButtonRelease) headingIsHeld_ = goesDown;
}

bool TableFace::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view_->horizontalHeader()->viewport()) {
    watchHeading(*event);
    return false;
  }
  const bool onCells = watched == view_->viewport();
  switch (event->type()) {
    case QEvent::MouseButtonRelease:
      if (onCells) releaseMouse(static_cast<QMouseEvent&>(*event));
      return onCells;
    case QEvent::Paint:
      if (onCells) showNow();
      break;
    case QEvent::Resize:
      if (onCells) {
        takeViewHeight();
        placeEditor();
      }
      break;
    case QEvent::Show:
      placeEditor();
      break;
    case QEvent::ContextMenu:
      if (onCells && bringMenu(static_cast<const QContextMenuEvent&>(*event))) return true;
      break;
    case QEvent::FocusIn:
      // Who comes with the mouse sees where he goes.
      if (!onCells && isByKeyboard(static_cast<const QFocusEvent&>(*event))) {
        QMetaObject::invokeMethod(
            this, [this] { bringRowIntoView(); }, Qt::QueuedConnection);
      }
      break;
    case QEvent::FontChange:
      if (onCells) break;
      shownWidths_.clear();
      showWidths();
      showHeights();
      takeViewHeight();
      placeEditor();
      break;
    default:
      break;
  }
  return Face::eventFilter(watched, event);
}

}  // namespace awizo::desktop
