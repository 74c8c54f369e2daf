#pragma once

#include <string_view>

namespace awizo {

/// A file that is only ever added to. Failures raise the run-time errors of Files.
class GrowingFile {
 public:
  virtual ~GrowingFile() = default;
  /// The bytes are with the operating system when this returns: the program's end doesn't lose
  /// them, and within a second a power cut doesn't either.
  virtual void append(std::string_view bytes) = 0;
  /// All bytes are on the disk when this returns.
  virtual void flush() = 0;
};

}  // namespace awizo
