#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

#include "adapters/posix/descriptor.h"
#include "platform/growing_file.h"

namespace awizo {

/// A new file that only its owner can read. A thread of its own brings what is appended to the
/// disk, so that nobody waits for that.
class PosixGrowingFile final : public GrowingFile {
 public:
  /// A path of the system. Raises the error of a file that is there already, or can't be made.
  explicit PosixGrowingFile(const std::string& path);
  ~PosixGrowingFile() override;
  PosixGrowingFile(const PosixGrowingFile&) = delete;
  PosixGrowingFile& operator=(const PosixGrowingFile&) = delete;

  void append(std::string_view bytes) override;
  void flush() override;

 private:
  void flushSoon();

  posix::Descriptor file_;
  std::mutex mutex_;
  std::condition_variable changed_;
  bool unflushed_ = false;
  bool ends_ = false;
  std::thread flusher_;
};

}  // namespace awizo
