#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace awizo::test {

/// One of the schemas under docs/formats.
class Schema {
 public:
  /// `name` without the ending: "order-read". Throws when the file is no schema.
  explicit Schema(std::string_view name);
  ~Schema();

  /// What is wrong with a document, each as "line 12: EAN: ..."; empty where it fits.
  std::vector<std::string> problemsOf(std::string_view xml) const;

 private:
  struct Parsed;
  std::unique_ptr<Parsed> parsed_;
};

}  // namespace awizo::test
