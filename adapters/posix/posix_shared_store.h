#pragma once

#include <string>

#include "platform/shared_store.h"

namespace awizo {

/// Texts as files of one folder; a lock on a file beside them keeps others out. The folder is made
/// with the first text.
class PosixSharedStore final : public SharedStore {
 public:
  /// The beginning of the files' paths as the system knows them: "/etc/awizo/numbers-".
  explicit PosixSharedStore(std::string beginning) : beginning_(std::move(beginning)) {}

  void alone(const std::function<void()>& work) override;
  std::string read(std::string_view name, std::uint64_t from) override;
  void replace(std::string_view name, std::string_view text) override;
  void append(std::string_view name, std::string_view text) override;

 private:
  std::string pathOf(std::string_view name) const { return beginning_ + std::string(name); }

  std::string beginning_;
};

}  // namespace awizo
