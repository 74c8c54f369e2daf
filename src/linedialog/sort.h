#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "foundation/conversions.h"
#include "platform/forms/screen.h"

namespace awizo {

/// Sorts an index array over a key array that stays where it is: key[index[0]], key[index[1]], ...
/// come out in order. The quicksort walks with the first element of a segment as its pivot and an
/// explicit stack; among equal keys the walk decides. Every procedure reports its errors in a box
/// and returns, so a wrong call leaves a partly sorted index that is still a permutation.
class Sorter {
 public:
  Sorter(Screen& screen, const Conversions& conversions)
      : screen_(screen), conversions_(conversions) {}

  using Keys = std::vector<std::string>;
  using Index = std::vector<std::int32_t>;

  /// Sorts the segment from left to right, both included, ascending and blind to case.
  void QuickSort(const Keys& keys, Index& index, std::int32_t left, std::int32_t right);
  /// Makes room in the stack for `size` elements first.
  void QuickSortU(const Keys& keys, Index& index, std::int32_t left, std::int32_t right,
                  std::int32_t size);
  /// The same walk, descending by number; texts that are no numbers end up last.
  void QuickSortNumbers(const Keys& keys, Index& index, std::int32_t left, std::int32_t right);
  /// Sets the stack's bounds to 0 to n.
  void ReDimSplitArrays(std::int32_t n);

  /// -1, 0 or 1; a text that can't be read counts as the number -1.
  std::int16_t CompareNumbers(const std::string& a, const std::string& b) const;
  double ToNumberOrMinusOne(const std::string& text) const;

  // One step on one segment, and its parts.
  void IQuickSort(const Keys& keys, Index& index, std::int32_t left, std::int32_t right);
  void IQuickSortNumbers(const Keys& keys, Index& index, std::int32_t left, std::int32_t right);
  /// Position of the pivot, or -1 after a reported error.
  std::int32_t Partition(const Keys& keys, Index& index, std::int32_t left, std::int32_t right);
  std::int32_t PartitionNumbers(const Keys& keys, Index& index, std::int32_t left,
                                std::int32_t right);
  void PutSplitAreas(std::int32_t left, std::int32_t right);
  std::pair<std::int32_t, std::int32_t> GetSplitAreas();

  std::vector<std::int32_t> SplitLeft, SplitRight;
  std::int32_t SplitTop = -1;

 private:
  void prepare(const Keys& keys, const Index& index, std::int32_t left, std::int32_t right);
  bool placesAreKnown(std::int32_t left, std::int32_t right) const;
  void putInPlaces(Index& index, std::int32_t left, std::int32_t right) const;
  std::int32_t partitionRanked(Index& index, std::int32_t left, std::int32_t right);

  Screen& screen_;
  const Conversions& conversions_;

  // While QuickSort runs: each place's rank, and for each rank the last place it takes when sorted.
  std::vector<std::int32_t> ranks_;
  std::vector<std::int32_t> lastPlace_;
  bool ranked_ = false;
};

}  // namespace awizo
