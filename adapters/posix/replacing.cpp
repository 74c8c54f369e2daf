#include "adapters/posix/replacing.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/errors.h"

namespace awizo::posix {
namespace {

constexpr unsigned allPermissions = 07777;

/// The file that a link leads to; the path itself if there is no file yet.
std::string behindLinks(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr),
                                                         &std::free);
  return real ? real.get() : path;
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == path.npos ? "./" : path.substr(0, slash + 1);
}

/// A file with another name in the target's folder, removed unless it has replaced the target.
class NewFile {
 public:
  NewFile(const std::string& target, unsigned mode) : target_(target) {
    for (unsigned attempt = 0; !file_; ++attempt) {
      name_ =
          folderOf(target) + ".awizo-" + std::to_string(getpid()) + "-" + std::to_string(attempt);
      struct stat status {};
      if (lstat(name_.c_str(), &status) == 0) continue;
      file_ = std::make_unique<Descriptor>(name_, O_WRONLY | O_CREAT | O_EXCL, mode);
    }
  }
  ~NewFile() {
    if (!renamed_) unlink(name_.c_str());
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  const Descriptor& file() const { return *file_; }

  void takePlace() {
    if (rename(name_.c_str(), target_.c_str()) != 0) throw fileError(errno, target_);
    renamed_ = true;
  }

 private:
  const std::string& target_;
  std::string name_;
  std::unique_ptr<Descriptor> file_;
  bool renamed_ = false;
};

/// Error 75 for a folder, 70 for a file that may not be written though its folder may.
void requireWritable(const std::string& path, const struct stat& status) {
  if (S_ISDIR(status.st_mode)) throw errors::pathFileAccess();
  if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) throw fileError(errno, path);
}

}  // namespace

void flushFolder(const std::string& folder) {
  try {
    Descriptor(folder, O_RDONLY | O_DIRECTORY).flush();
  } catch (const RunTimeError&) {
  }
}

void replaceFile(const std::string& path, std::string_view bytes, unsigned mode) {
  const std::string target = behindLinks(path);
  struct stat old {};
  const bool exists = stat(target.c_str(), &old) == 0;
  if (exists) requireWritable(target, old);
  if (exists && !S_ISREG(old.st_mode)) {
    // A device stays what it is.
    Descriptor(target, O_WRONLY).writeAll(bytes);
    return;
  }
  NewFile replacement(target, mode);
  const int number = replacement.file().number();
  if (exists && fchmod(number, old.st_mode & allPermissions) != 0) throw fileError(errno, target);
  replacement.file().writeAll(bytes);
  replacement.file().flush();
  replacement.takePlace();
  flushFolder(folderOf(target));
}

}  // namespace awizo::posix
