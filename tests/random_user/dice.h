#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace awizo::test {

/// Chance that is the same at every run with the same seed, on every machine.
class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}

  /// 0 to `below` - 1; 0 where there is no choice.
  int below(int count) {
    return count < 1 ? 0 : static_cast<int>(engine_() % static_cast<unsigned>(count));
  }
  bool percent(int chance) { return below(100) < chance; }
  template <class Item>
  const Item& pick(const std::vector<Item>& items) {
    return items[static_cast<std::size_t>(below(static_cast<int>(items.size())))];
  }

 private:
  std::mt19937 engine_;
};

}  // namespace awizo::test
