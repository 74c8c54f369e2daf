#include "numbers/given_numbers.h"

#include <algorithm>

#include "foundation/conversions.h"
#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::string_view rangeName = "range";
constexpr std::string_view recordName = "given";

/// A document's number as one word of a line.
std::string wordOf(std::string_view document) {
  return replaceAll(withoutControlCharacters(std::string(document)), " ", "\u00a0");
}

}  // namespace

std::optional<NumberRange> GivenNumbers::range() { return rangeInStore(store_.read(rangeName)); }

void GivenNumbers::setRange(const NumberRange& range) {
  store_.alone([&] { store_.replace(rangeName, storedText(range)); });
}

std::vector<std::string> GivenNumbers::take(std::size_t count, std::string_view document,
                                            const std::set<std::string>& own) {
  std::vector<std::string> taken;
  store_.alone([&] {
    std::optional<NumberRange> stored = range();
    if (!stored) return;
    catchUp();
    const std::uint64_t before = stored->next;
    for (; taken.size() < count && numbersLeft(*stored) > 0; ++stored->next) {
      std::string number = containerNumber(*stored, stored->next);
      const bool isFree = !own.contains(number) && !knownElsewhere(number, document);
      if (isFree) taken.push_back(std::move(number));
    }
    // What isn't stored isn't given.
    if (stored->next != before) store_.replace(rangeName, storedText(*stored));
    record("given", taken, document);
  });
  return taken;
}

void GivenNumbers::noteUse(const std::vector<std::string>& numbers, std::string_view document) {
  store_.alone([&] {
    catchUp();
    std::vector<std::string> fresh;
    for (const std::string& number : numbers) {
      const auto known = entries_.find(number);
      const bool isKnown =
          known != entries_.end() && std::ranges::any_of(known->second, [&](const Entry& entry) {
            return entry.isUsed && entry.use.document == document &&
                   isWithinTwelveMonths(entry.use.date);
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

std::optional<NumberUse> GivenNumbers::knownElsewhere(const std::string& number,
                                                      std::string_view document) const {
  const auto known = entries_.find(number);
  if (known == entries_.end()) return std::nullopt;
  std::optional<NumberUse> last;
  for (const Entry& entry : known->second) {
    const bool isElsewhere = entry.use.document != document;
    if (entry.isUsed && isElsewhere && isWithinTwelveMonths(entry.use.date)) last = entry.use;
  }
  return last;
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
