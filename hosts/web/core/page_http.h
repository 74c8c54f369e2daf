#pragma once

#include "platform/http.h"

namespace awizo::web {

/// HTTP as the page's side of the border does it.
class PageHttp final : public Http {
 public:
  std::unique_ptr<HttpRequest> createRequest() override;
};

}  // namespace awizo::web
