#pragma once

#include "platform/files.h"

namespace awizo {

/// The machine's files. The one drive "c:" is the root; a name in a folder that isn't text, or that
/// holds a backslash, can't be written as a classic path and is not listed; nor are hidden ones.
/// Lists are ordered by name, A to Z without regard to case.
class PosixFiles final : public Files {
 public:
  std::string readAll(std::string_view path) override;
  void replace(std::string_view path, std::string_view bytes) override;
  std::unique_ptr<TextStream> createText(std::string_view path) override;
  std::unique_ptr<TextStream> continueText(std::string_view path) override;
  bool folderExists(std::string_view path) override;
  void makeFolder(std::string_view path) override;
  std::vector<std::string> folders(std::string_view path) override;
  std::vector<std::string> files(std::string_view path, std::string_view ending) override;
  std::vector<std::string> drives() override;
};

}  // namespace awizo
