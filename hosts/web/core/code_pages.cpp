#include "hosts/web/core/code_pages.h"

#include <libxml/encoding.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "hosts/web/core/code_page_tables.h"
#include "platform/text.h"

namespace awizo::web {

namespace {

constexpr unsigned half = 128;
constexpr int cantBeConverted = -2;

/// The character at the text's start; 0 for one that is cut off.
char32_t firstCharacter(std::string_view text, std::size_t& size) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned first = byte(0);
  size = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (text.size() < size) return 0;
  char32_t character = size == 1 ? first : first & (0x7FU >> size);
  for (std::size_t at = 1; at < size; ++at) character = (character << 6U) | (byte(at) & 0x3FU);
  return character;
}

/// What libxml2 is told of a conversion: the bytes written and taken, and how many it wrote.
int done(int* written, std::size_t out, int* taken, std::size_t in, bool failed) {
  *written = static_cast<int>(out);
  *taken = static_cast<int>(in);
  return failed ? cantBeConverted : *written;
}

template <std::size_t page>
int toUtf8(unsigned char* out, int* outSize, const unsigned char* in, int* inSize) {
  const auto room = static_cast<std::size_t>(*outSize);
  const auto size = static_cast<std::size_t>(*inSize);
  std::size_t written = 0;
  std::size_t taken = 0;
  for (; taken < size; ++taken) {
    const unsigned byte = in[taken];
    const char32_t character = byte < half ? byte : codePages[page].upperHalf[byte - half];
    if (character == 0 && byte != 0) return done(outSize, written, inSize, taken, true);
    const std::string text = characterText(character);
    if (text.size() > room - written) break;
    std::copy(text.begin(), text.end(), out + written);
    written += text.size();
  }
  return done(outSize, written, inSize, taken, false);
}

template <std::size_t page>
int fromUtf8(unsigned char* out, int* outSize, const unsigned char* in, int* inSize) {
  // libxml2 begins so, to let a conversion write what comes before all.
  if (in == nullptr) return done(outSize, 0, inSize, 0, false);
  const std::string_view text(reinterpret_cast<const char*>(in), static_cast<std::size_t>(*inSize));
  const auto& upper = codePages[page].upperHalf;
  const auto room = static_cast<std::size_t>(*outSize);
  std::size_t written = 0;
  std::size_t taken = 0;
  while (taken < text.size() && written < room) {
    std::size_t size = 0;
    const char32_t character = firstCharacter(text.substr(taken), size);
    if (size > text.size() - taken) break;
    unsigned byte = static_cast<unsigned>(character);
    if (character >= half) {
      const auto found = std::find(upper.begin(), upper.end(), character);
      if (found == upper.end()) return done(outSize, written, inSize, taken, true);
      byte = half + static_cast<unsigned>(found - upper.begin());
    }
    out[written++] = static_cast<unsigned char>(byte);
    taken += size;
  }
  return done(outSize, written, inSize, taken, false);
}

template <std::size_t... page>
void registerAll(std::index_sequence<page...>) {
  (xmlNewCharEncodingHandler(codePages[page].name, &toUtf8<page>, &fromUtf8<page>), ...);
  (xmlNewCharEncodingHandler(codePages[page].otherName, &toUtf8<page>, &fromUtf8<page>), ...);
}

}  // namespace

void registerCodePages() { registerAll(std::make_index_sequence<codePages.size()>()); }

}  // namespace awizo::web
