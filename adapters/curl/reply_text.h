#pragma once

#include <string>
#include <string_view>

namespace awizo::curl {

/// A reply as UTF-8 text: decoded by its byte order mark, else by the charset of its content type
/// where that is known, else as UTF-8; bytes that are no text become U+FFFD. Well-formed UTF-8 is
/// handed through without a copy.
std::string replyText(std::string bytes, std::string_view contentType);

}  // namespace awizo::curl
