#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace awizo {

/// A text file open for writing; each line reaches the file before the call returns.
class TextStream {
 public:
  virtual ~TextStream() = default;
  /// Writes the bytes and a line end (carriage return and line feed).
  virtual void writeLine(std::string_view bytes) = 0;
};

/// Files and folders, by classic paths ("c:\home\anna\a.xml"); a path written with "/" works too.
/// Failures raise the classic run-time errors: 52, 53, 61, 68, 70, 71, 75, 76.
class Files {
 public:
  virtual ~Files() = default;

  virtual std::string readAll(std::string_view path) = 0;
  /// Replaces the file by the bytes, completely or not at all: a failure or the program's end
  /// leaves the old file as it was.
  virtual void replace(std::string_view path, std::string_view bytes) = 0;
  /// A new or emptied file that only its owner can read.
  virtual std::unique_ptr<TextStream> createText(std::string_view path) = 0;

  /// The same file without emptying it; a new one where there is none.
  virtual std::unique_ptr<TextStream> continueText(std::string_view path) = 0;

  virtual bool folderExists(std::string_view path) = 0;
  virtual void makeFolder(std::string_view path) = 0;
  /// Names, without a path, of the folders in a folder, in order.
  virtual std::vector<std::string> folders(std::string_view path) = 0;
  /// Names, without a path, of the files of this ending (".xml", case ignored), in order.
  virtual std::vector<std::string> files(std::string_view path, std::string_view ending) = 0;
  /// "c:", ...
  virtual std::vector<std::string> drives() = 0;
};

}  // namespace awizo
