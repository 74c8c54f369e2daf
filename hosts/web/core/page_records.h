#pragma once

#include <string>
#include <utility>

#include "platform/record_folder.h"

namespace awizo::web {

/// The records that the page's side keeps in a folder of its own. One is in use as long as the core
/// that made it runs; one that was read stays this core's, so that no other takes it up as well.
/// A record holds all by itself: the browser's files can't be in two folders at once.
class PageRecords final : public RecordFolder {
 public:
  explicit PageRecords(std::string path) : path_(std::move(path)) {}

  std::vector<FoundRecord> records() override;
  NewRecord create() override;
  std::string read(std::string_view name) override;
  std::string readBeside(std::string_view record, std::string_view text) override;
  void remove(std::string_view name) override;

 private:
  std::string path_;
};

}  // namespace awizo::web
