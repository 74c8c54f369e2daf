#include "adapters/posix/posix_files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/errors.h"
#include "adapters/posix/paths/paths.h"
#include "adapters/posix/replacing.h"
#include "platform/text.h"

namespace awizo {
namespace {

using posix::Descriptor;
using posix::fileError;
using posix::folderError;
using posix::systemPath;

class FileStream final : public TextStream {
 public:
  FileStream(const std::string& path, int beginning)
      : file_(path, O_WRONLY | O_CREAT | O_NOFOLLOW | beginning, S_IRUSR | S_IWUSR) {
    struct stat status {};
    // A file that was there before still has the permissions that it was made with.
    if (fstat(file_.number(), &status) == 0 && S_ISREG(status.st_mode) &&
        fchmod(file_.number(), S_IRUSR | S_IWUSR) != 0) {
      throw fileError(errno, path);
    }
  }

  void writeLine(std::string_view bytes) override {
    std::string line(bytes);
    line += "\r\n";
    file_.writeAll(line);
  }

 private:
  Descriptor file_;
};

std::string lowered(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), lowerLatin);
  return text;
}

bool comesBefore(const std::string& left, const std::string& right) {
  const std::string lowLeft = lowered(left);
  const std::string lowRight = lowered(right);
  return lowLeft != lowRight ? lowLeft < lowRight : left < right;
}

enum class Kind { folder, file };

bool isOfKind(const std::string& path, Kind kind) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return false;
  return kind == Kind::folder ? S_ISDIR(status.st_mode) : S_ISREG(status.st_mode);
}

bool canBeListed(const std::string& name) {
  return !name.starts_with('.') && name.find('\\') == name.npos && isUtf8(name);
}

std::vector<std::string> list(std::string_view path, Kind kind, std::string_view ending) {
  const std::string folder = systemPath(path);
  const std::unique_ptr<DIR, int (*)(DIR*)> open(opendir(folder.c_str()), &closedir);
  if (!open) throw folderError(errno);
  const std::string lowEnding = lowered(std::string(ending));
  std::vector<std::string> names;
  while (const dirent* entry = readdir(open.get())) {
    const std::string name = entry->d_name;
    if (canBeListed(name) && lowered(name).ends_with(lowEnding) &&
        isOfKind(folder + "/" + name, kind)) {
      names.push_back(name);
    }
  }
  std::sort(names.begin(), names.end(), comesBefore);
  return names;
}

}  // namespace

std::string PosixFiles::readAll(std::string_view path) {
  return Descriptor(systemPath(path), O_RDONLY).readAll();
}

void PosixFiles::replace(std::string_view path, std::string_view bytes) {
  posix::replaceFile(systemPath(path), bytes);
}

std::unique_ptr<TextStream> PosixFiles::createText(std::string_view path) {
  return std::make_unique<FileStream>(systemPath(path), O_TRUNC);
}

std::unique_ptr<TextStream> PosixFiles::continueText(std::string_view path) {
  return std::make_unique<FileStream>(systemPath(path), O_APPEND);
}

bool PosixFiles::folderExists(std::string_view path) {
  try {
    return isOfKind(systemPath(path), Kind::folder);
  } catch (const RunTimeError&) {
    return false;  // no path at all, or on a drive that isn't there
  }
}

void PosixFiles::makeFolder(std::string_view path) {
  if (mkdir(systemPath(path).c_str(), 0777) != 0) throw folderError(errno);
}

std::vector<std::string> PosixFiles::folders(std::string_view path) {
  return list(path, Kind::folder, "");
}

std::vector<std::string> PosixFiles::files(std::string_view path, std::string_view ending) {
  return list(path, Kind::file, ending);
}

std::vector<std::string> PosixFiles::drives() { return posix::driveNames(); }

}  // namespace awizo
