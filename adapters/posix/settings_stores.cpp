#include "adapters/posix/settings_stores.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/errors.h"
#include "adapters/posix/replacing.h"
#include "platform/text.h"

namespace awizo {
namespace {

using Values = std::map<std::string, std::string>;

/// A text as it is written in the file: on one line, without the bytes that separate its pieces.
std::string escaped(std::string_view text) {
  std::string result;
  for (const char byte : text) {
    switch (byte) {
      case '\n':
        result += "\\n";
        break;
      case '\r':
        result += "\\r";
        break;
      case '\\':
      case '=':
      case '/':
        result += '\\';
        [[fallthrough]];
      default:
        result += byte;
    }
  }
  return result;
}

std::string unescaped(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\\' || at + 1 == text.size()) {
      result += text[at];
      continue;
    }
    ++at;
    result += text[at] == 'n' ? '\n' : text[at] == 'r' ? '\r' : text[at];
  }
  return result;
}

/// Place of the "=" between name and value, which no backslash precedes.
std::size_t placeOfEquals(std::string_view line) {
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == '\\') {
      ++at;
    } else if (line[at] == '=') {
      return at;
    }
  }
  return line.npos;
}

std::string nameOf(std::string_view application, std::string_view section, std::string_view key) {
  return escaped(application) + "/" + escaped(section) + "/" + escaped(key);
}

void createFoldersOf(const std::string& path) {
  for (std::size_t at = path.find('/', 1); at != path.npos; at = path.find('/', at + 1)) {
    if (mkdir(path.substr(0, at).c_str(), S_IRWXU) != 0 && errno != EEXIST) {
      throw posix::folderError(errno);
    }
  }
}

std::string homeFolder() {
  const char* home = std::getenv("HOME");
  if (home && *home) return home;
  const passwd* user = getpwuid(getuid());
  return user && user->pw_dir ? user->pw_dir : "";
}

}  // namespace

std::string SettingsFile::usersOwnPath() {
  const char* folder = std::getenv("XDG_CONFIG_HOME");
  const bool isWhole = folder && *folder == '/';
  return (isWhole ? std::string(folder) : homeFolder() + "/.config") + "/awizo/settings";
}

Values SettingsFile::load() const {
  Values values;
  std::string text;
  try {
    text = posix::Descriptor(path_, O_RDONLY).readAll();
  } catch (const RunTimeError&) {
    return values;
  }
  for (const std::string& line : split(text, "\n")) {
    const std::size_t equals = placeOfEquals(line);
    if (equals == line.npos) continue;
    values[line.substr(0, equals)] = unescaped(std::string_view(line).substr(equals + 1));
  }
  return values;
}

std::string SettingsFile::read(std::string_view application, std::string_view section,
                               std::string_view key, std::string_view defaultValue) {
  const Values values = load();
  const auto found = values.find(nameOf(application, section, key));
  return found == values.end() ? std::string(defaultValue) : found->second;
}

void SettingsFile::write(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view value) {
  Values values = load();
  values[nameOf(application, section, key)] = value;
  std::string text;
  for (const auto& [name, content] : values) text += name + "=" + escaped(content) + "\n";
  createFoldersOf(path_);
  posix::replaceFile(path_, text);
}

}  // namespace awizo
