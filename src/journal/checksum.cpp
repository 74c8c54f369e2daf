#include "journal/checksum.h"

#include <bit>
#include <cstddef>
#include <cstring>

namespace awizo::journal {
namespace {

constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15U;
constexpr std::size_t wordSize = 8;

std::uint64_t mixed(std::uint64_t value) {
  value = (value ^ (value >> 32)) * 0xD6E8FEB86659FD93U;
  return value ^ (value >> 29);
}

/// Up to eight bytes as a number, the first the lowest.
std::uint64_t word(std::string_view bytes) {
  std::uint64_t value = 0;
  for (std::size_t at = bytes.size(); at-- > 0;) {
    value = (value << 8) | static_cast<unsigned char>(bytes[at]);
  }
  return value;
}

/// The first eight bytes as a number. A reply has many megabytes, so that each isn't taken apart.
std::uint64_t firstWord(std::string_view bytes) {
  if constexpr (std::endian::native != std::endian::little) return word(bytes.substr(0, wordSize));
  std::uint64_t value = 0;
  std::memcpy(&value, bytes.data(), wordSize);
  return value;
}

}  // namespace

std::uint64_t checksum(std::string_view bytes, std::uint64_t seed) {
  std::uint64_t sum = mixed(seed + multiplier * (bytes.size() + 1));
  while (bytes.size() >= wordSize) {
    sum = (sum ^ firstWord(bytes)) * multiplier;
    sum ^= sum >> 31;
    bytes.remove_prefix(wordSize);
  }
  return mixed((sum ^ word(bytes)) * multiplier);
}

}  // namespace awizo::journal
