#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/record_folder.h"

namespace awizo {

/// Texts as files in a folder of their record, which only its owner can read. A text that lies
/// beside another record of the folder gets one name more, and is gone with the last of them.
class PosixTextsBeside final : public TextsBeside {
 public:
  /// `record` is the record's path, `folder` where the others lie.
  PosixTextsBeside(std::string folder, const std::string& record);

  void keep(std::string_view name, std::string_view text) override;

  /// Those of a record, for whom it belongs.
  static std::vector<TextBeside> of(const std::string& record);
  static void removeOf(const std::string& record);
  /// Removes what was left by somebody who was killed while he removed a record.
  static void removeStrays(const std::string& folder);

 private:
  /// Whether another record had it and shares it now.
  bool shares(const std::string& path, std::string_view name, std::string_view text) const;

  std::string folder_;
  std::string own_;
};

}  // namespace awizo
