#pragma once

#include <thread>

#include "demo/connection.h"
#include "demo/faults.h"
#include "demo/options.h"
#include "demo/posted_documents.h"
#include "demo/replies.h"
#include "demo/request_log.h"

namespace awizo::demo {

/// The service on the loopback address, from its construction to its destruction. Besides the five
/// exchanges and the host page it takes these commands, which no page of the service collides with:
///   POST   /_faults    lines EXCHANGE=KIND: sets faults; status 400 for what isn't one
///   DELETE /_faults    no exchange fails any more
///   GET    /_held      waits until a reply is being held back; returns the number of such replies
///   POST   /_release   releases the replies that are being held back
///   GET    /_requests  the requests since the start or the last reset, as JSON
///   POST   /_reset     the order waits again, no faults, no requests; posted documents stay
class DemoService {
 public:
  /// Starts to listen. Raises std::runtime_error if the port can't be taken or the data folder is
  /// missing.
  explicit DemoService(const Options& options);
  // Ends all connections and stops.
  ~DemoService();
  DemoService(const DemoService&) = delete;
  DemoService& operator=(const DemoService&) = delete;

  int port() const { return port_; }
  /// The address of the host page, two levels under the root of the service.
  std::string pageUrl() const;

 private:
  void offerExchanges();
  void offerPage(const std::filesystem::path& folder);
  void offerCommands();
  void answer(const httplib::Request& request, httplib::Response& response);
  std::string replyTo(Exchange exchange, const std::string& document);

  Faults faults_;
  Replies replies_;
  PostedDocuments posted_;
  RequestLog requests_;
  OneShotServer server_;
  int port_ = 0;
  std::thread listener_;
};

}  // namespace awizo::demo
