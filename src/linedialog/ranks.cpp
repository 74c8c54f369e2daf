#include "linedialog/ranks.h"

#include <algorithm>

#include "platform/narrow.h"

namespace awizo {

/// Entries whose keys are equal before a depth.
struct KeyStore::Run {
  std::size_t first;
  std::size_t last;  ///< behind the last entry
  std::size_t depth;
};

std::uint64_t KeyStore::wordAt(std::int32_t key, std::size_t depth) const {
  const auto place = static_cast<std::size_t>(key);
  const std::size_t start = place == 0 ? 0 : ends_[place - 1];
  const std::size_t length = ends_[place] - start;
  std::uint64_t word = 0;
  for (std::size_t i = depth; i < depth + sizeof word; ++i) {
    const auto byte = i < length ? static_cast<unsigned char>(bytes_[start + i]) : 0U;
    word = (word << 8) | byte;
  }
  return word;
}

void KeyStore::sortRun(std::vector<Entry>& entries, const Run& run) const {
  const auto at = [&](std::size_t place) {
    return entries.begin() + static_cast<std::ptrdiff_t>(place);
  };
  for (auto entry = at(run.first); entry != at(run.last); ++entry) {
    entry->word = wordAt(entry->key, run.depth);
  }
  std::sort(at(run.first), at(run.last),
            [](const Entry& a, const Entry& b) { return a.word < b.word; });
}

Ranks KeyStore::ranks() const {
  std::vector<Entry> entries(ends_.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    entries[i].key = narrow32(static_cast<std::int64_t>(i));
  }
  std::vector<bool> equalsItsFormer(entries.size(), false);
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
      const bool ended = (word & 0xFF) == 0;
      if (!ended) runs.push_back({first, last, run.depth + sizeof word});
      for (std::size_t i = first + 1; ended && i < last; ++i) equalsItsFormer[i] = true;
    }
  }

  Ranks ranks;
  ranks.rankOf.resize(entries.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (!equalsItsFormer[i]) ranks.lastPlace.push_back(0);
    ranks.lastPlace.back() = static_cast<std::int32_t>(i);
    ranks.rankOf[static_cast<std::size_t>(entries[i].key)] =
        static_cast<std::int32_t>(ranks.lastPlace.size()) - 1;
  }
  return ranks;
}

}  // namespace awizo
