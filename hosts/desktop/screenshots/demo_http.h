#pragma once

#include <filesystem>

#include "demo/replies.h"
#include "platform/http.h"

namespace awizo::desktop {

/// The demo service without a network: every request is answered at once.
class DemoHttp : public Http {
 public:
  explicit DemoHttp(const std::filesystem::path& dataFolder) : replies_(dataFolder) {}

  std::unique_ptr<HttpRequest> createRequest() override;

 private:
  demo::Replies replies_;
};

}  // namespace awizo::desktop
