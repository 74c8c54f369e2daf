#include "hosts/web/core/page_files.h"

#include <utility>

#include "adapters/posix/paths/paths.h"
#include "hosts/web/core/border.h"
#include "platform/run_time_error.h"

namespace awizo::web {

namespace {

using posix::systemPath;

/// A file that stays open on the other side as long as this lives.
class OpenFile {
 public:
  explicit OpenFile(std::string handle) : handle_(std::move(handle)) {}
  ~OpenFile() { askNow({"close", handle_}); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  void append(std::string_view bytes) const { checked(askNow({"append", handle_, bytes})); }
  void flush() const { checked(askNow({"flush", handle_})); }

 private:
  std::string handle_;
};

/// `how` is "create", "continue" or "new".
std::string handleOf(const std::string& path, const std::string& how) {
  return checked(ask({"open", path, how})).at(0);
}

class PageText final : public TextStream {
 public:
  explicit PageText(std::string handle) : file_(std::move(handle)) {}
  void writeLine(std::string_view bytes) override { file_.append(std::string(bytes) + "\r\n"); }

 private:
  OpenFile file_;
};

class PageGrowingFile final : public GrowingFile {
 public:
  explicit PageGrowingFile(std::string handle) : file_(std::move(handle)) {}
  void append(std::string_view bytes) override { file_.append(bytes); }
  void flush() override { file_.flush(); }

 private:
  OpenFile file_;
};

}  // namespace

std::string PageFiles::readAll(std::string_view path) { return readPageFile(systemPath(path)); }

void PageFiles::replace(std::string_view path, std::string_view bytes) {
  checked(ask({"replace", systemPath(path), std::string(bytes)}));
}

std::unique_ptr<TextStream> PageFiles::createText(std::string_view path) {
  return std::make_unique<PageText>(handleOf(systemPath(path), "create"));
}

std::unique_ptr<TextStream> PageFiles::continueText(std::string_view path) {
  return std::make_unique<PageText>(handleOf(systemPath(path), "continue"));
}

bool PageFiles::folderExists(std::string_view path) {
  try {
    return checked(ask({"isFolder", systemPath(path)})).at(0) == "1";
  } catch (const RunTimeError&) {
    return false;  // no path at all, or on a drive that isn't there
  }
}

void PageFiles::makeFolder(std::string_view path) {
  checked(ask({"makeFolder", systemPath(path)}));
}

std::vector<std::string> PageFiles::folders(std::string_view path) {
  return checked(ask({"folders", systemPath(path)}));
}

std::vector<std::string> PageFiles::files(std::string_view path, std::string_view ending) {
  return checked(ask({"files", systemPath(path), std::string(ending)}));
}

std::vector<std::string> PageFiles::drives() { return posix::driveNames(); }

std::string readPageFile(const std::string& path) {
  return std::move(checked(ask({"read", path})).at(0));
}

std::unique_ptr<GrowingFile> newPageFile(const std::string& path) {
  return std::make_unique<PageGrowingFile>(handleOf(path, "new"));
}

std::unique_ptr<GrowingFile> continuedPageFile(const std::string& path) {
  return std::make_unique<PageGrowingFile>(handleOf(path, "continue"));
}

std::unique_ptr<GrowingFile> openedPageFile(const std::string& handle) {
  return std::make_unique<PageGrowingFile>(handle);
}

}  // namespace awizo::web
