#include "hosts/desktop/faces/proposals.h"

#include <QStringList>
#include <algorithm>
#include <utility>

#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {

void Proposals::rowsChanged() {
  stale_ = true;
  beginResetModel();
  fitting_.clear();
  endResetModel();
}

void Proposals::prepare() {
  if (!std::exchange(stale_, false)) return;
  // One text for all rows is read and folded several times faster than thousands of small ones.
  std::string all;
  for (const std::string& row : list_.rows()) {
    const std::size_t start = all.size();
    all += row;
    std::replace(all.begin() + static_cast<std::ptrdiff_t>(start), all.end(), '\n', ' ');
    all += '\n';
  }
  folded_ = fromText(all).toCaseFolded();
  ends_.clear();
  ends_.reserve(list_.rows().size());
  for (qsizetype end = folded_.indexOf('\n'); end >= 0; end = folded_.indexOf('\n', end + 1)) {
    ends_.push_back(end);
  }
}

QStringView Proposals::foldedRow(std::size_t row) const {
  const qsizetype start = row == 0 ? 0 : ends_[row - 1] + 1;
  return QStringView(folded_).mid(start, ends_[row] - start);
}

void Proposals::propose(const QString& typed) {
  prepare();
  beginResetModel();
  fitting_.clear();
  const QString whole = typed.toCaseFolded().trimmed();
  const QStringList words = whole.split(' ', Qt::SkipEmptyParts);
  std::vector<int> within;
  const auto full = [](const std::vector<int>& rows) { return rows.size() >= most; };
  for (std::size_t row = 0; row < ends_.size() && !words.isEmpty() && !full(fitting_); ++row) {
    const QStringView text = foldedRow(row);
    if (text.startsWith(whole)) {
      fitting_.push_back(static_cast<int>(row));
    } else if (!full(within) && std::all_of(words.begin(), words.end(), [&](const QString& word) {
                 return text.contains(word);
               })) {
      within.push_back(static_cast<int>(row));
    }
  }
  fitting_.insert(fitting_.end(), within.begin(), within.end());
  if (full(fitting_)) fitting_.resize(most);
  endResetModel();
}

int Proposals::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(fitting_.size());
}

QVariant Proposals::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) return {};
  const int row = listRow(index.row());
  return row < list_.count() ? fromText(list_.rows()[static_cast<std::size_t>(row)]) : QString();
}

}  // namespace awizo::desktop
