#include "adapters/curl/exchange.h"

#include <curl/curl.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <new>

#include "platform/run_time_error.h"

namespace awizo::curl {
namespace {

constexpr long secondsToConnect = 60;
constexpr std::size_t largestReply = std::size_t{512} << 20;
constexpr int millisecondsBetweenLooks = 20;

struct Free {
  void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
  void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};

struct FreeMulti {
  void operator()(CURLM* handle) const { curl_multi_cleanup(handle); }
};

struct FreeUrl {
  void operator()(CURLU* url) const { curl_url_cleanup(url); }
};

using Easy = std::unique_ptr<CURL, Free>;
using Headers = std::unique_ptr<curl_slist, Free>;
using Multi = std::unique_ptr<CURLM, FreeMulti>;
using Url = std::unique_ptr<CURLU, FreeUrl>;

template <typename Handle>
Handle made(Handle handle) {
  if (!handle) throw errors::outOfMemory();
  return handle;
}

std::string partOf(CURLU* url, CURLUPart part) {
  char* text = nullptr;
  if (curl_url_get(url, part, &text, 0) != CURLUE_OK) return {};
  const std::unique_ptr<char, decltype(&curl_free)> owned(text, &curl_free);
  return text;
}

/// The address, with what isn't allowed in one written with percent signs. A name and a password in
/// it are removed: the cookie alone says who the user is, and libcurl would add a header for them.
Url parsed(const std::string& text) {
  Url url = made(Url(curl_url()));
  const bool isWhole = text.find('\0') == text.npos &&
                       curl_url_set(url.get(), CURLUPART_URL, text.c_str(), CURLU_URLENCODE) == 0;
  const std::string scheme = isWhole ? partOf(url.get(), CURLUPART_SCHEME) : "";
  if (scheme != "http" && scheme != "https") throw errors::hostNotFound();
  curl_url_set(url.get(), CURLUPART_USER, nullptr, 0);
  curl_url_set(url.get(), CURLUPART_PASSWORD, nullptr, 0);
  return url;
}

Headers headersOf(const std::vector<std::string>& lines) {
  Headers headers;
  const auto add = [&](const char* line) {
    curl_slist* longer = curl_slist_append(headers.get(), line);
    if (!longer) throw errors::outOfMemory();
    static_cast<void>(headers.release());
    headers.reset(longer);
  };
  // Without a value and its semicolon a header that libcurl would add is left out.
  for (const char* unwanted : {"Accept:", "Content-Type:", "Expect:"}) add(unwanted);
  for (const std::string& line : lines) add(line.c_str());
  return headers;
}

/// Where the bytes of the reply go.
struct Incoming {
  CURL* handle;
  std::string bytes;
  bool headEnded = false;
  bool outOfMemory = false;
};

/// A head that is cut off counts as whole for libcurl; only an empty line ends it.
std::size_t takeHeadLine(const char* bytes, std::size_t, std::size_t count, void* target) {
  const std::string_view line(bytes, count);
  static_cast<Incoming*>(target)->headEnded = line == "\r\n" || line == "\n";
  return count;
}

void reserveAnnounced(Incoming& incoming) {
  curl_off_t announced = 0;
  curl_easy_getinfo(incoming.handle, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &announced);
  // What is announced need not come; memory is taken ahead only up to a size that harms nobody.
  constexpr curl_off_t harmless = curl_off_t{64} << 20;
  if (announced > 0) {
    incoming.bytes.reserve(static_cast<std::size_t>(std::min(announced, harmless)));
  }
}

std::size_t take(const char* bytes, std::size_t, std::size_t count, void* target) {
  auto& incoming = *static_cast<Incoming*>(target);
  if (count > largestReply - incoming.bytes.size()) return 0;
  try {
    if (incoming.bytes.empty()) reserveAnnounced(incoming);
    incoming.bytes.append(bytes, count);
  } catch (const std::bad_alloc&) {
    incoming.outOfMemory = true;
    return 0;
  }
  return count;
}

RunTimeError errorFor(CURLcode code) {
  switch (code) {
    case CURLE_URL_MALFORMAT:
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
    case CURLE_COULDNT_CONNECT:
    case CURLE_OPERATION_TIMEDOUT:  // no limit but for connecting
      return errors::hostNotFound();
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_INVALIDCERTSTATUS:
    case CURLE_SSL_CACERT_BADFILE:
      return errors::badCertificate();
    case CURLE_OUT_OF_MEMORY:
      return errors::outOfMemory();
    default:
      return errors::downloadFailed();
  }
}

/// A service on the same machine is never reached by way of a proxy.
bool isThisMachine(CURLU* url) {
  const std::string host = partOf(url, CURLUPART_HOST);
  return host == "localhost" || host == "127.0.0.1" || host == "[::1]";
}

void setUp(CURL* handle, const Outgoing& outgoing, std::string_view body, CURLU* url,
           curl_slist* headers, const CurlHttp::Options& options) {
  curl_easy_setopt(handle, CURLOPT_CURLU, url);
  curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "http,https");
  curl_easy_setopt(handle, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
  curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 0L);
  curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT, secondsToConnect);
  curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 1L);
  curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 2L);
  curl_easy_setopt(handle, CURLOPT_POST, 1L);
  curl_easy_setopt(handle, CURLOPT_CUSTOMREQUEST, outgoing.method.c_str());
  curl_easy_setopt(handle, CURLOPT_POSTFIELDS, body.data());
  curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
  curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers);
  if (isThisMachine(url)) curl_easy_setopt(handle, CURLOPT_PROXY, "");
  if (!options.trustedCertificates.empty()) {
    curl_easy_setopt(handle, CURLOPT_CAINFO, options.trustedCertificates.c_str());
  }
}

/// Calls the host's function in even steps of time, however often the transfer wakes up.
class Looks {
 public:
  explicit Looks(const std::function<bool()>& keepGoing) : keepGoing_(keepGoing) {}

  bool goOn() {
    const auto now = std::chrono::steady_clock::now();
    if (!keepGoing_ || now < next_) return true;
    next_ = now + std::chrono::milliseconds(millisecondsBetweenLooks);
    return keepGoing_();
  }

 private:
  const std::function<bool()>& keepGoing_;
  std::chrono::steady_clock::time_point next_;
};

/// Takes part in the multi handle's work for its own lifetime.
class Taking {
 public:
  Taking(CURLM* multi, CURL* handle) : multi_(multi), handle_(handle) {
    if (curl_multi_add_handle(multi, handle) != CURLM_OK) throw errors::outOfMemory();
  }
  ~Taking() { curl_multi_remove_handle(multi_, handle_); }
  Taking(const Taking&) = delete;
  Taking& operator=(const Taking&) = delete;

 private:
  CURLM* multi_;
  CURL* handle_;
};

CURLcode run(CURL* handle, const std::function<bool()>& keepGoing) {
  const Multi multi = made(Multi(curl_multi_init()));
  const Taking taking(multi.get(), handle);
  Looks looks(keepGoing);
  int running = 1;
  while (running > 0) {
    if (!looks.goOn()) return CURLE_ABORTED_BY_CALLBACK;
    if (curl_multi_perform(multi.get(), &running) != CURLM_OK) return CURLE_OUT_OF_MEMORY;
    if (running == 0) break;
    if (curl_multi_poll(multi.get(), nullptr, 0, millisecondsBetweenLooks, nullptr) != CURLM_OK) {
      return CURLE_OUT_OF_MEMORY;
    }
  }
  int waiting = 0;
  const CURLMsg* message = curl_multi_info_read(multi.get(), &waiting);
  return message ? message->data.result : CURLE_RECV_ERROR;
}

}  // namespace

Reply exchange(const Outgoing& outgoing, std::string_view body, const CurlHttp::Options& options) {
  const Url url = parsed(outgoing.url);
  const Headers headers = headersOf(outgoing.headers);
  const Easy handle = made(Easy(curl_easy_init()));
  setUp(handle.get(), outgoing, body, url.get(), headers.get(), options);
  Incoming incoming{handle.get(), {}};
  curl_easy_setopt(handle.get(), CURLOPT_WRITEFUNCTION, take);
  curl_easy_setopt(handle.get(), CURLOPT_WRITEDATA, &incoming);
  curl_easy_setopt(handle.get(), CURLOPT_HEADERFUNCTION, takeHeadLine);
  curl_easy_setopt(handle.get(), CURLOPT_HEADERDATA, &incoming);

  const CURLcode code = run(handle.get(), options.keepGoing);
  if (incoming.outOfMemory) throw errors::outOfMemory();
  if (code != CURLE_OK) throw errorFor(code);
  if (!incoming.headEnded) throw errors::downloadFailed();
  const char* contentType = nullptr;
  curl_easy_getinfo(handle.get(), CURLINFO_CONTENT_TYPE, &contentType);
  return {std::move(incoming.bytes), contentType ? contentType : ""};
}

}  // namespace awizo::curl
