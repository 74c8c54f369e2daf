#include "hosts/common/program/recorded_options.h"

#include <cstdio>
#include <utility>

#include "hosts/common/value_texts.h"
#include "hosts/version.h"

namespace awizo {

namespace {

constexpr std::string_view propertyPrefix = "property ";

/// Calls with the value of a name that the header has.
template <class Take>
void take(const RecordHeader& header, const std::string& name, Take&& take) {
  const auto found = header.find(name);
  if (found != header.end()) take(found->second);
}

std::string momentText(const Moment& moment) {
  const auto [date, time] = moment;
  std::string text(sizeof "yyyy-mm-ddThh:mm:ss", '\0');
  const int length = std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d",
                                   int(date.year()), unsigned(date.month()), unsigned(date.day()),
                                   time.hour, time.minute, time.second);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace

RecordHeader headerOf(const Options& options, const std::string& localeName) {
  RecordHeader header{{"version", versionText()}, {"locale", localeName}};
  if (options.settingsFile) header["settings"] = *options.settingsFile;
  if (options.offLinePath) header["offline-path"] = *options.offLinePath;
  if (options.now) header["now"] = momentText(*options.now);
  for (const auto& [name, value] : options.properties) {
    header[std::string(propertyPrefix) + name] = value;
  }
  return header;
}

Options withRecorded(Options options, const RecordHeader& header) {
  const bool folderNamed = options.settingsFile || options.offLinePath;
  if (!folderNamed) {
    take(header, "settings", [&](const std::string& text) { options.settingsFile = text; });
    take(header, "offline-path", [&](const std::string& text) { options.offLinePath = text; });
  }
  if (options.locale.empty()) {
    take(header, "locale", [&](const std::string& text) { options.locale = text; });
  }
  if (!options.now) {
    take(header, "now", [&](const std::string& text) { options.now = parseMoment(text); });
  }
  for (const auto& [name, value] : header) {
    if (!name.starts_with(propertyPrefix)) continue;
    options.properties.try_emplace(name.substr(propertyPrefix.size()), value);
  }
  return options;
}

Options optionsToGoOn(Options today, const RecordHeader& header) {
  today.properties.clear();
  today.locale.clear();
  return withRecorded(std::move(today), header);
}

journal::AskedToday askedToday(const Options& options) {
  journal::AskedToday today;
  today.page = options.pageUrl.has_value();
  today.clock = options.now.has_value();
  today.settings = options.settingsFile || options.offLinePath;
  for (const auto& property : options.properties) today.properties.insert(property.first);
  return today;
}

}  // namespace awizo
