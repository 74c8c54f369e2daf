#include "hosts/desktop/window/packing_models.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

#include "desk/layout_words.h"
#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {
namespace {

/// Of rows of grdPozycje. Only the program that it comes from reads it: another's rows are other
/// lines.
QString linesKind() {
  return "application/x-awizo-lines-" + QString::number(QCoreApplication::applicationPid());
}

QVariant heading(int section, Qt::Orientation orientation, int role,
                 std::initializer_list<std::string_view> headings) {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return fromText(headings.begin()[section]);
}

}  // namespace

void PackingLinesModel::show(std::vector<PackingLine> lines) {
  beginResetModel();
  lines_ = std::move(lines);
  endResetModel();
}

int PackingLinesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant PackingLinesModel::data(const QModelIndex& index, int role) const {
  const PackingLine& shown = line(index);
  if (role == Qt::TextAlignmentRole && index.column() == packed) {
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (role == Qt::ToolTipRole) return fromText(shown.name);
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case number:
      return fromText(shown.number);
    case name:
      return fromText(shown.name);
    default:
      return fromText(shown.packed);
  }
}

QVariant PackingLinesModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return heading(section, orientation, role,
                 {words::packingNumber, words::packingGoods, words::packingPacked});
}

Qt::ItemFlags PackingLinesModel::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
}

QStringList PackingLinesModel::mimeTypes() const { return {linesKind()}; }

QMimeData* PackingLinesModel::mimeData(const QModelIndexList& indexes) const {
  QList<int> rows;
  for (const QModelIndex& index : indexes) {
    if (index.column() == number) rows << line(index).row;
  }
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream << rows;
  auto* data = new QMimeData;
  data->setData(linesKind(), bytes);
  return data;
}

void PackingPlacesModel::show(std::vector<PackingPlace> places) {
  beginResetModel();
  places_ = std::move(places);
  nodes_.assign(places_.size(), {});
  top_.clear();
  std::vector<int> way;
  for (std::size_t i = 0; i < places_.size(); ++i) {
    way.resize(static_cast<std::size_t>(places_[i].level - 1));
    Node& node = nodes_[i];
    node.parent = way.empty() ? -1 : way.back();
    std::vector<int>& siblings =
        way.empty() ? top_ : nodes_[static_cast<std::size_t>(node.parent)].children;
    node.row = static_cast<int>(siblings.size());
    siblings.push_back(static_cast<int>(i));
    way.push_back(static_cast<int>(i));
  }
  endResetModel();
}

const std::vector<int>& PackingPlacesModel::childrenOf(const QModelIndex& parent) const {
  return parent.isValid() ? nodes_[parent.internalId()].children : top_;
}

QModelIndex PackingPlacesModel::indexOfPackage(int package) const {
  for (std::size_t i = 0; i < places_.size(); ++i) {
    if (places_[i].package == package && places_[i].line == 0) {
      return createIndex(nodes_[i].row, name, i);
    }
  }
  return {};
}

QModelIndex PackingPlacesModel::index(int row, int column, const QModelIndex& parent) const {
  const std::vector<int>& children = childrenOf(parent);
  if (row < 0 || row >= static_cast<int>(children.size()) || column < 0 || column >= columns) {
    return {};
  }
  return createIndex(row, column, static_cast<quintptr>(children[static_cast<std::size_t>(row)]));
}

QModelIndex PackingPlacesModel::parent(const QModelIndex& child) const {
  const int parent = nodes_[child.internalId()].parent;
  if (parent < 0) return {};
  return createIndex(nodes_[static_cast<std::size_t>(parent)].row, name,
                     static_cast<quintptr>(parent));
}

int PackingPlacesModel::rowCount(const QModelIndex& parent) const {
  return parent.column() > 0 ? 0 : static_cast<int>(childrenOf(parent).size());
}

QVariant PackingPlacesModel::data(const QModelIndex& index, int role) const {
  const PackingPlace& shown = place(index);
  if (role == Qt::ToolTipRole) return fromText(shown.name);
  if (role != Qt::DisplayRole) return {};
  return fromText(index.column() == name ? shown.name : shown.quantity);
}

QVariant PackingPlacesModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return heading(section, orientation, role, {words::packingPackage, words::packingQuantity});
}

Qt::ItemFlags PackingPlacesModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags usual = QAbstractItemModel::flags(index);
  return index.isValid() ? usual | Qt::ItemIsDropEnabled : usual;
}

QStringList PackingPlacesModel::mimeTypes() const { return {linesKind()}; }

bool PackingPlacesModel::dropMimeData(const QMimeData* data, Qt::DropAction, int, int,
                                      const QModelIndex& parent) {
  if (!parent.isValid() || !data->hasFormat(linesKind()) || !onDrop) return false;
  QList<int> rows;
  QDataStream stream(data->data(linesKind()));
  stream >> rows;
  onDrop({rows.begin(), rows.end()}, place(parent).package);
  return true;
}

}  // namespace awizo::desktop
