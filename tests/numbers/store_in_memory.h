#pragma once

#include <map>

#include "platform/run_time_error.h"
#include "platform/shared_store.h"

namespace awizo::test {

class StoreInMemory final : public SharedStore {
 public:
  std::map<std::string, std::string, std::less<>> texts;
  /// Refuses to write, as a full disk does.
  bool isFull = false;

  void alone(const std::function<void()>& work) override { work(); }
  std::string read(std::string_view name, std::uint64_t from) override {
    const auto found = texts.find(name);
    return found == texts.end() || from > found->second.size() ? "" : found->second.substr(from);
  }
  void replace(std::string_view name, std::string_view text) override {
    if (isFull) throw errors::diskFull();
    texts[std::string(name)] = text;
  }
  void append(std::string_view name, std::string_view text) override {
    if (isFull) throw errors::diskFull();
    texts[std::string(name)] += text;
  }
};

}  // namespace awizo::test
