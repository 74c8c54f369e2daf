#pragma once

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>

namespace awizo::icu_locale {

/// One of the machine's single-byte encodings, held as a table.
class SingleByteEncoding {
 public:
  /// By ICU's name: "windows-1251".
  explicit SingleByteEncoding(const char* name);

  /// A character that the encoding lacks is written "?".
  std::string encode(std::string_view text) const;
  std::string decode(std::string_view bytes) const;

 private:
  std::array<std::string, 256> characters_;  ///< of each byte, as UTF-8
  std::unordered_map<char32_t, char> bytes_;
};

}  // namespace awizo::icu_locale
