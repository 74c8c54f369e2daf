#include "adapters/curl/curl_http.h"

#include <curl/curl.h>

#include <utility>

#include "adapters/curl/request.h"
#include "platform/run_time_error.h"

namespace awizo {

CurlHttp::CurlHttp() : CurlHttp(Options{}) {}

CurlHttp::CurlHttp(Options options) : options_(std::move(options)) {
  if (curl_global_init(CURL_GLOBAL_DEFAULT) != CURLE_OK) throw errors::outOfMemory();
}

CurlHttp::~CurlHttp() { curl_global_cleanup(); }

std::unique_ptr<HttpRequest> CurlHttp::createRequest() {
  return std::make_unique<curl::Request>(options_);
}

}  // namespace awizo
