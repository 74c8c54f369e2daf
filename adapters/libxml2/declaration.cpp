#include "adapters/libxml2/declaration.h"

namespace awizo::libxml2 {
namespace {

/// The ASCII characters of the first line: in every encoding in use here these are their own bytes,
/// with zero bytes between them in the wide ones.
std::string asciiStart(std::string_view bytes) {
  constexpr std::size_t longEnough = 1000;
  std::string start;
  for (const char byte : bytes.substr(0, longEnough)) {
    if (byte > 0) start += byte;
    if (byte == '>') break;
  }
  return start;
}

}  // namespace

Declaration declarationOf(std::string_view bytes) {
  const std::string start = asciiStart(bytes);
  if (!start.starts_with("<?xml") || !start.ends_with("?>")) return {};
  Declaration declaration{true, ""};
  const std::size_t named = start.find("encoding");
  if (named == start.npos) return declaration;
  const std::size_t open = start.find_first_of("\"'", named);
  if (open == start.npos) return declaration;
  const std::size_t close = start.find(start[open], open + 1);
  if (close != start.npos) declaration.encoding = start.substr(open + 1, close - open - 1);
  return declaration;
}

}  // namespace awizo::libxml2
