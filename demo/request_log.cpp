#include "demo/request_log.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace awizo::demo {

namespace {

nlohmann::json orNull(const std::optional<std::string>& text) {
  return text ? nlohmann::json(*text) : nlohmann::json(nullptr);
}

bool isContinuationByte(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

void shorten(std::string& text, std::size_t limit) {
  if (text.size() <= limit) return;
  while (limit > 0 && isContinuationByte(text[limit])) --limit;
  text.resize(limit);
}

}  // namespace

void RequestLog::add(SeenRequest request) {
  shorten(request.body, bodyLimit);
  const std::lock_guard lock(mutex_);
  requests_.push_back(std::move(request));
  if (requests_.size() > capacity) requests_.pop_front();
}

void RequestLog::clear() {
  const std::lock_guard lock(mutex_);
  requests_.clear();
}

std::string RequestLog::asJson() const {
  auto list = nlohmann::json::array();
  const std::lock_guard lock(mutex_);
  for (const SeenRequest& request : requests_) {
    list.push_back({{"exchange", request.exchange},
                    {"target", request.target},
                    {"cookie", orNull(request.cookie)},
                    {"contentType", orNull(request.contentType)},
                    {"body", request.body}});
  }
  return list.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace awizo::demo
