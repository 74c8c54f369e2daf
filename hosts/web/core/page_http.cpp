#include "hosts/web/core/page_http.h"

#include <optional>
#include <string>
#include <utility>

#include "hosts/web/core/border.h"
#include "platform/run_time_error.h"

namespace awizo::web {

namespace {

bool staysOnItsLine(std::string_view text) {
  return text.find_first_of(std::string_view("\r\n\0", 3)) == text.npos;
}

bool isToken(std::string_view text) {
  return !text.empty() && text.find_first_of(":; \t") == text.npos && staysOnItsLine(text);
}

class PageRequest final : public HttpRequest {
 public:
  void open(std::string_view method, std::string_view url) override {
    if (!isToken(method)) throw errors::invalidProcedureCall();
    method_ = method;
    url_ = url;
    headers_.clear();
    reply_.reset();
  }

  void setHeader(std::string_view name, std::string_view value) override {
    if (!isToken(name) || !staysOnItsLine(value)) throw errors::invalidProcedureCall();
    headers_.emplace_back(name);
    headers_.emplace_back(value);
  }

  void send(std::string_view body) override {
    reply_.reset();
    Fields question{"http", method_, url_, std::string(body)};
    question.insert(question.end(), headers_.begin(), headers_.end());
    reply_ = std::move(checked(ask(question)).at(0));
  }

  std::string responseText() override {
    if (!reply_) throw errors::replyNotAvailable();
    return *std::exchange(reply_, std::nullopt);
  }

 private:
  std::string method_;
  std::string url_;
  Fields headers_;  ///< name, value, name, ...
  std::optional<std::string> reply_;
};

}  // namespace

std::unique_ptr<HttpRequest> PageHttp::createRequest() { return std::make_unique<PageRequest>(); }

}  // namespace awizo::web
