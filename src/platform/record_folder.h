#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/growing_file.h"

namespace awizo {

/// A long text that lies beside a record, which names it.
struct TextBeside {
  std::string name;
  std::uint64_t size = 0;  ///< bytes
};

/// A record in its folder.
struct FoundRecord {
  std::string name;
  std::uint64_t size = 0;    ///< bytes, without the texts beside it
  std::int64_t changed = 0;  ///< seconds since 1970
  bool inUse = false;        ///< a program that runs writes it now
  std::vector<TextBeside> texts = {};
  bool tried = false;  ///< somebody has begun to go on with it, and hasn't come to its end
};

/// Where a new record's long texts go. Records of one folder share them: texts of the same name are
/// the same.
class TextsBeside {
 public:
  virtual ~TextsBeside() = default;
  /// The text is on the disk when this returns. Failures raise the run-time errors of Files.
  virtual void keep(std::string_view name, std::string_view text) = 0;
};

struct NewRecord {
  std::string name;
  std::unique_ptr<GrowingFile> file;
  std::unique_ptr<TextsBeside> texts = nullptr;  ///< null: the record holds all by itself
};

/// Where a user's records lie, for him alone. Failures raise the run-time errors of Files.
class RecordFolder {
 public:
  virtual ~RecordFolder() = default;
  virtual std::vector<FoundRecord> records() = 0;
  /// A new record under a name that no other has; in use as long as the file is open.
  virtual NewRecord create() = 0;
  virtual std::string read(std::string_view name) = 0;
  virtual std::string readBeside(std::string_view record, std::string_view text) = 0;
  /// Notes that somebody begins to go on with it. A folder that can't keep that notes nothing.
  virtual void markTried(std::string_view) {}
  /// With the texts beside it. Nothing happens where there is none of that name.
  virtual void remove(std::string_view name) = 0;
};

inline constexpr std::string_view recordEnding = ".record";

/// The path of a text that lies beside the record of this path: in a folder of the record's own.
inline std::string pathBeside(std::string_view record, std::string_view text) {
  if (record.ends_with(recordEnding)) record.remove_suffix(recordEnding.size());
  std::string path(record);
  path.append(".texts");
  if (!text.empty()) path.append("/").append(text);
  return path;
}

}  // namespace awizo
