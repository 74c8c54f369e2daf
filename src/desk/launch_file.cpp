#include "desk/launch_file.h"

#include <algorithm>
#include <optional>
#include <string>

#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::string_view pageUrlName = "page-url";
constexpr std::string_view cookieName = "cookie";

[[noreturn]] void refuse(std::initializer_list<std::string_view> why) {
  throw BadLaunchFile(joined(why));
}

bool isDigits(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

/// A value that becomes part of a file's name must not lead out of the folder.
bool isNamePart(std::string_view text) {
  return text.find_first_of("/\\:") == text.npos && text.find("..") == text.npos;
}

bool isGood(std::string_view property, std::string_view value) {
  if (property == properties::partnerName) return isNamePart(value);
  if (property == properties::partnerUrl) return value.find("..") == value.npos;
  const bool isNumber = property == properties::partnerIln || property == properties::debugLevel;
  return !isNumber || isDigits(value);
}

void take(GivenSession& given, std::string_view name, std::string_view value) {
  const auto refuseSecond = [&] { refuse({"Значение ", name, " указано дважды."}); };
  if (name == pageUrlName || name == cookieName) {
    std::optional<std::string>& entry = name == cookieName ? given.cookie : given.pageUrl;
    if (entry) refuseSecond();
    entry = value;
    return;
  }
  if (std::ranges::find(properties::names, name) == properties::names.end()) {
    constexpr std::size_t shown = 100;
    refuse({"Неизвестное имя: ", firstCharacters(name, shown), "."});
  }
  if (given.properties.contains(std::string(name))) refuseSecond();
  if (!isGood(name, value)) refuse({"Недопустимое значение ", name, "."});
  given.properties[std::string(name)] = value;
}

void requireCharacters(std::string_view line) {
  const bool plain = std::ranges::none_of(line, [](char c) {
    return (static_cast<unsigned char>(c) < ' ' && c != '\t') || c == '\x7f';
  });
  if (!plain) refuse({"В файле есть недопустимые знаки."});
}

void takeLine(GivenSession& given, std::string_view line, int number) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  requireCharacters(line);
  if (line.find_first_not_of(" \t") == line.npos || line.starts_with('#')) return;
  const std::size_t equals = line.find('=');
  if (equals == line.npos) {
    refuse({"Строка ", std::to_string(number), " не вида «имя=значение»."});
  }
  take(given, line.substr(0, equals), line.substr(equals + 1));
}

void requireAddresses(const GivenSession& given, const SplitAddress& split) {
  if (!given.pageUrl) {
    if (!isOffLine(given.property(properties::onLine)))
      refuse({"Не указан адрес страницы (page-url)."});
    return;
  }
  constexpr std::size_t shownCharacters = 300;
  const std::string_view shown = firstCharacters(*given.pageUrl, shownCharacters);
  if (!isWebAddress(split, *given.pageUrl)) {
    refuse({"Адрес страницы должен начинаться с http:// или https://:\n", shown});
  }
  const auto origins =
      serviceOrigins(split, *given.pageUrl, given.property(properties::partnerUrl));
  if (origins.size() != 1 || origins.front() != originOf(split, *given.pageUrl)) {
    refuse({"Адреса обмена не принадлежат узлу страницы:\n", shown});
  }
}

}  // namespace

GivenSession parseLaunchFile(std::string_view bytes, const SplitAddress& split) {
  if (bytes.size() > largestLaunchFile) refuse({"Файл слишком велик."});
  if (!isUtf8(bytes)) refuse({"Файл записан не в кодировке UTF-8."});
  // An editor may put a byte order mark before the text.
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (bytes.starts_with(mark)) bytes.remove_prefix(mark.size());
  GivenSession given;
  int number = 0;
  for (const std::string& line : awizo::split(bytes, "\n")) takeLine(given, line, ++number);
  requireAddresses(given, split);
  // A page without a cookie is still a page.
  if (given.pageUrl && !given.cookie) given.cookie = "";
  return given;
}

BadLaunchFile unreadableLaunchFile() { return BadLaunchFile("Файл не открывается."); }

bool namesSession(const GivenSession& given) {
  return given.pageUrl || isOffLine(given.property(properties::onLine));
}

GivenSession merged(const GivenSession& called, const GivenSession& launchFile) {
  GivenSession both = called;
  both.properties.insert(launchFile.properties.begin(), launchFile.properties.end());
  if (!both.pageUrl) both.pageUrl = launchFile.pageUrl;
  if (!both.cookie) both.cookie = launchFile.cookie;
  return both;
}

}  // namespace awizo
