#include <utility>

#include "linedialog/sort.h"
#include "platform/forms/report_errors.h"

namespace awizo {

double Sorter::ToNumberOrMinusOne(const std::string& text) const {
  try {
    return conversions_.toDouble(text);
  } catch (const RunTimeError&) {
    return -1;
  }
}

std::int16_t Sorter::CompareNumbers(const std::string& a, const std::string& b) const {
  const double x = ToNumberOrMinusOne(a);
  const double y = ToNumberOrMinusOne(b);
  if (x == -1 && y == -1) return static_cast<std::int16_t>(conversions_.locale().compare(a, b));
  if (x == -1) return -1;
  if (y == -1) return 1;
  return static_cast<std::int16_t>((x > y) - (x < y));
}

void Sorter::QuickSortNumbers(const Keys& keys, Index& index, std::int32_t left,
                              std::int32_t right) {
  reportErrors(screen_, "Произошла ошибка в  QuickSortNumbers()", [&] {
    SplitTop = -1;
    PutSplitAreas(left, right);
    while (SplitTop >= 0) {
      const auto [from, to] = GetSplitAreas();
      IQuickSortNumbers(keys, index, from, to);
    }
  });
}

void Sorter::IQuickSortNumbers(const Keys& keys, Index& index, std::int32_t left,
                               std::int32_t right) {
  reportErrors(screen_, "Произошла ошибка в  IQuickSortNumbers()", [&] {
    if (left >= right) return;
    const std::int32_t pivot = PartitionNumbers(keys, index, left, right);
    if (pivot < 0) return;
    PutSplitAreas(pivot + 1, right);
    PutSplitAreas(left, pivot - 1);
  });
}

/// The tests are the inverse of the text walk's: the order is descending, and keys equal to the
/// pivot go to its right.
std::int32_t Sorter::PartitionNumbers(const Keys& keys, Index& index, std::int32_t left,
                                      std::int32_t right) {
  std::int32_t pivot = -1;
  reportErrors(screen_, "Произошла ошибка в  PartitionNumbers()", [&] {
    const auto entry = [&](std::int32_t place) -> std::int32_t& {
      if (place < 0 || static_cast<std::size_t>(place) >= index.size()) {
        throw errors::subscriptOutOfRange();
      }
      return index[static_cast<std::size_t>(place)];
    };
    const auto key = [&](std::int32_t place) -> const std::string& {
      const std::int32_t at = entry(place);
      if (at < 0 || static_cast<std::size_t>(at) >= keys.size()) {
        throw errors::subscriptOutOfRange();
      }
      return keys[static_cast<std::size_t>(at)];
    };
    const std::string& pivotKey = key(left);
    std::int32_t i = left + 1;
    std::int32_t j = right;
    while (i <= j) {
      while (i <= j && CompareNumbers(key(i), pivotKey) > 0) ++i;
      while (i <= j && CompareNumbers(key(j), pivotKey) <= 0) --j;
      if (i < j) std::swap(entry(i++), entry(j--));
    }
    std::swap(entry(left), entry(j));
    pivot = j;
  });
  return pivot;
}

}  // namespace awizo
