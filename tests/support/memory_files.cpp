#include "support/memory_files.h"

#include <cctype>

namespace awizo::test {
namespace {

/// One spelling for every path: backslashes, the drive in front, none at the end.
std::string plain(std::string_view path) {
  std::string text(path);
  for (char& letter : text) {
    if (letter == '/') letter = '\\';
  }
  if (text.starts_with('\\')) text.insert(0, "c:");
  while (text.ends_with('\\')) text.pop_back();
  return text;
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('\\');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

std::string nameOf(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

bool endsWithIgnoringCase(std::string_view text, std::string_view ending) {
  if (text.size() < ending.size()) return false;
  text.remove_prefix(text.size() - ending.size());
  for (std::size_t i = 0; i < ending.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(text[i])) !=
        std::tolower(static_cast<unsigned char>(ending[i]))) {
      return false;
    }
  }
  return true;
}

void raiseIfSet(const std::map<std::string, RunTimeError>& errors, const std::string& path) {
  if (const auto found = errors.find(path); found != errors.end()) throw found->second;
}

void raiseIfSet(const std::optional<RunTimeError>& error) {
  if (error) throw *error;
}

}  // namespace

class MemoryTextStream : public TextStream {
 public:
  MemoryTextStream(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) {}

  void writeLine(std::string_view bytes) override {
    if (!files_.lineErrors_.empty()) throw files_.lineErrors_.front();
    raiseIfSet(files_.allWriteError_);
    std::string& text = files_.files_[path_];
    text += bytes;
    text += "\r\n";
  }

 private:
  MemoryFiles& files_;
  std::string path_;
};

void MemoryFiles::put(std::string_view path, std::string_view bytes) {
  const std::string name = plain(path);
  putFolder(folderOf(name));
  files_[name] = bytes;
}

void MemoryFiles::putFolder(std::string_view path) {
  for (std::string name = plain(path); !name.empty(); name = folderOf(name)) folders_.insert(name);
}

bool MemoryFiles::has(std::string_view path) const { return files_.contains(plain(path)); }

const std::string& MemoryFiles::bytes(std::string_view path) const {
  return files_.at(plain(path));
}

void MemoryFiles::failReading(std::string_view path, const RunTimeError& error) {
  readErrors_.insert_or_assign(plain(path), error);
}

void MemoryFiles::failWriting(std::string_view path, const RunTimeError& error) {
  writeErrors_.insert_or_assign(plain(path), error);
}

std::string MemoryFiles::readAll(std::string_view path) {
  const std::string name = plain(path);
  raiseIfSet(allReadError_);
  raiseIfSet(readErrors_, name);
  if (const auto found = files_.find(name); found != files_.end()) return found->second;
  throw folders_.contains(folderOf(name)) ? errors::fileNotFound() : errors::pathNotFound();
}

void MemoryFiles::replace(std::string_view path, std::string_view bytes) {
  const std::string name = plain(path);
  requireWritable(name);
  files_[name] = bytes;
}

std::unique_ptr<TextStream> MemoryFiles::createText(std::string_view path) {
  const std::string name = plain(path);
  requireWritable(name);
  files_[name].clear();
  return std::make_unique<MemoryTextStream>(*this, name);
}

std::unique_ptr<TextStream> MemoryFiles::continueText(std::string_view path) {
  const std::string name = plain(path);
  requireWritable(name);
  files_.try_emplace(name);
  return std::make_unique<MemoryTextStream>(*this, name);
}

bool MemoryFiles::folderExists(std::string_view path) { return folders_.contains(plain(path)); }

void MemoryFiles::makeFolder(std::string_view path) {
  const std::string name = plain(path);
  if (folders_.contains(name) || files_.contains(name)) throw errors::pathFileAccess();
  requireWritable(name);
  folders_.insert(name);
}

std::vector<std::string> MemoryFiles::folders(std::string_view path) {
  const std::string name = plain(path);
  requireFolder(name);
  std::vector<std::string> found;
  for (const std::string& folder : folders_) {
    if (folderOf(folder) == name) found.push_back(nameOf(folder));
  }
  return found;
}

std::vector<std::string> MemoryFiles::files(std::string_view path, std::string_view ending) {
  const std::string name = plain(path);
  requireFolder(name);
  std::vector<std::string> found;
  for (const auto& [file, bytes] : files_) {
    if (folderOf(file) == name && endsWithIgnoringCase(file, ending)) found.push_back(nameOf(file));
  }
  return found;
}

void MemoryFiles::requireWritable(const std::string& path) const {
  raiseIfSet(allWriteError_);
  raiseIfSet(writeErrors_, path);
  if (path.empty()) throw errors::badFileName();
  if (!folders_.contains(folderOf(path))) throw errors::pathNotFound();
  if (folders_.contains(path)) throw errors::pathFileAccess();
}

void MemoryFiles::requireFolder(const std::string& path) const {
  raiseIfSet(allReadError_);
  raiseIfSet(readErrors_, path);
  if (!path.starts_with("c:")) throw errors::deviceUnavailable();
  if (!folders_.contains(path)) throw errors::pathNotFound();
}

}  // namespace awizo::test
