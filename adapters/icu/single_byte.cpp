#include "adapters/icu/single_byte.h"

#include <unicode/ucnv.h>
#include <unicode/unistr.h>

#include <memory>
#include <stdexcept>

namespace awizo::icu_locale {
namespace {

struct CloseConverter {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};

}  // namespace

SingleByteEncoding::SingleByteEncoding(const char* name) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<UConverter, CloseConverter> converter(ucnv_open(name, &status));
  if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
  for (int code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    const icu::UnicodeString character(&byte, 1, converter.get(), status);
    character.toUTF8String(characters_[static_cast<std::size_t>(code)]);
    bytes_.emplace(static_cast<char32_t>(character.char32At(0)), byte);
  }
  if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
}

std::string SingleByteEncoding::encode(std::string_view text) const {
  constexpr UChar32 replacement = 0xFFFD;
  const auto source = icu::UnicodeString::fromUTF8(
      icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
  std::string bytes;
  bytes.reserve(text.size());
  for (int32_t at = 0; at < source.length(); at = source.moveIndex32(at, 1)) {
    const UChar32 character = source.char32At(at);
    const auto byte = bytes_.find(static_cast<char32_t>(character));
    bytes += byte == bytes_.end() || character == replacement ? '?' : byte->second;
  }
  return bytes;
}

std::string SingleByteEncoding::decode(std::string_view bytes) const {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) text += characters_[static_cast<unsigned char>(byte)];
  return text;
}

}  // namespace awizo::icu_locale
