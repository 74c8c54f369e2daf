#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <string>

#include "platform/forms/table.h"

namespace awizo::desktop {

/// The data rows of a table, read from the model as they are asked for. The fixed rows are in the
/// header of the view: view row 0 is the table's first row below them.
class TableRows : public QAbstractTableModel {
 public:
  TableRows(const Table& table, QObject* parent)
      : QAbstractTableModel(parent), table_(table), count_(table.rows() - table.fixedRows()) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// What a row has to say besides its cells, empty for nothing: shown in the cells' tips, and read
  /// to those who don't see the row's colour. May be empty.
  std::function<std::string(int row)> describe;

  void changed();
  void cellChanged(int row, int column);
  QModelIndex indexOf(int row, int column) const;
  int tableRow(int viewRow) const { return viewRow + table_.fixedRows(); }

 private:
  QString wordsOf(int row) const;
  QString tipOf(int row, int column) const;

  const Table& table_;
  int count_;  ///< as last reported to the view, which must not see an unreported change
};

}  // namespace awizo::desktop
