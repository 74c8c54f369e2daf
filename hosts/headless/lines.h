#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "hosts/protocol/values/json.h"

namespace awizo::headless {

/// Lines in and out. What is written leaves at once, so that a program can converse with this one;
/// when nobody reads any more, it is lost in silence. No stream of the standard library: these
/// bring the classic locale with them, a tenth of what a page fetches.
class Lines {
 public:
  static constexpr std::size_t longestLine = std::size_t{16} << 20;

  virtual ~Lines() = default;
  /// The next line without its end; none at the end of input. A line over the limit comes back
  /// empty, which is no JSON.
  std::optional<std::string> read();
  void write(const protocol::Json& json) { writeText(protocol::lineText(json)); }
  virtual void writeText(std::string_view line) = 0;

 protected:
  /// The next line; of one over the limit as much as shows that.
  virtual std::optional<std::string> next() = 0;
};

/// Tells whoever started the program what goes wrong.
void complain(std::string_view words);

}  // namespace awizo::headless
