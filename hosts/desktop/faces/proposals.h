#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <cstdint>
#include <string>
#include <vector>

namespace awizo::desktop {

/// The rows of a list that fit what is typed. A row fits when it holds every word that is typed, in
/// any case and anywhere; those that begin with what is typed come first. Long lists are searched
/// at every key, so texts are folded once, and only so many rows are proposed as a user would read.
class Proposals : public QAbstractListModel {
 public:
  static constexpr int most = 100;

  explicit Proposals(QObject* parent) : QAbstractListModel(parent) {}

  /// Takes over the rows in which to search.
  void setRows(const std::vector<std::string>& rows);
  void propose(const QString& typed);
  /// The list's row that a proposal stands for.
  int listRow(int proposal) const { return fitting_[static_cast<std::size_t>(proposal)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<QString> texts_;
  std::vector<QString> folded_;
  std::vector<int> fitting_;
};

}  // namespace awizo::desktop
