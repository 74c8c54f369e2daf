#include "journal/texts_beside.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "journal/checksum.h"

namespace awizo::journal {
namespace {

/// A shorter text costs less in the record than as a file of its own.
constexpr std::size_t leastBeside = 1 << 16;

constexpr std::string_view digits = "0123456789abcdef";

void appendHex(std::string& text, std::uint64_t number) {
  for (int shift = 60; shift >= 0; shift -= 4) text += digits[(number >> shift) & 0xF];
}

/// A record of somebody else's making may name anything.
bool isNameBeside(std::string_view name) {
  return name.find_first_not_of("0123456789abcdef-") == name.npos;
}

std::string textNamed(const std::string& name,
                      const std::function<std::string(const std::string& name)>& read) {
  if (!isNameBeside(name)) throw errors::badFileName();
  std::string text = read(name);
  if (nameBeside(text) != name) throw errors::typeMismatch();
  return text;
}

}  // namespace

std::string nameBeside(std::string_view text) {
  std::string name;
  appendHex(name, checksum(text));
  appendHex(name, checksum(text, 1));
  return name.append("-").append(std::to_string(text.size()));
}

std::optional<Record> namedBeside(const Record& outcome, TextsBeside& texts) {
  if (outcome.texts.size() != 1 || outcome.texts[0].size() < leastBeside) return std::nullopt;
  Record named{RecordKind::outcomeBeside, outcome.numbers, {nameBeside(outcome.texts[0])}};
  const auto error = caughtError([&] { texts.keep(named.texts[0], outcome.texts[0]); });
  if (error) return std::nullopt;
  return named;
}

std::optional<RunTimeError> fetchBeside(
    std::vector<Record>& records, const std::function<std::string(const std::string& name)>& read) {
  std::optional<RunTimeError> first;
  for (Record& record : records) {
    if (record.kind != RecordKind::outcomeBeside) continue;
    const auto error = caughtError([&] {
      record.texts[0] = textNamed(record.texts[0], read);
      record.kind = RecordKind::outcome;
    });
    if (!first) first = error;
  }
  return first;
}

RecordedSession keptSession(RecordFolder& folder, std::string_view record) {
  RecordedSession session = recordedSession(folder.read(record));
  const auto error = fetchBeside(
      session.records, [&](const std::string& name) { return folder.readBeside(record, name); });
  if (error) throw RunTimeError(*error);
  return session;
}

}  // namespace awizo::journal
