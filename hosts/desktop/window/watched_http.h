#pragma once

#include <functional>
#include <string>

#include "platform/http.h"

namespace awizo::desktop {

/// Passes every exchange on, and tells when one begins and ends.
class WatchedHttp : public Http {
 public:
  explicit WatchedHttp(Http& http) : http_(http) {}

  /// Runs `exchange`, which sends a request to the address and takes its reply.
  std::function<void(const std::string& url, const std::function<void()>& exchange)> during;

  std::unique_ptr<HttpRequest> createRequest() override;

 private:
  Http& http_;
};

}  // namespace awizo::desktop
