#include "hosts/desktop/faces/file_faces.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>

#include "hosts/desktop/faces/key_codes.h"
#include "hosts/desktop/faces/text.h"
#include "platform/forms/face_words.h"
#include "platform/run_time_error.h"

namespace awizo::desktop {
namespace {

constexpr int pathRole = Qt::UserRole;
constexpr int depthIndent = 3;  ///< spaces before a name for each folder above it
constexpr int iconSize = 16;

QString joined(const QString& folder, const QString& name) {
  return folder.endsWith('\\') ? folder + name : folder + '\\' + name;
}

/// The row that the character leads to, from the one marked on.
std::optional<int> rowTyped(TypedSearch& search, const QString& character,
                            const QListWidget& list) {
  std::vector<std::string> rows;
  rows.reserve(static_cast<std::size_t>(list.count()));
  for (int row = 0; row < list.count(); ++row) {
    rows.push_back(toText(list.item(row)->text().toUpper()));
  }
  return search.add(toText(character), rows, list.currentRow());
}

QListWidget* makeList(QWidget* parent) {
  auto* list = new QListWidget(parent);
  list->setFocusPolicy(Qt::TabFocus);
  list->setUniformItemSizes(true);
  list->setIconSize({iconSize, iconSize});
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  return list;
}

}  // namespace

DriveFace::DriveFace(FormFace& form, DriveList& drives, QWidget* parent)
    : Face(form, drives, new QComboBox(parent)),
      drives_(drives),
      box_(static_cast<QComboBox*>(widget())) {
  box_->setFocusPolicy(Qt::TabFocus);
  box_->setAccessibleName(fromText(words::drives));
  connect(box_, &QComboBox::textActivated, this,
          [this](const QString& drive) { act([&] { drives_.userChoose(toText(drive)); }); });
}

void DriveFace::showContent() {
  QStringList rows;
  for (const std::string& drive : drives_.rows()) rows.append(fromText(drive));
  QStringList shown;
  for (int row = 0; row < box_->count(); ++row) shown.append(box_->itemText(row));
  if (rows != shown) {
    box_->clear();
    box_->addItems(rows);
  }
  box_->setCurrentIndex(static_cast<int>(rows.indexOf(fromText(drives_.drive()))));
}

FolderFace::FolderFace(FormFace& form, FolderList& folders, QWidget* parent)
    : Face(form, folders, makeList(parent)),
      folders_(folders),
      list_(static_cast<QListWidget*>(widget())) {
  list_->setAccessibleName(fromText(words::folders));
  watch(list_->viewport());
  connect(list_, &QListWidget::itemDoubleClicked, this, &FolderFace::open);
}

void FolderFace::addFolder(const QString& name, const QString& path, int depth) {
  const bool isOpen = fromText(folders_.path()).startsWith(path);
  auto* item = new QListWidgetItem(
      list_->style()->standardIcon(isOpen ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon),
      QString(depth * depthIndent, ' ') + name, list_);
  item->setData(pathRole, path);
}

/// What is marked stays until another folder is the present one.
void FolderFace::showContent() {
  if (shownPath_ != fromText(folders_.path())) readFolder();
}

void FolderFace::showChange(const Change& change) {
  if (change.aspect == Aspect::content) shownPath_.clear();
  Face::showChange(change);
}

/// Folders may have come and gone since the list was last seen.
bool FolderFace::eventFilter(QObject* watched, QEvent* event) {
  if (watched == list_ && event->type() == QEvent::Show) readFolder();
  return Face::eventFilter(watched, event);
}

void FolderFace::readFolder() {
  const QString present = fromText(folders_.path());
  shownPath_ = present;
  list_->clear();
  if (present.isEmpty()) return;
  QStringList way = present.split('\\', Qt::SkipEmptyParts);
  QString path = way.takeFirst() + '\\';
  int depth = 0;
  addFolder(path, path, depth++);
  for (const QString& name : way) {
    path = joined(path, name);
    addFolder(name, path, depth++);
  }
  list_->setCurrentRow(depth - 1);
  depth_ = depth;
  try {
    for (const std::string& name : folders_.rows()) {
      addFolder(fromText(name), joined(present, fromText(name)), depth);
    }
  } catch (const RunTimeError&) {
    // A folder that can't be read shows none.
  }
  list_->scrollToItem(list_->item(std::max(0, depth - 1)), QAbstractItemView::PositionAtCenter);
}

void FolderFace::open(const QListWidgetItem* item) {
  if (item == nullptr) return;
  const std::string path = toText(item->data(pathRole).toString());
  act([&] { folders_.userOpen(path); });
}

bool FolderFace::findTyped(const QString& typed) {
  if (typed.isEmpty()) {
    typed_.forget();
    return false;
  }
  const std::optional<int> row = rowTyped(typed_, typed, *list_);
  if (row) list_->setCurrentRow(*row);
  return true;
}

bool FolderFace::pressKey(QKeyEvent& key) {
  if (findTyped(typedCharacter(key))) return true;
  const std::int16_t code = keyCodeOf(key);
  const QListWidgetItem* marked = list_->currentItem();
  const QString present = fromText(folders_.path());
  const bool another = marked != nullptr && marked->data(pathRole).toString() != present;
  if ((code == keys::enter || code == keys::right) && another) {
    open(marked);
    return true;
  }
  if (code == keys::left) {
    open(list_->item(depth_ - 2));
    return true;
  }
  return Face::pressKey(key);
}

FileListFace::FileListFace(FormFace& form, FileList& files, QWidget* parent)
    : Face(form, files, makeList(parent)),
      files_(files),
      list_(static_cast<QListWidget*>(widget())) {
  list_->setAccessibleName(fromText(words::files));
  watch(list_->viewport());
}

void FileListFace::showContent() {
  QStringList rows;
  for (const std::string& name : files_.rows()) rows.append(fromText(name));
  QStringList shown;
  for (int row = 0; row < list_->count(); ++row) shown.append(list_->item(row)->text());
  if (rows != shown) {
    list_->clear();
    list_->addItems(rows);
  }
  list_->setCurrentRow(files_.index());
}

void FileListFace::choose(int row) {
  act([&] { files_.userChoose(row); });
}

bool FileListFace::pressMouse(QMouseEvent& mouse) {
  if (mouse.button() != Qt::LeftButton) return true;
  const QModelIndex row = list_->indexAt(mouse.position().toPoint());
  if (!row.isValid()) return true;
  if (mouse.type() == QEvent::MouseButtonDblClick && row.row() == files_.index()) {
    act([&] { files_.userDoubleClick(); });
  } else {
    choose(row.row());
  }
  return true;
}

bool FileListFace::pressKey(QKeyEvent& key) {
  const QString typed = typedCharacter(key);
  if (!typed.isEmpty()) {
    if (const std::optional<int> found = rowTyped(typed_, typed, *list_)) choose(*found);
    return true;
  }
  typed_.forget();
  const std::int16_t code = keyCodeOf(key);
  const int count = static_cast<int>(files_.rows().size());
  int row = -1;
  if (code == keys::up) row = std::max(0, files_.index() - 1);
  if (code == keys::down) row = std::min(count - 1, files_.index() + 1);
  if (code == keys::home) row = 0;
  if (code == keys::end) row = count - 1;
  if (row >= 0) choose(row);
  return row >= 0 || Face::pressKey(key);
}

}  // namespace awizo::desktop
