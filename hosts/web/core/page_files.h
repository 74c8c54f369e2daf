#pragma once

#include "platform/files.h"
#include "platform/growing_file.h"

namespace awizo::web {

/// The files behind the border, "c:" being their root.
class PageFiles final : public Files {
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

// By paths of the page's side.

std::string readPageFile(const std::string& path);
/// Raises the error of a file that is there already.
std::unique_ptr<GrowingFile> newPageFile(const std::string& path);
/// One that may be there already, to be added to.
std::unique_ptr<GrowingFile> continuedPageFile(const std::string& path);
/// A file that the page's side has opened, by the name that it gave it.
std::unique_ptr<GrowingFile> openedPageFile(const std::string& handle);

}  // namespace awizo::web
