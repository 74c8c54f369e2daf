#include "adapters/posix/paths/paths.h"

#include <algorithm>

#include "platform/run_time_error.h"

namespace awizo::posix {
namespace {

constexpr std::string_view drive = "c:";

bool isLetter(char byte) { return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z'); }

}  // namespace

std::string systemPath(std::string_view path) {
  if (path.empty() || path.find('\0') != path.npos) throw errors::badFileName();
  if (path.size() >= 2 && isLetter(path[0]) && path[1] == ':') {
    if (path[0] != 'c' && path[0] != 'C') throw errors::deviceUnavailable();
    path.remove_prefix(drive.size());
    if (path.empty()) return "/";
  }
  std::string translated(path);
  std::replace(translated.begin(), translated.end(), '\\', '/');
  return translated;
}

std::string classicPath(std::string_view path) {
  std::string translated(drive);
  translated += path;
  std::replace(translated.begin(), translated.end(), '/', '\\');
  return translated;
}

std::vector<std::string> driveNames() { return {std::string(drive)}; }

}  // namespace awizo::posix
