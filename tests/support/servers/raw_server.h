#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace awizo::test {

/// A server on the loopback address that answers each connection with given bytes, whether they
/// make an HTTP reply or not, and closes it.
class RawServer {
 public:
  /// Answers every request with these bytes.
  explicit RawServer(std::string reply);
  virtual ~RawServer();
  RawServer(const RawServer&) = delete;
  RawServer& operator=(const RawServer&) = delete;

  std::string url(const std::string& path = "/") const;
  int port() const { return port_; }
  /// What came in, head and body, once a reply has gone out.
  std::vector<std::string> requests() const { return requests_; }

 protected:
  /// One connection's bytes; a subclass may wrap them.
  struct Channel {
    std::function<std::string()> read;  ///< some bytes; empty at the end
    std::function<void(const std::string&)> write;
  };

  void serve(const Channel& channel);
  virtual void talk(int connection);
  void stop();

 private:
  void listen();

  std::string reply_;
  int port_ = 0;
  int socket_;
  std::atomic<bool> ending_ = false;
  std::vector<std::string> requests_;
  std::thread thread_;
};

/// A plain 200 reply.
std::string okReply(const std::string& body, const std::string& contentType = "text/xml");

/// A port of the loopback address on which nobody listens.
int deadPort();

}  // namespace awizo::test
