#include "journal/record_file.h"

#include <cstdint>
#include <optional>

#include "journal/checksum.h"
#include "platform/run_time_error.h"

namespace awizo::journal {
namespace {

constexpr std::string_view firstLine = "awizo record 2\n";
constexpr std::string_view formerFirstLine = "awizo record 1\n";
constexpr std::size_t lengthSize = 4;
constexpr std::size_t sumSize = 8;

/// Writes a number of `size` bytes over those that are there.
void putNumber(std::string& bytes, std::size_t place, std::uint64_t number, std::size_t size) {
  for (std::size_t at = 0; at < size; ++at) {
    bytes[place + at] = static_cast<char>((number >> (8 * at)) & 0xFF);
  }
}

std::uint64_t numberIn(std::string_view bytes) {
  std::uint64_t number = 0;
  for (std::size_t at = bytes.size(); at-- > 0;) {
    number = (number << 8) | static_cast<unsigned char>(bytes[at]);
  }
  return number;
}

/// The bytes of the record with which `rest` begins; none where it is torn.
std::optional<std::string_view> firstFrame(std::string_view rest) {
  if (rest.size() < lengthSize + sumSize) return std::nullopt;
  const auto length = static_cast<std::size_t>(numberIn(rest.substr(0, lengthSize)));
  const std::uint64_t sum = numberIn(rest.substr(lengthSize, sumSize));
  rest.remove_prefix(lengthSize + sumSize);
  if (length > rest.size()) return std::nullopt;
  const std::string_view bytes = rest.substr(0, length);
  if (checksum(bytes) != sum) return std::nullopt;
  return bytes;
}

}  // namespace

std::string fileBeginning() { return std::string(firstLine); }

void frame(const Record& record, std::string& file) {
  const std::size_t start = file.size();
  const std::size_t body = start + lengthSize + sumSize;
  file.resize(body);
  encode(record, file);
  putNumber(file, start, file.size() - body, lengthSize);
  putNumber(file, start + lengthSize, checksum(std::string_view(file).substr(body)), sumSize);
}

std::string framed(const Record& record) {
  std::string file;
  frame(record, file);
  return file;
}

WholeRecords wholeRecords(std::string_view bytes) {
  if (!bytes.starts_with(firstLine) && !bytes.starts_with(formerFirstLine)) {
    throw errors::typeMismatch();
  }
  WholeRecords whole;
  whole.length = firstLine.size();
  while (const auto frame = firstFrame(bytes.substr(whole.length))) {
    whole.records.push_back(decoded(*frame));
    whole.length += lengthSize + sumSize + frame->size();
  }
  return whole;
}

}  // namespace awizo::journal
