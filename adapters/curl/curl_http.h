#pragma once

#include <functional>
#include <string>

#include "platform/http.h"

namespace awizo {

/// HTTP by libcurl. A request blocks until its reply is whole; it has no time-out but 60 seconds to
/// connect. TLS certificates are checked, redirects are not followed, replies beyond half a
/// gigabyte fail.
class CurlHttp final : public Http {
 public:
  struct Options {
    /// Called many times a second while a request runs, so that a host can keep painting. False
    /// ends the exchange, as a reply that is cut off. May be empty.
    std::function<bool()> keepGoing;
    /// File of the certificates to trust, instead of the machine's own. May be empty.
    std::string trustedCertificates;
  };

  CurlHttp();
  explicit CurlHttp(Options options);
  ~CurlHttp() override;
  CurlHttp(const CurlHttp&) = delete;
  CurlHttp& operator=(const CurlHttp&) = delete;

  /// The request uses this object's options and must not outlive it.
  std::unique_ptr<HttpRequest> createRequest() override;

 private:
  const Options options_;
};

}  // namespace awizo
