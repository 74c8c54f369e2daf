#include "hosts/headless/line_stream.h"

#include <istream>
#include <ostream>

namespace awizo::headless {

std::optional<std::string> LineStream::read() {
  using Traits = std::istream::traits_type;
  std::streambuf& buffer = *in_.rdbuf();
  std::string line;
  Traits::int_type next = buffer.sbumpc();
  if (Traits::eq_int_type(next, Traits::eof())) return std::nullopt;
  while (!Traits::eq_int_type(next, Traits::eof())) {
    const char character = Traits::to_char_type(next);
    if (character == '\n') break;
    if (line.size() <= longestLine) line += character;
    next = buffer.sbumpc();
  }
  if (line.size() > longestLine) line.clear();
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

void LineStream::write(const protocol::Json& json) {
  out_ << protocol::lineText(json) << '\n';
  out_.flush();
}

}  // namespace awizo::headless
