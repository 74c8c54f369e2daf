#include "numbers/given_numbers.h"

#include <algorithm>

#include "foundation/conversions.h"
#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::string_view rangeName = "range";
constexpr std::string_view recordName = "given";
constexpr std::string_view handedName = "handed";

/// A document's number as one word of a line.
std::string wordOf(std::string_view document) {
  return replaceAll(withoutControlCharacters(std::string(document)), " ", "\u00a0");
}

/// The part that this serial of the range is in; null for none.
const HandedPart* partWith(const std::vector<HandedPart>& parts, const NumberRange& range,
                           std::uint64_t serial) {
  const auto found = std::ranges::find_if(parts, [&](const HandedPart& part) {
    return areAlike(part.range, range) && part.range.first <= serial && serial <= part.range.last;
  });
  return found == parts.end() ? nullptr : &*found;
}

}  // namespace

std::optional<NumberRange> GivenNumbers::range() { return rangeInStore(store_.read(rangeName)); }

void GivenNumbers::setRange(const NumberRange& range, NextSerial next) {
  store_.alone([&] {
    NumberRange fresh = range;
    const std::optional<NumberRange> stored = this->range();
    if (next == NextSerial::notBack && stored && areAlike(*stored, fresh)) {
      fresh.next = std::clamp(stored->next, fresh.next, fresh.last + 1);
    }
    store_.replace(rangeName, storedText(fresh));
  });
}

std::vector<std::string> GivenNumbers::take(std::size_t count, std::string_view document,
                                            const std::set<std::string>& own) {
  std::vector<std::string> taken;
  store_.alone([&] {
    std::optional<NumberRange> stored = range();
    if (!stored) return;
    catchUp();
    const std::vector<HandedPart> parts = handedOut();
    const std::uint64_t before = stored->next;
    for (; taken.size() < count && stored->next <= stored->last; ++stored->next) {
      if (const HandedPart* part = partWith(parts, *stored, stored->next)) {
        stored->next = std::min(part->range.last, stored->last);
        continue;
      }
      std::string number = containerNumber(*stored, stored->next);
      const bool isFree =
          !own.contains(number) && !wasGiven(number) && !knownElsewhere(number, document);
      if (isFree) taken.push_back(std::move(number));
    }
    // What isn't stored isn't given.
    if (stored->next != before) store_.replace(rangeName, storedText(*stored));
    record("given", taken, document);
  });
  return taken;
}

std::optional<NumberRange> GivenNumbers::handOut(std::uint64_t count, std::string_view place) {
  std::optional<NumberRange> part;
  store_.alone([&] {
    std::optional<NumberRange> stored = range();
    if (!stored || count == 0) return;
    catchUp();
    const std::uint64_t lowest = afterGiven(*stored);
    if (lowest > stored->last) return;
    const std::vector<HandedPart> parts = handedOut();
    // A longer range may end in what was handed out before, and have some of it further back.
    while (const HandedPart* given = partWith(parts, *stored, stored->last)) {
      if (given->range.first <= lowest) return;
      stored->last = given->range.first - 1;
    }
    std::uint64_t first = stored->last + 1 - std::min(count, stored->last + 1 - lowest);
    for (const HandedPart& given : parts) {
      const bool isBefore = areAlike(*stored, given.range) && given.range.last < stored->last;
      if (isBefore) first = std::max(first, given.range.last + 1);
    }
    part = *stored;
    part->first = part->next = first;
    // A range of no serial can't be stored; one whose numbers are all given can.
    if (first > stored->first) {
      stored->last = first - 1;
    } else {
      stored->next = stored->last + 1;
    }
    store_.replace(rangeName, storedText(*stored));
    store_.append(handedName, joined({"\n", part->extension, " ", part->prefix, " ",
                                      std::to_string(part->first), " ", std::to_string(part->last),
                                      " ", today(), " ", wordOf(place), "\n"}));
  });
  return part;
}

std::vector<HandedPart> GivenNumbers::handedOut() {
  std::vector<HandedPart> parts;
  for (const std::string& line : split(store_.read(handedName), "\n")) {
    const std::vector<std::string> fields = split(line, " ");
    std::string refusal;
    if (fields.size() != 6 || fields[4].size() != 10) continue;
    auto range = rangeOf(fields[0], fields[1], fields[2], fields[3], "", refusal);
    if (range) parts.push_back({*range, fields[4], replaceAll(fields[5], "\u00a0", " ")});
  }
  return parts;
}

void GivenNumbers::noteUse(const std::vector<std::string>& numbers, std::string_view document) {
  store_.alone([&] {
    catchUp();
    std::vector<std::string> fresh;
    for (const std::string& number : numbers) {
      const bool isKnown = lastEntry(number, [&](const Entry& entry) {
        return entry.isUsed && entry.use.document == document;
      });
      if (!isKnown) fresh.push_back(number);
    }
    record("used", fresh, document);
  });
}

std::optional<NumberUse> GivenNumbers::useElsewhere(std::string_view number,
                                                    std::string_view document) {
  catchUp();
  return knownElsewhere(std::string(number), document);
}

template <class Fits>
const GivenNumbers::Entry* GivenNumbers::lastEntry(const std::string& number,
                                                   const Fits& fits) const {
  const auto known = entries_.find(number);
  if (known == entries_.end()) return nullptr;
  const auto last = std::find_if(
      known->second.rbegin(), known->second.rend(),
      [&](const Entry& entry) { return fits(entry) && isWithinTwelveMonths(entry.use.date); });
  return last == known->second.rend() ? nullptr : &*last;
}

std::optional<NumberUse> GivenNumbers::knownElsewhere(const std::string& number,
                                                      std::string_view document) const {
  const Entry* last = lastEntry(
      number, [&](const Entry& entry) { return entry.isUsed && entry.use.document != document; });
  return last == nullptr ? std::nullopt : std::optional(last->use);
}

bool GivenNumbers::wasGiven(const std::string& number) const {
  return lastEntry(number, [](const Entry& entry) { return !entry.isUsed; }) != nullptr;
}

std::uint64_t GivenNumbers::afterGiven(const NumberRange& range) const {
  std::uint64_t after = range.next;
  for (const auto& [number, entries] : entries_) {
    const std::optional<std::uint64_t> serial = serialIn(range, number);
    if (serial && *serial >= after && wasGiven(number)) after = *serial + 1;
  }
  return after;
}

void GivenNumbers::catchUp() {
  const std::string added = store_.read(recordName, readSoFar_);
  // A line that was broken off has no end; the next one of its writer begins with one.
  const std::size_t end = added.rfind('\n');
  if (end == added.npos) return;
  takeLines(std::string_view(added).substr(0, end));
  readSoFar_ += end + 1;
}

void GivenNumbers::takeLines(std::string_view lines) {
  for (const std::string& line : split(lines, "\n")) {
    const std::vector<std::string> fields = split(line, " ");
    const bool isEntry = fields.size() == 4 && (fields[0] == "given" || fields[0] == "used") &&
                         fields[1].size() == 18 && fields[2].size() == 10;
    if (!isEntry) continue;
    entries_[fields[1]].push_back(
        {fields[0] == "used", {fields[2], replaceAll(fields[3], "\u00a0", " ")}});
  }
}

void GivenNumbers::record(std::string_view kind, const std::vector<std::string>& numbers,
                          std::string_view document) {
  if (numbers.empty()) return;
  std::string lines = "\n";
  const std::string end = joined({" ", today(), " ", wordOf(document), "\n"});
  for (const std::string& number : numbers) lines += joined({kind, " ", number, end});
  store_.append(recordName, lines);
}

std::string GivenNumbers::today() const { return Conversions::FormatDateIso(clock_.today()); }

bool GivenNumbers::isWithinTwelveMonths(std::string_view date) const {
  Date year = clock_.today();
  year -= std::chrono::years{1};
  return date > Conversions::FormatDateIso(year);
}

}  // namespace awizo
