#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace awizo::test {

/// The walk of the sort in its plainest form, with keys as plain numbers.
struct SortModel {
  const std::vector<int>& keys;
  std::vector<std::int32_t>& index;
  std::vector<std::pair<int, int>> stack{};
  std::size_t highestStack = 0;
  int partitions = 0;

  int key(int place) const {
    return keys[static_cast<std::size_t>(index[static_cast<std::size_t>(place)])];
  }
  void swapPlaces(int a, int b) {
    std::swap(index[static_cast<std::size_t>(a)], index[static_cast<std::size_t>(b)]);
  }

  int partition(int left, int right) {
    const int pivot = key(left);
    int i = left + 1;
    int j = right;
    while (true) {
      while (i <= j && key(i) <= pivot) ++i;
      while (i <= j && key(j) > pivot) --j;
      if (i < j) {
        swapPlaces(i, j);
        ++i;
        --j;
      }
      if (i > j) break;
    }
    swapPlaces(left, j);
    return j;
  }

  void push(int left, int right) {
    stack.emplace_back(left, right);
    highestStack = std::max(highestStack, stack.size());
  }

  void sort(int left, int right) {
    push(left, right);
    while (!stack.empty()) {
      const auto [from, to] = stack.back();
      stack.pop_back();
      if (from >= to) continue;
      ++partitions;
      const int pivot = partition(from, to);
      push(pivot + 1, to);
      push(from, pivot - 1);
    }
  }
};

}  // namespace awizo::test
