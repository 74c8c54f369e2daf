#include "hosts/desktop/faces/table_rows.h"

#include <QColor>
#include <QFont>

#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {
namespace {

QVariant alignmentOf(const CellLook& look) {
  switch (look.alignment) {
    case Alignment::centre:
      return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    case Alignment::right:
      return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    case Alignment::left:
      break;
  }
  return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
}

QVariant fontOf(const CellLook& look) {
  if (!look.bold) return {};
  QFont bold;
  bold.setBold(true);
  return bold;
}

}  // namespace

int TableRows::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count_; }

int TableRows::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : table_.columns();
}

QVariant TableRows::data(const QModelIndex& index, int role) const {
  const int row = tableRow(index.row());
  if (!index.isValid() || row >= table_.rows()) return {};
  const CellLook& look = table_.look(row, index.column());
  const bool coloured = look.background != white;
  switch (role) {
    case Qt::DisplayRole:
      return fromText(table_.cell(row, index.column()));
    case Qt::ToolTipRole:
      return tipOf(row, index.column());
    case Qt::AccessibleDescriptionRole:
      return wordsOf(row);
    case Qt::TextAlignmentRole:
      return alignmentOf(look);
    case Qt::FontRole:
      return fontOf(look);
    case Qt::BackgroundRole:
      if (!coloured) return {};
      return QColor(look.background.red, look.background.green, look.background.blue);
    case Qt::ForegroundRole:
      // The colours are light ones: their texts are dark in a dark scheme too.
      if (!coloured) return {};
      return QColor(Qt::black);
    default:
      return {};
  }
}

QString TableRows::wordsOf(int row) const { return describe ? fromText(describe(row)) : QString(); }

QString TableRows::tipOf(int row, int column) const {
  const QString text = fromText(table_.cell(row, column));
  const QString words = wordsOf(row);
  return words.isEmpty() ? text : text + "\n" + words;
}

QVariant TableRows::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || table_.fixedRows() == 0) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return fromText(table_.cell(0, section));
    case Qt::TextAlignmentRole:
      return alignmentOf(table_.look(0, section));
    case Qt::FontRole:
      return fontOf(table_.look(0, section));
    default:
      return {};
  }
}

void TableRows::changed() {
  beginResetModel();
  count_ = table_.rows() - table_.fixedRows();
  endResetModel();
}

void TableRows::cellChanged(int row, int column) {
  if (row < table_.fixedRows()) {
    emit headerDataChanged(Qt::Horizontal, column, column);
    return;
  }
  const QModelIndex cell = indexOf(row, column);
  if (cell.isValid()) emit dataChanged(cell, cell);
}

QModelIndex TableRows::indexOf(int row, int column) const {
  return index(row - table_.fixedRows(), column);
}

}  // namespace awizo::desktop
