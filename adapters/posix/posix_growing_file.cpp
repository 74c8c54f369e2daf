#include "adapters/posix/posix_growing_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "platform/run_time_error.h"

namespace awizo {
namespace {

constexpr std::chrono::milliseconds longestUnflushed{500};

/// Where the system can't lock, nobody is told that the file is in use, which hurts nobody else.
void lockForLife(const posix::Descriptor& file) {
  constexpr int mostTries = 1000;
  for (int tried = 0; tried < mostTries; ++tried) {
    if (flock(file.number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
    // Who looks just now whether the file is in use holds it for a moment.
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

}  // namespace

PosixGrowingFile::PosixGrowingFile(const std::string& path)
    : file_(path, O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_NOFOLLOW, S_IRUSR | S_IWUSR),
      flusher_([this] { flushSoon(); }) {
  lockForLife(file_);
}

PosixGrowingFile::~PosixGrowingFile() {
  {
    const std::lock_guard lock(mutex_);
    ends_ = true;
  }
  changed_.notify_one();
  flusher_.join();
}

void PosixGrowingFile::append(std::string_view bytes) {
  file_.writeAll(bytes);
  const std::lock_guard lock(mutex_);
  if (!unflushed_) changed_.notify_one();
  unflushed_ = true;
}

void PosixGrowingFile::flush() {
  file_.flush();
  const std::lock_guard lock(mutex_);
  unflushed_ = false;
}

void PosixGrowingFile::flushSoon() {
  std::unique_lock lock(mutex_);
  while (!ends_) {
    changed_.wait(lock, [this] { return unflushed_ || ends_; });
    // What comes in the meantime goes to the disk together.
    changed_.wait_for(lock, longestUnflushed, [this] { return ends_; });
    if (!unflushed_) continue;
    unflushed_ = false;
    lock.unlock();
    try {
      file_.flush();
    } catch (const RunTimeError&) {
      // Appending and flush() tell of a disk that fails.
    }
    lock.lock();
  }
}

}  // namespace awizo
