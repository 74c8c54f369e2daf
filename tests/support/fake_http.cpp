#include "support/fake_http.h"

namespace awizo::test {

class FakeHttpRequest : public HttpRequest {
 public:
  explicit FakeHttpRequest(FakeHttp& http) : http_(http) {}

  void open(std::string_view method, std::string_view url) override {
    if (http_.openError_) throw *http_.openError_;
    request_.method = method;
    request_.url = url;
  }

  void setHeader(std::string_view name, std::string_view value) override {
    request_.headers.emplace_back(name, value);
  }

  void send(std::string_view body) override {
    request_.body = body;
    http_.sent.push_back(request_);
    if (http_.whileSending) http_.whileSending();
    if (http_.answers_.empty()) throw errors::hostNotFound();
    FakeHttp::ScriptedAnswer answer = std::move(http_.answers_.front());
    http_.answers_.pop_front();
    if (answer.error) throw *answer.error;
    reply_ = std::move(answer.text);
  }

  std::string responseText() override {
    if (!reply_) throw errors::replyNotAvailable();
    return *std::exchange(reply_, std::nullopt);
  }

 private:
  FakeHttp& http_;
  SentRequest request_;
  std::optional<std::string> reply_;
};

std::unique_ptr<HttpRequest> FakeHttp::createRequest() {
  if (createError_) throw *createError_;
  return std::make_unique<FakeHttpRequest>(*this);
}

}  // namespace awizo::test
