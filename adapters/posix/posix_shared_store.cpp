#include "adapters/posix/posix_shared_store.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/errors.h"
#include "adapters/posix/replacing.h"

namespace awizo {
namespace {

/// Who may use the folder may use its files too.
constexpr unsigned everyone = 0666;

}  // namespace

void PosixSharedStore::alone(const std::function<void()>& work) {
  const std::string path = pathOf("lock");
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
  if (error) throw posix::folderError(error.value());
  const posix::Descriptor lock(path, O_RDWR | O_CREAT, everyone);
  while (flock(lock.number(), LOCK_EX) != 0) {
    if (errno != EINTR) throw posix::fileError(errno, path);
  }
  work();
}

std::string PosixSharedStore::read(std::string_view name, std::uint64_t from) {
  const std::string path = pathOf(name);
  if (access(path.c_str(), F_OK) != 0 && errno == ENOENT) return "";
  const posix::Descriptor file(path, O_RDONLY);
  if (lseek(file.number(), static_cast<off_t>(from), SEEK_SET) < 0) {
    throw posix::fileError(errno, path);
  }
  return file.readAll();
}

void PosixSharedStore::replace(std::string_view name, std::string_view text) {
  posix::replaceFile(pathOf(name), text);
}

void PosixSharedStore::append(std::string_view name, std::string_view text) {
  const posix::Descriptor file(pathOf(name), O_WRONLY | O_CREAT | O_APPEND, everyone);
  file.writeAll(text);
  file.flush();
}

}  // namespace awizo
