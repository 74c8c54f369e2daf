#include "hosts/headless/recording.h"

#include <fcntl.h>

#include <cstdio>
#include <map>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/posix_growing_file.h"
#include "hosts/common/value_texts.h"
#include "hosts/version.h"
#include "journal/record_file.h"
#include "platform/run_time_error.h"

namespace awizo::headless {

namespace {

using Header = std::map<std::string, std::string>;

constexpr std::string_view propertyPrefix = "property ";

/// Calls with the value of a name that the header has.
template <class Take>
void take(const Header& header, const std::string& name, Take&& take) {
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

Header headerOf(const Options& options, const std::string& localeName) {
  Header header{{"version", versionText()}, {"locale", localeName}};
  if (options.settingsFile) header["settings"] = *options.settingsFile;
  if (options.offLinePath) header["offline-path"] = *options.offLinePath;
  if (options.now) header["now"] = momentText(*options.now);
  for (const auto& [name, value] : options.properties) {
    header[std::string(propertyPrefix) + name] = value;
  }
  return header;
}

}  // namespace

journal::RecordedSession sessionToReplay(const Options& options) {
  if (!options.replayFile) return {};
  try {
    const std::string bytes = posix::Descriptor(*options.replayFile, O_RDONLY).readAll();
    return options.acts ? journal::recordedSession(bytes, *options.acts)
                        : journal::recordedSession(bytes);
  } catch (const RunTimeError& error) {
    const bool noRecord = error.number() == errors::typeMismatch().number();
    throw BadArguments(*options.replayFile + ": " +
                       (noRecord ? "this is no record of a session" : error.description()));
  }
}

std::unique_ptr<GrowingFile> newRecord(const Options& options, const std::string& localeName) {
  if (!options.recordFile) return nullptr;
  try {
    auto file = std::make_unique<PosixGrowingFile>(*options.recordFile);
    file->append(journal::fileBeginning() +
                 journal::framed(journal::headerRecord(headerOf(options, localeName))));
    return file;
  } catch (const RunTimeError& error) {
    throw BadArguments(*options.recordFile + ": " + error.description());
  }
}

Options withRecorded(Options options, const journal::RecordedSession& session) {
  const Header& header = session.header;
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

journal::AskedToday askedToday(const Options& options) {
  journal::AskedToday today;
  today.page = options.pageUrl.has_value();
  today.clock = options.now.has_value();
  today.settings = options.settingsFile || options.offLinePath;
  for (const auto& property : options.properties) today.properties.insert(property.first);
  return today;
}

std::vector<std::string> hostActOf(const protocol::Json& line) {
  if (line.contains("call")) {
    protocol::Json call{{"call", line["call"]}};
    if (line.contains("args")) call["args"] = line["args"];
    return {"call", call.dump()};
  }
  const auto text = [&](const char* name) {
    const auto found = line.find(name);
    if (found == line.end()) return std::string();
    return found->is_string() ? found->get<std::string>() : found->dump();
  };
  return {text("do"), text("property"), text("value")};
}

protocol::Json lineOf(const std::vector<std::string>& hostAct) {
  if (hostAct.at(0) == "call") return protocol::parseLine(hostAct.at(1));
  protocol::Json line{{"do", hostAct.at(0)}};
  if (hostAct.size() > 2 && !hostAct[1].empty()) {
    line["property"] = hostAct[1];
    line["value"] = hostAct[2];
  }
  return line;
}

}  // namespace awizo::headless
