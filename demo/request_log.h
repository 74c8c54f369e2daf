#pragma once

#include <deque>
#include <mutex>
#include <optional>
#include <string>

namespace awizo::demo {

/// One request as it came in.
struct SeenRequest {
  std::string exchange;                    ///< its name
  std::string target;                      ///< path and query as they were in the request
  std::optional<std::string> cookie;       ///< the Cookie header, if there was one
  std::optional<std::string> contentType;  ///< the Content-Type header, if there was one
  std::string body;
};

/// The latest requests, at most `capacity`, for tests to look at. Safe for use from any thread.
class RequestLog {
 public:
  static constexpr std::size_t capacity = 64;
  /// Of a longer body only this many bytes are kept, rounded down to whole characters.
  static constexpr std::size_t bodyLimit = 65536;

  void add(SeenRequest request);
  void clear();
  /// A JSON array of objects with the fields of SeenRequest; null for a missing header.
  std::string asJson() const;

 private:
  mutable std::mutex mutex_;
  std::deque<SeenRequest> requests_;
};

}  // namespace awizo::demo
