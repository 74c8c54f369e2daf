#pragma once

#include <string>
#include <vector>

#include "platform/text.h"
#include "support/test_editor.h"

namespace awizo::test {

inline constexpr const char* logPath = "c:\\log\\Awizo.log";

inline void openLog(TestEditor& test, std::int16_t level = 4) {
  test.files.putFolder("c:\\log");
  test.session.log.OpenDebugLog(logPath, level);
}

/// The log's messages without date and time, the line about its opening left out.
inline std::vector<std::string> loggedMessages(const TestEditor& test) {
  const std::string stamp = "21.11.2026 10:15 ";
  std::vector<std::string> messages;
  for (const std::string& line : split(test.files.bytes(logPath), "\r\n")) {
    if (line.starts_with(stamp)) messages.push_back(line.substr(stamp.size()));
  }
  messages.erase(messages.begin());
  return messages;
}

}  // namespace awizo::test
