#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace awizo {

/// One request, used once: open, headers, send, then the reply. Every step may raise a
/// RunTimeError; the calls block until they are done.
class HttpRequest {
 public:
  virtual ~HttpRequest() = default;
  virtual void open(std::string_view method, std::string_view url) = 0;
  /// An empty value is sent as an empty header.
  virtual void setHeader(std::string_view name, std::string_view value) = 0;
  /// Sends the text as UTF-8 and takes the whole reply. An HTTP status is no error.
  virtual void send(std::string_view body) = 0;
  /// The reply as UTF-8 text, handed over; error -2147483638 when there is none.
  virtual std::string responseText() = 0;
};

/// Makes requests.
class Http {
 public:
  virtual ~Http() = default;
  virtual std::unique_ptr<HttpRequest> createRequest() = 0;
};

}  // namespace awizo
