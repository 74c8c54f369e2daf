#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace awizo {

/// Places of keys in their order; equal keys have equal ranks.
struct Ranks {
  std::vector<std::int32_t> rankOf;     ///< of each key, from 0
  std::vector<std::int32_t> lastPlace;  ///< of each rank: the last place it takes when sorted
};

/// Many keys, one behind the other in one text. No key holds a byte 0.
class KeyStore {
 public:
  void reserve(std::size_t count) { ends_.reserve(count); }
  void add(const std::string& key) {
    bytes_ += key;
    ends_.push_back(bytes_.size());
  }

  /// Compares the keys eight bytes at a time, as numbers.
  Ranks ranks() const;

 private:
  struct Entry {
    std::uint64_t word;  ///< the eight bytes of the key that decide now, zeros behind its end
    std::int32_t key;
  };
  struct Run;

  std::uint64_t wordAt(std::int32_t key, std::size_t depth) const;
  void sortRun(std::vector<Entry>& entries, const Run& run) const;

  std::string bytes_;
  std::vector<std::size_t> ends_;
};

}  // namespace awizo
