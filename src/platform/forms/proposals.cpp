#include "platform/forms/proposals.h"

#include <algorithm>
#include <array>
#include <utility>

namespace awizo {
namespace {

/// White space that isn't a control character.
constexpr std::array<std::string_view, 19> spaces{" ",      "\u00a0", "\u1680", "\u2000", "\u2001",
                                                  "\u2002", "\u2003", "\u2004", "\u2005", "\u2006",
                                                  "\u2007", "\u2008", "\u2009", "\u200a", "\u2028",
                                                  "\u2029", "\u202f", "\u205f", "\u3000"};

std::string_view withoutOuterSpaces(std::string_view text) {
  const auto isAtStart = [&](std::string_view space) { return text.starts_with(space); };
  const auto isAtEnd = [&](std::string_view space) { return text.ends_with(space); };
  const auto end = spaces.end();
  for (auto at = end; (at = std::find_if(spaces.begin(), end, isAtStart)) != end;) {
    text.remove_prefix(at->size());
  }
  for (auto at = end; (at = std::find_if(spaces.begin(), end, isAtEnd)) != end;) {
    text.remove_suffix(at->size());
  }
  return text;
}

std::vector<std::string_view> wordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    if (!word.empty()) words.push_back(word);
    text.remove_prefix(std::min(word.size() + 1, text.size()));
  }
  return words;
}

/// Looks for the word's last byte: the first bytes of all letters of an alphabet can be the same.
bool holds(std::string_view text, std::string_view word) {
  const auto next = [&](std::size_t from) { return text.find(word.back(), from); };
  for (std::size_t at = next(word.size() - 1); at != text.npos; at = next(at + 1)) {
    if (text.substr(at + 1 - word.size(), word.size()) == word) return true;
  }
  return false;
}

}  // namespace

void Proposals::rowsChanged() {
  stale_ = true;
  rows_.clear();
}

void Proposals::prepare() {
  if (!std::exchange(stale_, false)) return;
  // Many rows are folded in one text, several times faster than each alone; not all, since texts
  // of megabytes are slow to make.
  constexpr std::size_t enough = 1 << 15;
  folded_.clear();
  std::string some;
  const auto foldThem = [&] {
    folded_ += fold_(some);
    some.clear();
  };
  for (const std::string& row : list_.rows()) {
    std::size_t place = some.size();
    some += row;
    while ((place = some.find('\n', place)) != some.npos) some[place] = ' ';
    some += '\n';
    if (some.size() > enough) foldThem();
  }
  foldThem();
  ends_.clear();
  ends_.reserve(list_.rows().size());
  for (std::size_t end = folded_.find('\n'); end != folded_.npos;
       end = folded_.find('\n', end + 1)) {
    ends_.push_back(end);
  }
}

std::string_view Proposals::foldedRow(std::size_t row) const {
  const std::size_t start = row == 0 ? 0 : ends_[row - 1] + 1;
  return std::string_view(folded_).substr(start, ends_[row] - start);
}

void Proposals::propose(std::string_view typed) {
  prepare();
  rows_.clear();
  const std::string folded = fold_(typed);
  const std::string_view whole = withoutOuterSpaces(folded);
  const std::vector<std::string_view> words = wordsOf(whole);
  std::vector<int> within;
  const auto full = [](const std::vector<int>& rows) { return rows.size() >= most; };
  for (std::size_t row = 0; row < ends_.size() && !words.empty() && !full(rows_); ++row) {
    const std::string_view text = foldedRow(row);
    if (text.starts_with(whole)) {
      rows_.push_back(static_cast<int>(row));
    } else if (!full(within) && std::ranges::all_of(words, [&](std::string_view word) {
                 return holds(text, word);
               })) {
      within.push_back(static_cast<int>(row));
    }
  }
  rows_.insert(rows_.end(), within.begin(), within.end());
  if (full(rows_)) rows_.resize(most);
}

}  // namespace awizo
