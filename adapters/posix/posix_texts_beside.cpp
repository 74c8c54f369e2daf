#include "adapters/posix/posix_texts_beside.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/errors.h"
#include "adapters/posix/replacing.h"
#include "platform/run_time_error.h"

namespace awizo {
namespace {

namespace fs = std::filesystem;

bool isFile(const std::string& path, struct stat& status) {
  return lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

/// The folders of texts beside the records of a folder.
template <class Take>
void eachFolderOfTexts(const std::string& folder, Take&& take) {
  const std::string ending = pathBeside("", "");
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    const std::string path = at->path().string();
    if (path.ends_with(ending)) take(path, path.substr(0, path.size() - ending.size()));
  }
}

bool holds(const std::string& path, std::string_view text) {
  struct stat status {};
  if (!isFile(path, status) || static_cast<std::size_t>(status.st_size) != text.size()) {
    return false;
  }
  bool same = false;
  caughtError([&] { same = posix::Descriptor(path, O_RDONLY | O_NOFOLLOW).readAll() == text; });
  return same;
}

}  // namespace

PosixTextsBeside::PosixTextsBeside(std::string folder, const std::string& record)
    : folder_(std::move(folder)), own_(pathBeside(record, "")) {}

void PosixTextsBeside::keep(std::string_view name, std::string_view text) {
  if (name.find('/') != name.npos) throw errors::badFileName();
  const std::string path = own_ + "/" + std::string(name);
  struct stat status {};
  if (isFile(path, status)) return;
  if (mkdir(own_.c_str(), S_IRWXU) == 0) {
    posix::flushFolder(folder_);
  } else if (errno != EEXIST) {
    throw posix::folderError(errno);
  }
  if (!shares(path, name, text)) posix::replaceFile(path, text, S_IRUSR | S_IWUSR);
}

bool PosixTextsBeside::shares(const std::string& path, std::string_view name,
                              std::string_view text) const {
  bool shared = false;
  eachFolderOfTexts(folder_, [&](const std::string& texts, const std::string&) {
    const std::string other = texts + "/" + std::string(name);
    // Some disks know no second name.
    shared = shared || (holds(other, text) && link(other.c_str(), path.c_str()) == 0);
  });
  if (shared) posix::flushFolder(own_);
  return shared;
}

std::vector<TextBeside> PosixTextsBeside::of(const std::string& record) {
  std::vector<TextBeside> texts;
  std::error_code error;
  const std::string folder = pathBeside(record, "");
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    struct stat status {};
    if (!isFile(at->path().string(), status)) continue;
    texts.push_back({at->path().filename().string(), static_cast<std::uint64_t>(status.st_size)});
  }
  return texts;
}

void PosixTextsBeside::removeOf(const std::string& record) {
  // What can't be removed now goes with the strays.
  std::error_code error;
  fs::remove_all(pathBeside(record, ""), error);
}

void PosixTextsBeside::removeStrays(const std::string& folder) {
  eachFolderOfTexts(folder, [](const std::string& texts, const std::string& record) {
    struct stat status {};
    // A record is made before its texts, and removed before them.
    if (lstat((record + std::string(recordEnding)).c_str(), &status) == 0) return;
    std::error_code error;
    fs::remove_all(texts, error);
  });
}

}  // namespace awizo
