#include "platform/floating_text.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>
#include <system_error>

namespace awizo {

#if defined(__cpp_lib_to_chars)

std::optional<double> readFloating(std::string_view text) {
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec == std::errc::result_out_of_range) return std::nullopt;
  return value;
}

#else

std::optional<double> readFloating(std::string_view text) {
  // The library of the page's compiler has no from_chars for this; its strtod knows no locale.
  const double value = std::strtod(std::string(text).c_str(), nullptr);
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

#endif

}  // namespace awizo
