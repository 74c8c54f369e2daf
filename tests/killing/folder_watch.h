#pragma once

#include <filesystem>
#include <string>

namespace awizo::test {

/// Is notified by the system, as it happens, of what becomes of the files in a folder.
class FolderWatch {
 public:
  explicit FolderWatch(const std::filesystem::path& folder);
  ~FolderWatch();
  FolderWatch(const FolderWatch&) = delete;
  FolderWatch& operator=(const FolderWatch&) = delete;

  /// Waits until a file was created there; false when patience ran out.
  bool waitForNewFile();
  /// Takes in what has happened up to now.
  void catchUp();
  /// Forgets what has happened.
  void startAnew();

  bool created() const { return created_; }  ///< a file was made
  bool renamed() const { return renamed_; }  ///< a file took another's name

 private:
  bool read(int patienceInMilliseconds);

  int events_;
  bool created_ = false;
  bool renamed_ = false;
};

}  // namespace awizo::test
