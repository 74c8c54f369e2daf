#include "linedialog/sort.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/forms/report_errors.h"

namespace awizo {
namespace {

void requireSegment(const Sorter::Keys& keys, const Sorter::Index& index, std::int32_t left,
                    std::int32_t right) {
  const auto size = static_cast<std::int64_t>(index.size());
  if (left < 0 || right >= size) throw errors::subscriptOutOfRange();
  for (std::int32_t i = left; i <= right; ++i) {
    const std::int32_t entry = index[static_cast<std::size_t>(i)];
    if (entry < 0 || static_cast<std::size_t>(entry) >= keys.size()) {
      throw errors::subscriptOutOfRange();
    }
  }
}

/// The last place that each rank takes when all are sorted.
std::vector<std::int32_t> lastPlaces(const std::vector<std::int32_t>& ranks) {
  std::vector<std::int32_t> counts;
  for (const std::int32_t rank : ranks) {
    const auto at = static_cast<std::size_t>(rank);
    if (at >= counts.size()) counts.resize(at + 1);
    ++counts[at];
  }
  std::int32_t place = -1;
  for (std::int32_t& count : counts) place = count += place;
  return counts;
}

}  // namespace

void Sorter::ReDimSplitArrays(std::int32_t n) {
  if (n < -1) throw errors::subscriptOutOfRange();
  SplitLeft.assign(static_cast<std::size_t>(n) + 1, 0);
  SplitRight.assign(static_cast<std::size_t>(n) + 1, 0);
}

void Sorter::QuickSortU(const Keys& keys, Index& index, std::int32_t left, std::int32_t right,
                        std::int32_t size) {
  ReDimSplitArrays(size + 1);
  QuickSort(keys, index, left, right);
}

void Sorter::QuickSort(const Keys& keys, Index& index, std::int32_t left, std::int32_t right) {
  reportErrors(screen_, "Произошла ошибка в  QuickSort()", [&] {
    prepare(keys, index, left, right);
    SplitTop = -1;
    if (placesAreKnown(left, right)) return putInPlaces(index, left, right);
    PutSplitAreas(left, right);
    while (SplitTop >= 0) {
      const auto [from, to] = GetSplitAreas();
      IQuickSort(keys, index, from, to);
    }
  });
  ranked_ = false;
}

void Sorter::PutSplitAreas(std::int32_t left, std::int32_t right) {
  reportErrors(screen_, "Произошла ошибка в  PutSplitAreas()", [&] {
    const auto top = static_cast<std::size_t>(SplitTop + 1);
    if (top >= SplitLeft.size() || top >= SplitRight.size()) throw errors::subscriptOutOfRange();
    SplitTop = SplitTop + 1;
    SplitLeft[top] = left;
    SplitRight[top] = right;
  });
}

std::pair<std::int32_t, std::int32_t> Sorter::GetSplitAreas() {
  std::pair<std::int32_t, std::int32_t> area{0, 0};
  reportErrors(screen_, "Произошла ошибка в  GetSplitAreas()", [&] {
    const auto top = static_cast<std::size_t>(SplitTop);
    if (SplitTop < 0 || top >= SplitLeft.size()) throw errors::subscriptOutOfRange();
    area = {SplitLeft[top], SplitRight[top]};
    SplitTop = SplitTop - 1;
  });
  return area;
}

void Sorter::IQuickSort(const Keys& keys, Index& index, std::int32_t left, std::int32_t right) {
  reportErrors(screen_, "Произошла ошибка в  IQuickSort()", [&] {
    if (left >= right) return;
    const std::int32_t pivot = Partition(keys, index, left, right);
    if (pivot < 0) return;
    PutSplitAreas(pivot + 1, right);
    PutSplitAreas(left, pivot - 1);
  });
}

std::int32_t Sorter::Partition(const Keys& keys, Index& index, std::int32_t left,
                               std::int32_t right) {
  std::int32_t pivot = -1;
  reportErrors(screen_, "Произошла ошибка в  Partition()", [&] {
    const bool alone = !ranked_;
    if (alone) prepare(keys, index, left, right);
    if (alone) requireSegment(keys, index, left, right);
    pivot = partitionRanked(index, left, right);
    if (alone) ranked_ = false;
  });
  return pivot;
}

/// Asks once for the places that the segment's texts have in order. A segment that isn't there is
/// left to Partition to report.
void Sorter::prepare(const Keys& keys, const Index& index, std::int32_t left, std::int32_t right) {
  ranked_ = false;
  if (left >= right) return;
  try {
    requireSegment(keys, index, left, right);
  } catch (const RunTimeError&) {
    return;
  }
  const auto from = static_cast<std::size_t>(left);
  const auto to = static_cast<std::size_t>(right) + 1;
  std::vector<std::string_view> texts;
  texts.reserve(to - from);
  for (std::size_t place = from; place < to; ++place) {
    texts.emplace_back(keys[static_cast<std::size_t>(index[place])]);
  }
  const std::vector<std::int32_t> ranks = conversions_.locale().ranks(texts);
  lastPlace_ = lastPlaces(ranks);
  for (std::int32_t& place : lastPlace_) place += left;
  ranks_.assign(from, 0);
  ranks_.insert(ranks_.end(), ranks.begin(), ranks.end());
  ranked_ = true;
}

/// Where no two keys are equal only one order is right, and a stack of full size can't fail.
bool Sorter::placesAreKnown(std::int32_t left, std::int32_t right) const {
  const auto count = static_cast<std::size_t>(std::max(right - left, 0)) + 1;
  return ranked_ && lastPlace_.size() == count &&
         std::min(SplitLeft.size(), SplitRight.size()) > count;
}

void Sorter::putInPlaces(Index& index, std::int32_t left, std::int32_t right) const {
  const Index old = index;
  for (auto place = static_cast<std::size_t>(left); place <= static_cast<std::size_t>(right);
       ++place) {
    index[static_cast<std::size_t>(left + ranks_[place])] = old[place];
  }
}

/// The walk swaps each key above the pivot, met from the left, with a key not above it, met from
/// the right; the pivot then goes after its equals. A segment always holds the very elements whose
/// sorted places it covers, so the pivot's place is known beforehand. Hence only the shorter side
/// is searched for misplaced keys, and the other side just as far as their partners: a sorted, a
/// reversed and an all-equal list take one step per element.
std::int32_t Sorter::partitionRanked(Index& index, std::int32_t left, std::int32_t right) {
  const auto rank = [&](std::int32_t place) -> std::int32_t& {
    return ranks_[static_cast<std::size_t>(place)];
  };
  const auto swapPlaces = [&](std::int32_t a, std::int32_t b) {
    std::swap(index[static_cast<std::size_t>(a)], index[static_cast<std::size_t>(b)]);
    std::swap(rank(a), rank(b));
  };
  const std::int32_t pivotRank = rank(left);
  const std::int32_t pivot = std::min(lastPlace_[static_cast<std::size_t>(pivotRank)], right);
  if (pivot - left <= right - pivot) {
    std::int32_t j = right;
    for (std::int32_t i = left + 1; i <= pivot; ++i) {
      if (rank(i) <= pivotRank) continue;
      while (rank(j) > pivotRank) --j;
      swapPlaces(i, j--);
    }
  } else {
    std::int32_t i = left + 1;
    for (std::int32_t j = right; j > pivot; --j) {
      if (rank(j) > pivotRank) continue;
      while (rank(i) <= pivotRank) ++i;
      swapPlaces(i++, j);
    }
  }
  swapPlaces(left, pivot);
  return pivot;
}

}  // namespace awizo
