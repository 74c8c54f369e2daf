#include "adapters/curl/reply_text.h"

#include <unicode/ucnv.h>
#include <unicode/unistr.h>

#include <memory>

#include "platform/text.h"

namespace awizo::curl {
namespace {

struct CloseConverter {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

bool startsIgnoringCase(std::string_view text, std::string_view start) {
  if (text.size() < start.size()) return false;
  for (std::size_t at = 0; at < start.size(); ++at) {
    if (lowerLatin(text[at]) != start[at]) return false;
  }
  return true;
}

/// "windows-1251" of "text/xml; charset=windows-1251"; the value may be in quotes.
std::string charsetOf(std::string_view contentType) {
  for (const std::string& parameter : split(contentType, ";")) {
    const std::string_view bare = trimmed(parameter);
    if (!startsIgnoringCase(bare, "charset=")) continue;
    std::string_view value = trimmed(bare.substr(bare.find('=') + 1));
    if (value.size() >= 2 && value.starts_with('"') && value.ends_with('"')) {
      value = value.substr(1, value.size() - 2);
    }
    return std::string(value);
  }
  return {};
}

std::string converted(std::string_view bytes, UConverter* converter) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::UnicodeString text(bytes.data(), static_cast<int32_t>(bytes.size()), converter,
                                status);
  std::string result;
  return text.toUTF8String(result);
}

Converter converterFor(const char* charset) {
  UErrorCode status = U_ZERO_ERROR;
  return Converter(ucnv_open(charset, &status));
}

std::string mended(std::string bytes) {
  if (isUtf8(bytes)) return bytes;
  const auto text = icu::UnicodeString::fromUTF8(
      icu::StringPiece(bytes.data(), static_cast<int32_t>(bytes.size())));
  std::string result;
  return text.toUTF8String(result);
}

}  // namespace

std::string replyText(std::string bytes, std::string_view contentType) {
  const std::string_view view = bytes;
  if (view.starts_with("\xEF\xBB\xBF")) {
    bytes.erase(0, 3);
    return mended(std::move(bytes));
  }
  if (view.starts_with("\xFF\xFE"))
    return converted(view.substr(2), converterFor("UTF-16LE").get());
  if (view.starts_with("\xFE\xFF"))
    return converted(view.substr(2), converterFor("UTF-16BE").get());
  const std::string charset = charsetOf(contentType);
  if (charset.empty() || ucnv_compareNames(charset.c_str(), "UTF-8") == 0) {
    return mended(std::move(bytes));
  }
  const Converter converter = converterFor(charset.c_str());
  return converter ? converted(view, converter.get()) : mended(std::move(bytes));
}

}  // namespace awizo::curl
