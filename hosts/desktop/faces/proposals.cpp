#include "hosts/desktop/faces/proposals.h"

#include <algorithm>

#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {

void Proposals::setRows(const std::vector<std::string>& rows) {
  beginResetModel();
  fitting_.clear();
  texts_.clear();
  folded_.clear();
  texts_.reserve(rows.size());
  folded_.reserve(rows.size());
  for (const std::string& row : rows) {
    texts_.push_back(fromText(row));
    folded_.push_back(texts_.back().toCaseFolded());
  }
  endResetModel();
}

void Proposals::propose(const QString& typed) {
  beginResetModel();
  fitting_.clear();
  const QString whole = typed.toCaseFolded().trimmed();
  const QStringList words = whole.split(' ', Qt::SkipEmptyParts);
  std::vector<int> within;
  const auto full = [](const std::vector<int>& rows) { return rows.size() >= most; };
  for (std::size_t row = 0; row < folded_.size() && !words.isEmpty() && !full(fitting_); ++row) {
    const QString& text = folded_[row];
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
  return texts_[static_cast<std::size_t>(listRow(index.row()))];
}

}  // namespace awizo::desktop
