#include "foundation/debug_log.h"

#include <exception>
#include <string>

namespace awizo {
namespace {

/// A log that fails is no reason to disturb the user: whatever goes wrong is dropped.
template <class Body>
void silently(Body&& body) {
  try {
    body();
  } catch (const std::exception&) {
  }
}

}  // namespace

void DebugLog::OpenDebugLog(std::string_view path, std::int16_t level) {
  LogLevel = level;
  LogStream.reset();
  LogFileSystem = &files_;
  silently([&] { LogStream = LogFileSystem->createText(path); });
  if (LogStream) writeStamped("Start logowania...");
}

void DebugLog::WriteDebugLine(std::string_view message, std::int16_t level) {
  if (writes(level)) writeStamped(message);
}

void DebugLog::WriteDebugXml(std::string_view message, const XmlNode& node, std::int16_t level) {
  if (!writes(level)) return;
  writeStamped(message);
  silently([&] { LogStream->writeLine(locale_.toSingleByte(node.xml())); });
}

void DebugLog::writeStamped(std::string_view message) {
  silently([&] {
    const Moment now = clock_.stamp();
    std::string line = locale_.shortDate(now.date) + " " + locale_.shortTime(now.time) + " ";
    LogStream->writeLine(locale_.toSingleByte(line.append(message)));
  });
}

}  // namespace awizo
