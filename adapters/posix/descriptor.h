#pragma once

#include <string>
#include <string_view>

namespace awizo::posix {

/// An open file, closed at the end of its life.
class Descriptor {
 public:
  /// Error by the cause when the file can't be opened or is a folder.
  Descriptor(const std::string& path, int flags, unsigned mode = 0);
  ~Descriptor();
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int number() const { return number_; }

  void writeAll(std::string_view bytes) const;
  std::string readAll() const;
  /// Returns when the bytes are on the disk.
  void flush() const;

 private:
  std::string path_;
  int number_;
};

}  // namespace awizo::posix
