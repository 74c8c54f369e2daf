#include "hosts/desktop/faces/proposals_model.h"

#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {

ProposalsModel::ProposalsModel(const DropDownList& list, QObject* parent)
    : QAbstractListModel(parent), list_(list), proposals_(list, [](std::string_view text) {
        return toText(fromText(text).toCaseFolded());
      }) {}

void ProposalsModel::rowsChanged() {
  beginResetModel();
  proposals_.rowsChanged();
  endResetModel();
}

void ProposalsModel::propose(const QString& typed) {
  beginResetModel();
  proposals_.propose(toText(typed));
  endResetModel();
}

int ProposalsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(proposals_.rows().size());
}

QVariant ProposalsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) return {};
  const int row = listRow(index.row());
  return row < list_.count() ? fromText(list_.rows()[static_cast<std::size_t>(row)]) : QString();
}

}  // namespace awizo::desktop
