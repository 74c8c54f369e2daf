#include "hosts/desktop/window/packing_pane.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "desk/layout_words.h"
#include "hosts/desktop/faces/table_face.h"
#include "hosts/desktop/layouts/fields.h"

namespace awizo::desktop {
namespace {

/// Whether the pane shows anything else after it.
bool changesDocument(const Change& change) {
  return change.aspect == Aspect::cell || change.aspect == Aspect::rows ||
         change.aspect == Aspect::content || change.aspect == Aspect::redraw;
}

/// The rows in which these lines are shown, by runs: Qt is slow with many small ones.
QItemSelection rowsOf(const PackingLinesModel& model, const std::vector<int>& lines) {
  QItemSelection selection;
  const int count = model.rowCount();
  const auto isMarked = [&](int row) {
    return std::ranges::binary_search(lines, model.line(model.index(row, 0)).row);
  };
  for (int row = 0; row < count; ++row) {
    const int first = row;
    while (row < count && isMarked(row)) ++row;
    if (row > first) selection.select(model.index(first, 0), model.index(row - 1, 0));
  }
  return selection;
}

}  // namespace

PackingPane::PackingPane(const Editor& editor, FormFace& faces, Waiting& waiting, PackRest packRest)
    : editor_(editor),
      faces_(faces),
      waiting_(waiting),
      packRest_(std::move(packRest)),
      linesModel_(new PackingLinesModel(this)),
      packagesModel_(new PackingPlacesModel(this)),
      splitter_(new QSplitter(Qt::Vertical)),
      summary_(new QLabel),
      onlyRest_(new QCheckBox(fromText(words::packingOnlyRest))),
      lines_(new QTreeView),
      packages_(new QTreeView),
      packButton_(new QPushButton(fromText(words::packRest))) {
  setObjectName("packingPane");
  makeViews();
  layOut();
  connectViews();
  observations_[0] =
      editor.form.grdPozycje.observers.add([this](const Change& change) { follow(change); });
  observations_[1] =
      editor.form.grdOpakowania.observers.add([this](const Change& change) { follow(change); });
  observations_[2] = waiting.onEnd.add([this](const Waiting&) { refreshLater(); });
}

PackingPane::~PackingPane() {
  editor_.form.grdPozycje.observers.remove(observations_[0]);
  editor_.form.grdOpakowania.observers.remove(observations_[1]);
  waiting_.onEnd.remove(observations_[2]);
}

void PackingPane::makeViews() {
  lines_->setModel(linesModel_);
  lines_->setRootIsDecorated(false);
  lines_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lines_->setDragDropMode(QAbstractItemView::DragOnly);
  lines_->setAccessibleName(fromText(words::packingLines));
  lines_->header()->setSectionResizeMode(PackingLinesModel::name, QHeaderView::Stretch);
  packages_->setModel(packagesModel_);
  packages_->setDragDropMode(QAbstractItemView::DropOnly);
  packages_->setAccessibleName(fromText(words::packingPackages));
  packages_->header()->setSectionResizeMode(PackingPlacesModel::name, QHeaderView::Stretch);
  for (QTreeView* view : {lines_, packages_}) {
    view->setMinimumHeight(view->fontMetrics().height() * 6);
    // Rows of one height need not be measured each.
    view->setUniformRowHeights(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setTabKeyNavigation(false);
    view->header()->setResizeContentsPrecision(0);
    view->header()->setStretchLastSection(false);
    view->header()->setSectionsClickable(false);
    view->installEventFilter(this);
  }
  packButton_->setToolTip(fromText(words::packRestTip));
  packButton_->setAutoDefault(false);
}

void PackingPane::layOut() {
  splitter_->setChildrenCollapsible(false);
  splitter_->addWidget(lines_);
  splitter_->addWidget(packages_);
  makeBold(*summary_);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(4, 8, 8, 6);
  rows->setSpacing(6);
  rows->addWidget(summary_);
  rows->addWidget(onlyRest_);
  rows->addWidget(splitter_, 1);
  rows->addWidget(packButton_);
  for (const auto& [first, second] : {std::pair<QWidget*, QWidget*>{onlyRest_, lines_},
                                      {lines_, packages_},
                                      {packages_, packButton_}}) {
    setTabOrder(first, second);
  }
  setMinimumWidth(fontMetrics().averageCharWidth() * 38);
}

void PackingPane::connectViews() {
  connect(onlyRest_, &QCheckBox::toggled, this, [this] { showLines(); });
  connect(packButton_, &QPushButton::clicked, this, [this] { packMarked(); });
  connect(lines_, &QTreeView::doubleClicked, this, [this] { goToLine(); });
  connect(packages_, &QTreeView::doubleClicked, this, [this] { goToPlace(); });
  for (const QTreeView* view : {lines_, packages_}) {
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { showStates(); });
  }
  connect(packages_, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
    if (isShowing_) return;
    closed_.insert(packagesModel_->place(index).serial);
    packages_->setCurrentIndex(seen(packages_->currentIndex()));
  });
  connect(packages_, &QTreeView::expanded, this, [this](const QModelIndex& index) {
    if (!isShowing_) closed_.erase(packagesModel_->place(index).serial);
  });
  // What the drop itself still does to the views comes first.
  packagesModel_->onDrop = [this](const std::vector<int>& dropped, int package) {
    QMetaObject::invokeMethod(
        this, [this, dropped, package] { pack(dropped, package); }, Qt::QueuedConnection);
  };
}

void PackingPane::toggle() {
  const bool goes = isVisible() && isAncestorOf(window()->focusWidget());
  // Qt would lead the focus of what is hidden to the next field.
  if (goes) focusDocument();
  setVisible(!goes);
  if (onToggle) onToggle(!goes);
  if (goes) return;
  if (Face* face = faces_.focusedFace()) face->finishTyping();
  refresh();
  lines_->setFocus(Qt::ShortcutFocusReason);
  // On a small screen the window scrolls, once it has laid out what has come.
  QMetaObject::invokeMethod(
      this, [this] { bringIntoSight(*lines_); }, Qt::QueuedConnection);
}

void PackingPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  refreshLater();
}

void PackingPane::follow(const Change& change) {
  if (!changesDocument(change)) return;
  stale_ = true;
  linesWent_ = linesWent_ || editor_.session.LineCount == 0;
  refreshLater();
}

/// A document comes and goes by thousands of changes in one event.
void PackingPane::refreshLater() {
  if (!stale_ || !isVisible() || due_) return;
  due_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        due_ = false;
        refresh();
      },
      Qt::QueuedConnection);
}

void PackingPane::refresh() {
  if (!stale_ || !isVisible() || waiting_.lasts()) return;
  stale_ = false;
  PackingOverview overview = packingOverview(editor_);
  // Other lines than those that were marked may be in their rows.
  if (linesWent_) {
    linesModel_->show({});
  } else if (overview.lines.size() != overview_.lines.size()) {
    lines_->selectionModel()->clearSelection();
  }
  linesWent_ = false;
  overview_ = std::move(overview);
  summary_->setText(fromText(overview_.summary));
  showLines();
  showPackages();
}

void PackingPane::showLines() {
  const bool isFirst = linesModel_->rowCount() == 0;
  const std::vector<int> marked = markedLines();
  const int current = lines_->currentIndex().row();
  const int top = lines_->verticalScrollBar()->value();
  std::vector<PackingLine> shown = overview_.lines;
  if (onlyRest_->isChecked()) {
    std::erase_if(shown, [](const PackingLine& line) { return line.isWhole; });
  }
  linesModel_->show(std::move(shown));
  QItemSelection selection = rowsOf(*linesModel_, marked);
  const int last = std::max(linesModel_->rowCount() - 1, 0);
  const QModelIndex there = linesModel_->index(std::clamp(current, 0, last), 0);
  lines_->selectionModel()->setCurrentIndex(there, QItemSelectionModel::NoUpdate);
  // The first line is marked at least, as in the tables; but where the marked ones have gone,
  // nobody has marked the one that is in their place.
  if (isFirst && selection.isEmpty() && there.isValid()) selection.select(there, there);
  lines_->selectionModel()->select(selection,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  lines_->verticalScrollBar()->setValue(top);
  lines_->resizeColumnToContents(PackingLinesModel::number);
  lines_->resizeColumnToContents(PackingLinesModel::packed);
  showStates();
}

void PackingPane::showPackages() {
  PackingPlace current;
  if (const QModelIndex index = packages_->currentIndex(); index.isValid()) {
    current = packagesModel_->place(index);
  }
  const int top = packages_->verticalScrollBar()->value();
  isShowing_ = true;
  packagesModel_->show(overview_.places);
  packages_->expandAll();
  for (const PackingPlace& place : overview_.places) {
    if (place.line == 0 && closed_.contains(place.serial)) {
      packages_->collapse(packagesModel_->indexOfPackage(place.package));
    }
  }
  isShowing_ = false;
  // Its row is another where one above it has gone.
  const auto same = std::ranges::find_if(overview_.places, [&](const PackingPlace& place) {
    return place.line == 0 && place.serial == current.serial;
  });
  QModelIndex index = same == overview_.places.end()
                          ? QModelIndex()
                          : packagesModel_->indexOfPackage(same->package);
  if (!index.isValid()) index = packagesModel_->index(0, 0);
  packages_->setCurrentIndex(seen(index));
  packages_->verticalScrollBar()->setValue(top);
  packages_->resizeColumnToContents(PackingPlacesModel::quantity);
  showStates();
}

/// The place itself, or the outermost closed package that hides it.
QModelIndex PackingPane::seen(const QModelIndex& place) const {
  QModelIndex found = place;
  for (QModelIndex around = place.parent(); around.isValid(); around = around.parent()) {
    if (!packages_->isExpanded(around)) found = around;
  }
  return found;
}

void PackingPane::showStates() {
  packButton_->setEnabled(packages_->currentIndex().isValid() &&
                          lines_->selectionModel()->hasSelection());
}

bool PackingPane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto& key = static_cast<QKeyEvent&>(*event);
  const bool isPlain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  switch (isPlain ? key.key() : 0) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
      return watched == lines_ && markCurrentLine(key.key());
    case Qt::Key_Return:
    case Qt::Key_Enter:
      watched == lines_ ? goToLine() : goToPlace();
      return true;
    case Qt::Key_Insert:
      // A key held down would pack what nobody marked.
      if (!key.isAutoRepeat()) packMarked();
      return true;
    case Qt::Key_Escape:
      focusDocument();
      return true;
    default:
      return QWidget::eventFilter(watched, event);
  }
}

/// Marks the line where the user is and nothing is marked. Returns whether that was all that the
/// key does.
bool PackingPane::markCurrentLine(int key) {
  QItemSelectionModel* selection = lines_->selectionModel();
  if (selection->hasSelection()) return false;
  selection->select(lines_->currentIndex(),
                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
  return key == Qt::Key_Up || key == Qt::Key_Down;
}

void PackingPane::focusDocument() {
  if (const Face* face = faces_.focusedFace()) {
    face->focusWidget()->setFocus(Qt::OtherFocusReason);
    bringIntoSight(*face->focusWidget());
  } else {
    faces_.window().setFocus(Qt::OtherFocusReason);
  }
}

void PackingPane::goTo(Table& table, int row) {
  if (Face* face = faces_.focusedFace()) face->finishTyping();
  if (faces_.act([&] { table.userRow(row); })) focusDocument();
}

void PackingPane::goToLine() {
  const QModelIndex index = lines_->currentIndex();
  if (!stale_ && index.isValid()) goTo(editor_.form.grdPozycje, linesModel_->line(index).row);
}

void PackingPane::goToPlace() {
  const QModelIndex index = packages_->currentIndex();
  if (stale_ || !index.isValid()) return;
  const PackingPlace& place = packagesModel_->place(index);
  if (place.line > 0) return goTo(editor_.form.grdPozycje, place.line);
  goTo(editor_.form.grdOpakowania, place.package);
}

void PackingPane::standOnItsPackage() {
  const QModelIndex index = packages_->currentIndex();
  if (stale_ || !index.isValid() || !isAncestorOf(QApplication::focusWidget())) return;
  const int package = packagesModel_->place(index).package;
  faces_.act([&] { editor_.form.grdOpakowania.userRow(package); });
}

std::vector<int> PackingPane::markedLines() const {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : lines_->selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      rows.push_back(linesModel_->line(linesModel_->index(row, 0)).row);
    }
  }
  std::ranges::sort(rows);
  return rows;
}

void PackingPane::packMarked() {
  const QModelIndex index = packages_->currentIndex();
  if (index.isValid()) pack(markedLines(), packagesModel_->place(index).package);
}

void PackingPane::pack(const std::vector<int>& lines, int package) {
  if (stale_ || lines.empty()) return;
  QWidget* focused = focusWidget();
  if (Face* face = faces_.focusedFace()) face->finishTyping();
  packRest_(lines, package);
  // The act has led the focus to the table; the user goes on here.
  if (focused != nullptr) focused->setFocus(Qt::OtherFocusReason);
}

}  // namespace awizo::desktop
