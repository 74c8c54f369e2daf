#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include "platform/files.h"
#include "platform/run_time_error.h"

namespace awizo::test {

/// Files and folders in memory, under classic paths ("c:\home\anna.xml"); "/home/anna.xml" names
/// the same file. The drives are "c:" alone; the root is there from the start.
class MemoryFiles : public Files {
 public:
  // What a test puts in and looks at.

  /// Puts a file there, and the folders above it.
  void put(std::string_view path, std::string_view bytes);
  /// Puts a folder there, and the folders above it.
  void putFolder(std::string_view path);
  bool has(std::string_view path) const;
  /// The bytes of a file; a test fails by the thrown std::out_of_range if there is none.
  const std::string& bytes(std::string_view path) const;
  /// From now on reading this file, or listing this folder, raises the error.
  void failReading(std::string_view path, const RunTimeError& error);
  /// From now on writing this file, or making this folder, raises the error; an old file stays.
  void failWriting(std::string_view path, const RunTimeError& error);
  /// From now on all reading, or all writing and making, raises the error; none ends that.
  void failAllReading(const std::optional<RunTimeError>& error) { allReadError_ = error; }
  void failAllWriting(const std::optional<RunTimeError>& error) { allWriteError_ = error; }
  /// From now on every line written to an open text file raises the error.
  void failLines(const RunTimeError& error) { lineErrors_.assign(1, error); }

  std::string readAll(std::string_view path) override;
  void replace(std::string_view path, std::string_view bytes) override;
  std::unique_ptr<TextStream> createText(std::string_view path) override;
  std::unique_ptr<TextStream> continueText(std::string_view path) override;
  bool folderExists(std::string_view path) override;
  void makeFolder(std::string_view path) override;
  std::vector<std::string> folders(std::string_view path) override;
  std::vector<std::string> files(std::string_view path, std::string_view ending) override;
  std::vector<std::string> drives() override { return {"c:"}; }

 private:
  friend class MemoryTextStream;

  void requireWritable(const std::string& path) const;
  void requireFolder(const std::string& path) const;

  std::map<std::string, std::string> files_;
  std::set<std::string> folders_{"c:"};
  std::map<std::string, RunTimeError> readErrors_;
  std::map<std::string, RunTimeError> writeErrors_;
  std::vector<RunTimeError> lineErrors_;
  std::optional<RunTimeError> allReadError_;
  std::optional<RunTimeError> allWriteError_;
};

}  // namespace awizo::test
