#pragma once

#include <filesystem>
#include <mutex>
#include <string>
#include <string_view>

namespace awizo::demo {

/// The folder in which posted documents are kept, byte for byte as they came, under the names
/// despatch-advice-0001.xml, despatch-advice-0002.xml and so on. No file is ever overwritten.
class PostedDocuments {
 public:
  explicit PostedDocuments(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Stores a document if it is well-formed XML. Returns "OK", or in Russian what is wrong.
  std::string accept(std::string_view document);

 private:
  bool store(std::string_view document);

  std::filesystem::path folder_;
  std::mutex mutex_;
  int lastNumber_ = 0;
};

}  // namespace awizo::demo
