#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/curl/curl_http.h"
#include "adapters/curl/exchange.h"

namespace awizo::curl {

/// One request: what is to be sent, and afterwards the reply.
class Request final : public HttpRequest {
 public:
  explicit Request(const CurlHttp::Options& options) : options_(options) {}

  void open(std::string_view method, std::string_view url) override;
  void setHeader(std::string_view name, std::string_view value) override;
  void send(std::string_view body) override;
  std::string responseText() override;

 private:
  const CurlHttp::Options& options_;
  Outgoing outgoing_;
  std::optional<std::string> reply_;
};

}  // namespace awizo::curl
