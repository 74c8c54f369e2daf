#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/http.h"
#include "platform/run_time_error.h"

namespace awizo::test {

/// A request as it went out.
struct SentRequest {
  std::string method;
  std::string url;
  std::vector<std::pair<std::string, std::string>> headers;
  std::string body;
};

/// A service whose answers a test queues, one for each request. With none left nobody is at the
/// other end: the send raises errors::hostNotFound().
class FakeHttp : public Http {
 public:
  // What a test puts in and looks at.

  /// The next request is answered with this text.
  void reply(std::string text) { answers_.push_back({std::move(text), std::nullopt}); }
  /// The next request fails while it is sent.
  void fail(const RunTimeError& error) { answers_.push_back({"", error}); }
  /// From now on opening a request raises this.
  void failOpening(const RunTimeError& error) { openError_ = error; }
  /// From now on no request can be made at all.
  void failCreating(const RunTimeError& error) { createError_ = error; }

  /// Runs while each request is under way. May be empty.
  std::function<void()> whileSending;

  /// Every request that was sent, the failed ones included.
  std::vector<SentRequest> sent;

  std::unique_ptr<HttpRequest> createRequest() override;

 private:
  friend class FakeHttpRequest;

  struct ScriptedAnswer {
    std::string text;
    std::optional<RunTimeError> error;
  };

  std::deque<ScriptedAnswer> answers_;
  std::optional<RunTimeError> openError_;
  std::optional<RunTimeError> createError_;
};

}  // namespace awizo::test
