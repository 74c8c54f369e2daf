#pragma once

#include <httplib.h>

#include <array>
#include <mutex>
#include <set>
#include <string>

namespace awizo::demo {

/// A reply of this status isn't sent: the connection is closed without a word.
inline constexpr int statusOfNoReply = 444;

/// The server's side of one TCP connection, with a reply that can be left out.
class Connection : public httplib::Stream {
 public:
  explicit Connection(socket_t socket) : socket_(socket) {}

  bool is_readable() const override { return true; }
  bool is_writable() const override { return true; }
  ssize_t read(char* target, size_t size) override;
  ssize_t write(const char* data, size_t size) override;
  void get_remote_ip_and_port(std::string& address, int& port) const override;
  void get_local_ip_and_port(std::string& address, int& port) const override;
  socket_t socket() const override { return socket_; }

  /// What was read so far: called when the head of a request has come, the head as it was. Nothing
  /// is kept of what is read after it.
  std::string takeHead();

 private:
  socket_t socket_;
  std::string head_;
  bool inHead_ = true;
  std::array<char, 4096> buffer_{};
  size_t bufferStart_ = 0;
  size_t bufferEnd_ = 0;
  bool begun_ = false;
  bool silent_ = false;
};

/// An HTTP server that answers one request per connection, can leave out a reply, and ends at once
/// even while clients are connected.
class OneShotServer : public httplib::Server {
 public:
  /// Closes the server's and all clients' connections.
  void endAll();

 private:
  bool process_and_close_socket(socket_t socket) override;

  std::mutex mutex_;
  std::set<socket_t> open_;
  bool ended_ = false;
};

}  // namespace awizo::demo
