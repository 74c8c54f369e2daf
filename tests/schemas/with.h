#pragma once

#include <stdexcept>
#include <string>

namespace awizo::test {

/// The text with the first `from` replaced; there must be one.
inline std::string with(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  if (at == std::string::npos) throw std::runtime_error("no " + from);
  return text.replace(at, from.size(), to);
}

}  // namespace awizo::test
