#pragma once

#include <string>

#include "platform/shared_store.h"

namespace awizo::web {

/// Files of a folder behind the border, which all tabs of the page's origin share.
class PageSharedStore final : public SharedStore {
 public:
  explicit PageSharedStore(std::string folder) : folder_(std::move(folder)) {}

  void alone(const std::function<void()>& work) override;
  std::string read(std::string_view name, std::uint64_t from) override;
  void replace(std::string_view name, std::string_view text) override;
  void append(std::string_view name, std::string_view text) override;

 private:
  std::string pathOf(std::string_view name) const { return folder_ + "/" + std::string(name); }

  std::string folder_;
};

}  // namespace awizo::web
