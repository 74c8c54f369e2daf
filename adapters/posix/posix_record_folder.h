#pragma once

#include <string>

#include "platform/record_folder.h"

namespace awizo {

/// Records as files of a folder that only its owner can enter. The folder is made with the first
/// record. A record in use is locked, so that its program's end, whatever it is, frees it.
class PosixRecordFolder final : public RecordFolder {
 public:
  /// `path` as the system knows it.
  explicit PosixRecordFolder(std::string path) : path_(std::move(path)) {}

  /// The user's own: "awizo/records" below XDG_DATA_HOME or ".local/share" in the home folder.
  static std::string usersOwnPath();

  std::vector<FoundRecord> records() override;
  NewRecord create() override;
  std::string read(std::string_view name) override;
  std::string readBeside(std::string_view record, std::string_view text) override;
  void markTried(std::string_view name) override;
  void remove(std::string_view name) override;

 private:
  std::string pathOf(std::string_view name) const;

  std::string path_;
};

}  // namespace awizo
