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
  /// `how` is "create", "continue" or "new".
  OpenFile(const std::string& path, const std::string& how)
      : handle_(checked(ask({"open", path, how})).at(0)) {}
  ~OpenFile() { askNow({"close", handle_}); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  void append(std::string bytes) const { checked(askNow({"append", handle_, std::move(bytes)})); }
  void flush() const { checked(askNow({"flush", handle_})); }

 private:
  std::string handle_;
};

class PageText final : public TextStream {
 public:
  PageText(const std::string& path, const std::string& how) : file_(path, how) {}
  void writeLine(std::string_view bytes) override { file_.append(std::string(bytes) + "\r\n"); }

 private:
  OpenFile file_;
};

class PageGrowingFile final : public GrowingFile {
 public:
  explicit PageGrowingFile(const std::string& path) : file_(path, "new") {}
  void append(std::string_view bytes) override { file_.append(std::string(bytes)); }
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
  return std::make_unique<PageText>(systemPath(path), "create");
}

std::unique_ptr<TextStream> PageFiles::continueText(std::string_view path) {
  return std::make_unique<PageText>(systemPath(path), "continue");
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
  return std::make_unique<PageGrowingFile>(path);
}

}  // namespace awizo::web
