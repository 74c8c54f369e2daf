#include "adapters/libxml2/path_shapes.h"

#include <array>

namespace awizo::libxml2 {
namespace {

enum class Sign : unsigned char { other, startsName, continuesName, slash };

constexpr std::array<Sign, 256> signs = [] {
  std::array<Sign, 256> kinds{};
  for (unsigned letter = 'a'; letter <= 'z'; ++letter) kinds[letter] = Sign::startsName;
  for (unsigned letter = 'A'; letter <= 'Z'; ++letter) kinds[letter] = Sign::startsName;
  for (unsigned digit = '0'; digit <= '9'; ++digit) kinds[digit] = Sign::continuesName;
  kinds['_'] = Sign::startsName;
  kinds['-'] = kinds['.'] = Sign::continuesName;
  kinds['/'] = Sign::slash;
  return kinds;
}();

}  // namespace

PlainPath plainPath(std::string_view path) {
  PlainPath plain{path, path.starts_with('/')};
  if (plain.fromDocument) plain.names.remove_prefix(1);
  bool atStart = true;
  for (const char letter : plain.names) {
    const Sign sign = signs[static_cast<unsigned char>(letter)];
    if (sign == Sign::other || (atStart && sign != Sign::startsName)) return {};
    atStart = sign == Sign::slash;
  }
  return atStart ? PlainPath{} : plain;
}

}  // namespace awizo::libxml2
