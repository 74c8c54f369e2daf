#include "platform/text.h"

#include <algorithm>

namespace awizo {
namespace {

bool startsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

/// Control characters of ASCII and of Latin-1 (C2 80 to C2 9F), line and paragraph separator.
bool isControlCharacter(std::string_view character) {
  const auto first = static_cast<unsigned char>(character.front());
  if (character.size() == 1) return first < 0x20 || first == 0x7F;
  if (character == "\u2028" || character == "\u2029") return true;
  return character.size() == 2 && first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
}

/// What may follow a first byte: how many bytes, and from which to which the first of them.
struct Followers {
  std::size_t count;
  unsigned char low;
  unsigned char high;
};

constexpr Followers none{0, 1, 0};

Followers followersOf(unsigned char first) {
  if (first >= 0xC2 && first <= 0xDF) return {1, 0x80, 0xBF};
  if (first == 0xE0) return {2, 0xA0, 0xBF};
  if (first == 0xED) return {2, 0x80, 0x9F};
  if (first >= 0xE1 && first <= 0xEF) return {2, 0x80, 0xBF};
  if (first == 0xF0) return {3, 0x90, 0xBF};
  if (first >= 0xF1 && first <= 0xF3) return {3, 0x80, 0xBF};
  if (first == 0xF4) return {3, 0x80, 0x8F};
  return none;
}

}  // namespace

std::size_t countCharacters(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCharacter));
}

std::string_view firstCharacters(std::string_view text, std::size_t count) {
  std::size_t seen = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (startsCharacter(text[at]) && seen++ == count) return text.substr(0, at);
  }
  return text;
}

std::string_view lastCharacters(std::string_view text, std::size_t count) {
  const std::size_t all = countCharacters(text);
  if (all <= count) return text;
  return text.substr(firstCharacters(text, all - count).size());
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> split(std::string_view text, std::string_view separator) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  std::size_t from = 0;
  while (true) {
    const std::size_t to = text.find(separator, from);
    pieces.emplace_back(text.substr(from, to - from));
    if (to == std::string_view::npos) return pieces;
    from = to + separator.size();
  }
}

std::string joined(std::initializer_list<std::string_view> pieces) {
  std::string text;
  for (const std::string_view piece : pieces) text += piece;
  return text;
}

std::string join(const std::vector<std::string>& pieces, std::string_view separator) {
  std::string joined;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (i > 0) joined += separator;
    joined += pieces[i];
  }
  return joined;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string replaced;
  if (from.empty()) return std::string(text);
  std::size_t start = 0;
  while (true) {
    const std::size_t found = text.find(from, start);
    replaced += text.substr(start, found - start);
    if (found == std::string_view::npos) return replaced;
    replaced += to;
    start = found + from.size();
  }
}

std::string withoutControlCharacters(std::string_view text) {
  std::string kept;
  kept.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    std::size_t next = at + 1;
    while (next < text.size() && !startsCharacter(text[next])) ++next;
    const std::string_view character = text.substr(at, next - at);
    if (!isControlCharacter(character)) kept += character;
    at = next;
  }
  return kept;
}

bool isUtf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const auto first = static_cast<unsigned char>(bytes[at]);
    if (first < 0x80) continue;
    const Followers followers = followersOf(first);
    if (followers.count == 0 || bytes.size() - at <= followers.count) return false;
    const auto second = static_cast<unsigned char>(bytes[at + 1]);
    if (second < followers.low || second > followers.high) return false;
    for (std::size_t i = 2; i <= followers.count; ++i) {
      if (startsCharacter(bytes[at + i])) return false;
    }
    at += followers.count;
  }
  return true;
}

char lowerLatin(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

std::string characterText(char32_t codePoint) {
  const auto tail = [&](unsigned shift) {
    return static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU));
  };
  if (codePoint < 0x80) return {static_cast<char>(codePoint)};
  if (codePoint < 0x800) return {static_cast<char>(0xC0U | (codePoint >> 6)), tail(0)};
  if (codePoint < 0x10000) {
    return {static_cast<char>(0xE0U | (codePoint >> 12)), tail(6), tail(0)};
  }
  return {static_cast<char>(0xF0U | (codePoint >> 18)), tail(12), tail(6), tail(0)};
}

}  // namespace awizo
