#include "adapters/posix/posix_record_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <system_error>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/errors.h"
#include "adapters/posix/posix_growing_file.h"
#include "adapters/posix/posix_texts_beside.h"
#include "adapters/posix/replacing.h"
#include "platform/run_time_error.h"

namespace awizo {
namespace {

namespace fs = std::filesystem;

constexpr int mostNamesTried = 10;

bool isInUse(const std::string& path) {
  try {
    const posix::Descriptor file(path, O_RDONLY | O_NOFOLLOW);
    return flock(file.number(), LOCK_SH | LOCK_NB) != 0;
  } catch (const RunTimeError&) {
    return false;
  }
}

/// A file that marks a record as tried.
std::string markOf(const std::string& path) { return path + ".tried"; }

/// A name that hardly any other record has.
std::string newName() {
  std::random_device random;
  std::string name;
  for (int part = 0; part < 4; ++part) name += std::to_string(random() % 100'000) + "-";
  name.pop_back();
  return name.append(recordEnding);
}

}  // namespace

std::string PosixRecordFolder::usersOwnPath() {
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data != nullptr && data[0] == '/') return std::string(data) + "/awizo/records";
  const char* home = std::getenv("HOME");
  return std::string(home == nullptr ? "" : home) + "/.local/share/awizo/records";
}

std::string PosixRecordFolder::pathOf(std::string_view name) const {
  if (name.find('/') != name.npos) throw errors::badFileName();
  return path_ + "/" + std::string(name);
}

std::vector<FoundRecord> PosixRecordFolder::records() {
  std::vector<FoundRecord> found;
  std::error_code error;
  for (fs::directory_iterator at(path_, error), end; !error && at != end; at.increment(error)) {
    struct stat status {};
    const std::string path = at->path().string();
    if (!path.ends_with(recordEnding) || lstat(path.c_str(), &status) != 0 ||
        !S_ISREG(status.st_mode)) {
      continue;
    }
    found.push_back({at->path().filename().string(), static_cast<std::uint64_t>(status.st_size),
                     status.st_mtime, isInUse(path), PosixTextsBeside::of(path),
                     access(markOf(path).c_str(), F_OK) == 0});
  }
  return found;
}

NewRecord PosixRecordFolder::create() {
  std::error_code error;
  fs::create_directories(path_, error);
  if (error) throw posix::folderError(error.value());
  if (chmod(path_.c_str(), S_IRWXU) != 0) throw posix::folderError(errno);
  PosixTextsBeside::removeStrays(path_);
  for (int tried = 1;; ++tried) {
    const std::string name = newName();
    const std::string path = pathOf(name);
    if (tried < mostNamesTried && access(path.c_str(), F_OK) == 0) continue;
    return {name, std::make_unique<PosixGrowingFile>(path),
            std::make_unique<PosixTextsBeside>(path_, path)};
  }
}

std::string PosixRecordFolder::read(std::string_view name) {
  return posix::Descriptor(pathOf(name), O_RDONLY | O_NOFOLLOW).readAll();
}

std::string PosixRecordFolder::readBeside(std::string_view record, std::string_view text) {
  if (text.find('/') != text.npos) throw errors::badFileName();
  return posix::Descriptor(pathBeside(pathOf(record), text), O_RDONLY | O_NOFOLLOW).readAll();
}

void PosixRecordFolder::markTried(std::string_view name) {
  posix::replaceFile(markOf(pathOf(name)), "", S_IRUSR | S_IWUSR);
}

void PosixRecordFolder::remove(std::string_view name) {
  const std::string path = pathOf(name);
  // Before the record, so that no mark is ever left alone.
  unlink(markOf(path).c_str());
  if (unlink(path.c_str()) != 0 && errno != ENOENT) throw posix::fileError(errno, path);
  PosixTextsBeside::removeOf(path);
}

}  // namespace awizo
