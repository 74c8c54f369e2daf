#include "journal/record.h"

#include <cstddef>

#include "platform/run_time_error.h"

namespace awizo::journal {
namespace {

void putUnsigned(std::string& bytes, std::uint64_t number) {
  while (number >= 0x80) {
    bytes += static_cast<char>((number & 0x7F) | 0x80);
    number >>= 7;
  }
  bytes += static_cast<char>(number);
}

/// Small numbers of either sign become small ones without.
std::uint64_t folded(std::int64_t number) {
  const auto bits = static_cast<std::uint64_t>(number);
  return number < 0 ? ~(bits << 1) : bits << 1;
}

std::int64_t unfolded(std::uint64_t bits) {
  return static_cast<std::int64_t>((bits & 1) != 0 ? ~(bits >> 1) : bits >> 1);
}

class Reader {
 public:
  explicit Reader(std::string_view bytes) : rest_(bytes) {}

  bool atEnd() const { return rest_.empty(); }

  std::uint8_t byte() {
    if (rest_.empty()) throw errors::typeMismatch();
    const auto value = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return value;
  }

  std::uint64_t number() {
    std::uint64_t value = 0;
    for (int shift = 0; shift < 64; shift += 7) {
      const std::uint8_t part = byte();
      value |= static_cast<std::uint64_t>(part & 0x7F) << shift;
      if ((part & 0x80) == 0) return value;
    }
    throw errors::typeMismatch();
  }

  /// A count of things each of which takes a byte at least.
  std::size_t count() {
    const std::uint64_t value = number();
    if (value > rest_.size()) throw errors::typeMismatch();
    return static_cast<std::size_t>(value);
  }

  std::string text() {
    const std::size_t length = count();
    std::string value(rest_.substr(0, length));
    rest_.remove_prefix(length);
    return value;
  }

 private:
  std::string_view rest_;
};

}  // namespace

void encode(const Record& record, std::string& bytes) {
  bytes += static_cast<char>(record.kind);
  putUnsigned(bytes, record.numbers.size());
  for (const std::int64_t number : record.numbers) putUnsigned(bytes, folded(number));
  putUnsigned(bytes, record.texts.size());
  for (const std::string& text : record.texts) {
    putUnsigned(bytes, text.size());
    bytes += text;
  }
}

Record decoded(std::string_view bytes) {
  Reader reader(bytes);
  Record record;
  record.kind = static_cast<RecordKind>(reader.byte());
  if (record.kind < RecordKind::header || record.kind > RecordKind::outcomeBeside) {
    throw errors::typeMismatch();
  }
  record.numbers.resize(reader.count());
  for (std::int64_t& number : record.numbers) number = unfolded(reader.number());
  record.texts.resize(reader.count());
  for (std::string& text : record.texts) text = reader.text();
  if (!reader.atEnd()) throw errors::typeMismatch();
  return record;
}

bool isDeed(const Record& record) {
  return record.kind == RecordKind::act || record.kind == RecordKind::hostAct ||
         record.kind == RecordKind::answer;
}

}  // namespace awizo::journal
