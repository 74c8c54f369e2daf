#pragma once

#include <filesystem>

#include "support/files/temporary_folder.h"

namespace awizo::test {

/// A temporary folder with what the supplier's machine has: the local folder with the user's file
/// and the partner's, and room for documents. Gone with this object.
class Workplace {
 public:
  Workplace();

  /// The local folder.
  std::filesystem::path folder() const { return root_.path() / "VIRD"; }
  std::filesystem::path documents() const { return root_.path() / "documents"; }
  std::filesystem::path posted() const { return root_.path() / "posted"; }
  std::filesystem::path settings() const { return root_.path() / "settings"; }

 private:
  TemporaryFolder root_;
};

}  // namespace awizo::test
