#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "adapters/curl/curl_http.h"

namespace awizo::curl {

struct Outgoing {
  std::string method;
  std::string url;
  std::vector<std::string> headers;  ///< in the form of libcurl's lists
};

struct Reply {
  std::string bytes;
  std::string contentType;  ///< the header's value; empty if missing
};

/// Sends the request and takes the whole reply, whatever its status. Raises the error of a host
/// that can't be reached, of a certificate that isn't trusted, or of a reply that doesn't come
/// whole.
Reply exchange(const Outgoing& outgoing, std::string_view body, const CurlHttp::Options& options);

}  // namespace awizo::curl
