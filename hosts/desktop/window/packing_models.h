#pragma once

#include <QAbstractItemModel>
#include <functional>
#include <vector>

#include "desk/packing_overview.h"

namespace awizo::desktop {

/// Lines with what of them is packed, as Qt's views read them; they can be dragged.
class PackingLinesModel : public QAbstractTableModel {
 public:
  enum Column { number, name, packed, columns };

  using QAbstractTableModel::QAbstractTableModel;

  void show(std::vector<PackingLine> lines);
  const PackingLine& line(const QModelIndex& index) const {
    return lines_[static_cast<std::size_t>(index.row())];
  }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex&) const override { return columns; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;

 private:
  std::vector<PackingLine> lines_;
};

/// Packages with what is in them, as a tree; lines can be dropped on them.
class PackingPlacesModel : public QAbstractItemModel {
 public:
  enum Column { name, quantity, columns };

  using QAbstractItemModel::QAbstractItemModel;

  void show(std::vector<PackingPlace> places);
  const PackingPlace& place(const QModelIndex& index) const { return places_[index.internalId()]; }
  /// Invalid for a package that isn't there.
  QModelIndex indexOfPackage(int package) const;

  /// Rows of grdPozycje were dropped on a package. May be empty.
  std::function<void(const std::vector<int>& lines, int package)> onDrop;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex&) const override { return columns; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QStringList mimeTypes() const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 private:
  /// Where a place stands in the tree; numbers of places.
  struct Node {
    int parent = -1;
    int row = 0;  ///< among its parent's
    std::vector<int> children = {};
  };

  const std::vector<int>& childrenOf(const QModelIndex& parent) const;

  std::vector<PackingPlace> places_;
  std::vector<Node> nodes_;  ///< of each place
  std::vector<int> top_;
};

}  // namespace awizo::desktop
