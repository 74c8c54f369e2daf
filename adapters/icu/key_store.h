#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace awizo::icu_locale {

/// Many keys, held as numbers of eight bytes each, so that whole words are compared at a time.
class KeyStore {
 public:
  /// Makes room for this many keys.
  void reserve(std::size_t count) { starts_.reserve(count); }
  /// A key holds no byte 0.
  void add(std::string_view key);

  /// The place of each key in the order of all, from 0; equal keys have equal places.
  std::vector<std::int32_t> ranks() const;

 private:
  struct Entry {
    std::uint64_t word;  ///< the part of the key that decides now
    std::int32_t key;
  };
  struct Run;

  void sortRun(std::vector<Entry>& entries, const Run& run) const;
  /// The keys in their order; `equalsItsFormer` says of each place whether the key before is equal.
  std::vector<Entry> sorted(std::vector<bool>& equalsItsFormer) const;

  std::vector<std::uint64_t> words_;  ///< the last word of each key ends in zeros, at least one
  std::vector<std::size_t> starts_;
};

}  // namespace awizo::icu_locale
