#include "hosts/desktop/screenshots/demo_http.h"

#include "demo/exchange.h"

namespace awizo::desktop {
namespace {

class DemoRequest : public HttpRequest {
 public:
  explicit DemoRequest(demo::Replies& replies) : replies_(replies) {}

  void open(std::string_view, std::string_view url) override {
    url_ = url.substr(0, url.find('?'));
  }
  void setHeader(std::string_view, std::string_view) override {}
  void send(std::string_view body) override { reply_ = answer(body); }
  std::string responseText() override { return std::move(reply_); }

 private:
  std::string answer(std::string_view body) {
    const auto exchange = demo::exchangeAt(url_);
    if (!exchange) return {};
    switch (*exchange) {
      case demo::Exchange::partnerInfo:
        return replies_.partnerInfo(body);
      case demo::Exchange::productCatalogue:
        return replies_.productCatalogue(body);
      case demo::Exchange::deliveryPlaces:
        return replies_.deliveryPlaces(body);
      case demo::Exchange::order:
        return replies_.order(body);
      case demo::Exchange::upload:
        return demo::submissionReply("OK");
    }
    return {};
  }

  demo::Replies& replies_;
  std::string url_;
  std::string reply_;
};

}  // namespace

std::unique_ptr<HttpRequest> DemoHttp::createRequest() {
  return std::make_unique<DemoRequest>(replies_);
}

}  // namespace awizo::desktop
