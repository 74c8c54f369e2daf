#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/growing_file.h"

namespace awizo {

/// A record in its folder.
struct FoundRecord {
  std::string name;
  std::uint64_t size = 0;    ///< bytes
  std::int64_t changed = 0;  ///< seconds since 1970
  bool inUse = false;        ///< a program that runs writes it now
};

struct NewRecord {
  std::string name;
  std::unique_ptr<GrowingFile> file;
};

/// Where a user's records lie, for him alone. Failures raise the run-time errors of Files.
class RecordFolder {
 public:
  virtual ~RecordFolder() = default;
  virtual std::vector<FoundRecord> records() = 0;
  /// A new record under a name that no other has; in use as long as the file is open.
  virtual NewRecord create() = 0;
  virtual std::string read(std::string_view name) = 0;
  /// Nothing happens where there is none of that name.
  virtual void remove(std::string_view name) = 0;
};

}  // namespace awizo
