#include "adapters/posix/descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <new>
#include <stdexcept>

#include "adapters/posix/errors.h"

namespace awizo::posix {
namespace {

/// Repeats a call that a signal has interrupted.
template <typename Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

}  // namespace

Descriptor::Descriptor(const std::string& path, int flags, unsigned mode)
    : path_(path), number_(uninterrupted([&] {
        // Not to wait for the other end of what turns out to be a pipe.
        return open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, mode);
      })) {
  if (number_ < 0) throw fileError(errno, path_);
}

Descriptor::~Descriptor() { close(number_); }

void Descriptor::writeAll(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t written =
        uninterrupted([&] { return write(number_, bytes.data(), bytes.size()); });
    if (written < 0) throw fileError(errno, path_);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

std::string Descriptor::readAll() const {
  struct stat status {};
  if (fstat(number_, &status) != 0) throw fileError(errno, path_);
  // A device or a pipe may have no end.
  if (!S_ISREG(status.st_mode)) throw errors::pathFileAccess();
  try {
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
      const ssize_t count = uninterrupted(
          [&] { return read(number_, bytes.data() + filled, bytes.size() - filled); });
      if (count < 0) throw fileError(errno, path_);
      if (count == 0) break;
      filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return bytes;
  } catch (const std::bad_alloc&) {
    throw errors::outOfMemory();
  } catch (const std::length_error&) {
    throw errors::outOfMemory();
  }
}

void Descriptor::flush() const {
  const int result = uninterrupted([&] { return fsync(number_); });
  // Some file systems have nothing to flush.
  if (result != 0 && errno != EINVAL && errno != ENOTSUP) throw fileError(errno, path_);
}

}  // namespace awizo::posix
