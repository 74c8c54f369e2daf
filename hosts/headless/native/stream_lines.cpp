#include "hosts/headless/native/stream_lines.h"

#include <istream>
#include <ostream>

namespace awizo::headless {

std::optional<std::string> StreamLines::next() {
  using Traits = std::istream::traits_type;
  std::streambuf& buffer = *in_.rdbuf();
  std::string line;
  Traits::int_type character = buffer.sbumpc();
  if (Traits::eq_int_type(character, Traits::eof())) return std::nullopt;
  while (!Traits::eq_int_type(character, Traits::eof())) {
    if (Traits::to_char_type(character) == '\n') break;
    if (line.size() <= longestLine) line += Traits::to_char_type(character);
    character = buffer.sbumpc();
  }
  return line;
}

void StreamLines::writeText(std::string_view line) {
  out_ << line << '\n';
  out_.flush();
}

}  // namespace awizo::headless
