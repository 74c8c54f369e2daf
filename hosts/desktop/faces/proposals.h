#pragma once

#include <QAbstractListModel>
#include <QString>
#include <vector>

#include "platform/forms/drop_down_list.h"

namespace awizo::desktop {

/// The rows of a list that fit what is typed. A row fits when it holds every word that is typed, in
/// any case and anywhere; those that begin with what is typed come first. Long lists are searched
/// at every key, so rows are folded once, and only so many are proposed as a user would read.
class Proposals : public QAbstractListModel {
 public:
  static constexpr int most = 100;

  Proposals(const DropDownList& list, QObject* parent) : QAbstractListModel(parent), list_(list) {}

  /// The list's rows are others now; nothing is proposed until the next call of propose().
  void rowsChanged();
  /// Folds the rows now, which takes its time for a long list, and not at the next key.
  void prepare();
  void propose(const QString& typed);
  /// The list's row that a proposal stands for.
  int listRow(int proposal) const { return fitting_[static_cast<std::size_t>(proposal)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  QStringView foldedRow(std::size_t row) const;

  const DropDownList& list_;
  QString folded_;               ///< all rows in one, each with a line feed behind it
  std::vector<qsizetype> ends_;  ///< where each row ends in it
  std::vector<int> fitting_;
  bool stale_ = true;
};

}  // namespace awizo::desktop
