#include "hosts/desktop/program/launch_file.h"

#include <QFile>
#include <QStringDecoder>
#include <algorithm>

#include "hosts/desktop/faces/text.h"
#include "hosts/desktop/program/addresses.h"

namespace awizo::desktop {
namespace {

constexpr qint64 largestFile = 65536;

[[noreturn]] void refuse(const QString& why) { throw BadLaunchFile(toText(why)); }

bool isDigits(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

/// A value that becomes part of a file's name must not lead out of the folder.
bool isNamePart(std::string_view text) {
  return text.find_first_of("/\\:") == text.npos && text.find("..") == text.npos;
}

void requireProperty(const std::string& name, const std::string& value) {
  const bool good = name == "PartnerName"  ? isNamePart(value)
                    : name == "PartnerILN" ? isDigits(value)
                    : name == "DebugLevel" ? isDigits(value)
                    : name == "PartnerURL" ? value.find("..") == value.npos
                                           : true;
  if (!good) refuse("Недопустимое значение " + fromText(name) + ".");
}

void take(Options& options, const std::string& name, const std::string& value) {
  if (name == "page-url" || name == "cookie") {
    std::optional<std::string>& entry = name == "cookie" ? options.cookie : options.pageUrl;
    if (entry) refuse("Значение " + fromText(name) + " указано дважды.");
    entry = value;
    return;
  }
  if (std::ranges::find(propertyNames, name) == propertyNames.end()) {
    refuse("Неизвестное имя: " + fromText(name).left(100) + ".");
  }
  if (options.properties.contains(name)) {
    refuse("Значение " + fromText(name) + " указано дважды.");
  }
  requireProperty(name, value);
  options.properties[name] = value;
}

void requireCharacters(std::string_view line) {
  const bool plain = std::ranges::none_of(line, [](char c) {
    return (static_cast<unsigned char>(c) < ' ' && c != '\t') || c == '\x7f';
  });
  if (!plain) refuse("В файле есть недопустимые знаки.");
}

void takeLine(Options& options, std::string_view line, int number) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  requireCharacters(line);
  if (line.find_first_not_of(" \t") == line.npos || line.starts_with('#')) return;
  const std::size_t equals = line.find('=');
  if (equals == line.npos) refuse(QString("Строка %1 не вида «имя=значение».").arg(number));
  take(options, std::string(line.substr(0, equals)), std::string(line.substr(equals + 1)));
}

void requireAddresses(const Options& options) {
  const auto onLine = options.properties.find("OnLine");
  const bool offLine = onLine != options.properties.end() && onLine->second == "Off";
  if (!options.pageUrl) {
    if (!offLine) refuse("Не указан адрес страницы (page-url).");
    return;
  }
  if (!isWebAddress(*options.pageUrl)) {
    refuse("Адрес страницы должен начинаться с http:// или https://:\n" +
           fromText(*options.pageUrl).left(300));
  }
  const auto partner = options.properties.find("PartnerURL");
  const std::string piece = partner == options.properties.end() ? "" : partner->second;
  const auto origins = serviceOrigins(*options.pageUrl, piece);
  if (origins.size() != 1 || origins.front() != originOf(*options.pageUrl)) {
    refuse("Адреса обмена не принадлежат узлу страницы:\n" + fromText(*options.pageUrl).left(300));
  }
}

}  // namespace

Options parseLaunchFile(std::string_view text) {
  QStringDecoder utf8(QStringDecoder::Utf8);
  const QString decoded = utf8(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
  if (utf8.hasError()) refuse("Файл записан не в кодировке UTF-8.");
  // A byte order mark that an editor put before the text has gone by now.
  const std::string lines = toText(decoded);
  Options options;
  int number = 0;
  for (std::size_t start = 0; start <= lines.size();) {
    const std::size_t end = std::min(lines.find('\n', start), lines.size());
    takeLine(options, std::string_view(lines).substr(start, end - start), ++number);
    start = end + 1;
  }
  requireAddresses(options);
  // A page without a cookie is still a page.
  if (options.pageUrl && !options.cookie) options.cookie = "";
  return options;
}

Options readLaunchFile(const std::string& path) {
  QFile file(fromText(path));
  if (!file.open(QIODevice::ReadOnly)) refuse("Файл не открывается.");
  const QByteArray bytes = file.read(largestFile + 1);
  if (bytes.size() > largestFile) refuse("Файл слишком велик.");
  return parseLaunchFile({bytes.data(), static_cast<std::size_t>(bytes.size())});
}

bool nameSession(const Options& options) {
  const auto onLine = options.properties.find("OnLine");
  return options.pageUrl || (onLine != options.properties.end() && onLine->second == "Off");
}

Options merged(const Options& commandLine, const Options& launchFile) {
  Options both = commandLine;
  both.properties.insert(launchFile.properties.begin(), launchFile.properties.end());
  if (!both.pageUrl) both.pageUrl = launchFile.pageUrl;
  if (!both.cookie) both.cookie = launchFile.cookie;
  return both;
}

}  // namespace awizo::desktop
