#include "hosts/desktop/window/watched_http.h"

namespace awizo::desktop {
namespace {

class WatchedRequest : public HttpRequest {
 public:
  WatchedRequest(const WatchedHttp& watch, std::unique_ptr<HttpRequest> request)
      : watch_(watch), request_(std::move(request)) {}

  void open(std::string_view method, std::string_view url) override {
    url_ = url;
    request_->open(method, url);
  }
  void setHeader(std::string_view name, std::string_view value) override {
    request_->setHeader(name, value);
  }
  void send(std::string_view body) override {
    watch_.during(url_, [&] { request_->send(body); });
  }
  std::string responseText() override { return request_->responseText(); }

 private:
  const WatchedHttp& watch_;
  std::unique_ptr<HttpRequest> request_;
  std::string url_;
};

}  // namespace

std::unique_ptr<HttpRequest> WatchedHttp::createRequest() {
  return std::make_unique<WatchedRequest>(*this, http_.createRequest());
}

}  // namespace awizo::desktop
