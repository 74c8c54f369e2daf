#pragma once

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>

#include "hosts/protocol/values/json.h"

namespace awizo::headless {

/// Lines of JSON in and out. What is written leaves at once, so that a program can converse with
/// this one; when nobody reads any more, it is lost in silence.
class LineStream {
 public:
  static constexpr std::size_t longestLine = std::size_t{16} << 20;

  LineStream(std::istream& in, std::ostream& out) : in_(in), out_(out) {}

  /// The next line without its end; none at the end of input. A line over the limit is read to its
  /// end and comes back empty, which is no JSON.
  std::optional<std::string> read();
  void write(const protocol::Json& json);

 private:
  std::istream& in_;
  std::ostream& out_;
};

}  // namespace awizo::headless
