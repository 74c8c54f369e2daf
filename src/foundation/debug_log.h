#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/text.h"
#include "platform/xml.h"

namespace awizo {

/// The diagnostic log for support staff: one text file in the machine's single-byte encoding,
/// overwritten on each run. It never fails: what can't be written is lost. Levels: 2 for errors,
/// 4 for trace; a line is written when its level is not above the level of opening.
class DebugLog {
 public:
  DebugLog(const Clock& clock, const Locale& locale, Files& files)
      : clock_(clock), locale_(locale), files_(files) {}

  /// Opens the file by its classic path.
  void OpenDebugLog(std::string_view path, std::int16_t level);
  /// Date, time and the message, in one line.
  void WriteDebugLine(std::string_view message, std::int16_t level = 4);
  /// The same, and on the next line the XML text of the node.
  void WriteDebugXml(std::string_view message, const XmlNode& node, std::int16_t level = 4);

  /// Whether a line of this level would be written; guards the making of costly messages.
  bool writes(std::int16_t level) const { return LogStream != nullptr && level <= LogLevel; }

  /// WriteDebugLine of the pieces, texts and whole numbers, one after another. Where the line isn't
  /// written, its text isn't made.
  template <class... Pieces>
  void trace(const Pieces&... pieces) {
    if (writes(traceLevel)) WriteDebugLine(joined({textOf(pieces)...}), traceLevel);
  }

  std::int16_t LogLevel = 0;
  std::unique_ptr<TextStream> LogStream;
  Files* LogFileSystem = nullptr;  ///< none before the first opening

 private:
  static constexpr std::int16_t traceLevel = 4;

  static std::string_view textOf(std::string_view text) { return text; }
  static std::string textOf(std::integral auto number) { return std::to_string(number); }
  void writeStamped(std::string_view message);

  const Clock& clock_;
  const Locale& locale_;
  Files& files_;
};

}  // namespace awizo
