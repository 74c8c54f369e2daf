#include "adapters/icu/key_store.h"

#include <algorithm>

#include "platform/narrow.h"

namespace awizo::icu_locale {
namespace {

constexpr std::size_t wordSize = sizeof(std::uint64_t);

/// The first byte weighs most; zeros follow the end of the text.
std::uint64_t wordOf(std::string_view bytes) {
  std::uint64_t word = 0;
  for (std::size_t i = 0; i < wordSize; ++i) {
    word = (word << 8) | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
  }
  return word;
}

bool endsKey(std::uint64_t word) { return (word & 0xFF) == 0; }

}  // namespace

/// Entries whose keys are equal in the words before `depth`.
struct KeyStore::Run {
  std::size_t first;
  std::size_t last;  ///< after the last entry
  std::size_t depth;
};

void KeyStore::add(std::string_view key) {
  starts_.push_back(words_.size());
  for (; key.size() >= wordSize; key.remove_prefix(wordSize)) {
    words_.push_back(wordOf(key.substr(0, wordSize)));
  }
  words_.push_back(wordOf(key));
}

void KeyStore::sortRun(std::vector<Entry>& entries, const Run& run) const {
  const auto first = entries.begin() + static_cast<std::ptrdiff_t>(run.first);
  const auto last = entries.begin() + static_cast<std::ptrdiff_t>(run.last);
  for (auto entry = first; entry != last; ++entry) {
    entry->word = words_[starts_[static_cast<std::size_t>(entry->key)] + run.depth];
  }
  std::sort(first, last, [](const Entry& a, const Entry& b) { return a.word < b.word; });
}

std::vector<KeyStore::Entry> KeyStore::sorted(std::vector<bool>& equalsItsFormer) const {
  std::vector<Entry> entries(starts_.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    entries[i].key = narrow32(static_cast<std::int64_t>(i));
  }
  equalsItsFormer.assign(entries.size(), false);
  // A list, not a recursion: keys may be long and equal to their ends.
  std::vector<Run> runs{{0, entries.size(), 0}};
  while (!runs.empty()) {
    const Run run = runs.back();
    runs.pop_back();
    sortRun(entries, run);
    for (std::size_t first = run.first, last = first; first < run.last; first = last) {
      const std::uint64_t word = entries[first].word;
      while (last < run.last && entries[last].word == word) ++last;
      if (last - first == 1) continue;
      if (!endsKey(word)) {
        runs.push_back({first, last, run.depth + 1});
        continue;
      }
      for (std::size_t place = first + 1; place < last; ++place) equalsItsFormer[place] = true;
    }
  }
  return entries;
}

std::vector<std::int32_t> KeyStore::ranks() const {
  std::vector<bool> equalsItsFormer;
  const std::vector<Entry> entries = sorted(equalsItsFormer);
  std::vector<std::int32_t> ranks(entries.size());
  std::int32_t rank = -1;
  for (std::size_t place = 0; place < entries.size(); ++place) {
    if (!equalsItsFormer[place]) ++rank;
    ranks[static_cast<std::size_t>(entries[place].key)] = rank;
  }
  return ranks;
}

}  // namespace awizo::icu_locale
