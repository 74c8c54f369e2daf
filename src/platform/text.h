#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace awizo {

// Small work on texts that every module needs. All text is UTF-8; a character is a code point, so
// lengths and limits count code points, not bytes.

/// Number of characters.
std::size_t countCharacters(std::string_view text);

/// The first `count` characters; the whole text when it has no more.
std::string_view firstCharacters(std::string_view text, std::size_t count);

/// The last `count` characters; the whole text when it has no more.
std::string_view lastCharacters(std::string_view text, std::size_t count);

/// The text without the spaces (U+0020 and nothing else) at both ends.
std::string_view trimmed(std::string_view text);

/// The pieces between the separators, empty ones included. The empty text has no pieces. The
/// separator isn't empty.
std::vector<std::string> split(std::string_view text, std::string_view separator);

/// The pieces one after another.
std::string joined(std::initializer_list<std::string_view> pieces);

/// The pieces with the separator between them.
std::string join(const std::vector<std::string>& pieces, std::string_view separator);

/// The text with every `from` replaced by `to`; unchanged where `from` is empty.
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

/// The text as a one-line field takes it: without line breaks and other control characters.
std::string withoutControlCharacters(std::string_view text);

/// Whether the bytes are well-formed UTF-8: no overlong form, no surrogate, nothing cut off.
bool isUtf8(std::string_view bytes);

/// A Latin capital as its small letter; any other byte as it is.
char lowerLatin(char letter);

/// The UTF-8 form of a code point.
std::string characterText(char32_t codePoint);

}  // namespace awizo
