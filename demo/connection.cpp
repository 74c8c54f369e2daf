#include "demo/connection.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <sstream>
#include <string_view>
#include <utility>

namespace awizo::demo {

namespace {

/// The library forgets headers without a value; an empty cookie must be distinguished from none.
void addEmptyHeaders(const std::string& head, httplib::Request& request) {
  std::istringstream lines(head);
  for (std::string line; std::getline(lines, line);) {
    const auto colon = line.find(':');
    if (colon == std::string::npos || colon == 0) continue;
    if (line.find_first_not_of(" \t\r", colon + 1) != std::string::npos) continue;
    request.headers.emplace(line.substr(0, colon), "");
  }
}

/// A request that announces no body has none. The library would wait for the connection's end.
void announceNoBody(httplib::Request& request) {
  if (request.has_header("Content-Length") || request.has_header("Transfer-Encoding")) return;
  request.headers.emplace("Content-Length", "0");
}

/// The library compresses as strongly as it can, for half a minute where a catalogue is large.
void askForPlainReply(httplib::Request& request) { request.headers.erase("Accept-Encoding"); }

}  // namespace

ssize_t Connection::read(char* target, size_t size) {
  if (bufferStart_ == bufferEnd_) {
    const ssize_t count = ::recv(socket_, buffer_.data(), buffer_.size(), 0);
    if (count <= 0) return count;
    bufferStart_ = 0;
    bufferEnd_ = static_cast<size_t>(count);
  }
  const size_t count = std::min(size, bufferEnd_ - bufferStart_);
  std::memcpy(target, buffer_.data() + bufferStart_, count);
  bufferStart_ += count;
  if (inHead_) head_.append(target, count);
  return static_cast<ssize_t>(count);
}

std::string Connection::takeHead() {
  inHead_ = false;
  return std::move(head_);
}

ssize_t Connection::write(const char* data, size_t size) {
  if (!begun_) {
    begun_ = true;
    const std::string noReply = "HTTP/1.1 " + std::to_string(statusOfNoReply) + " ";
    silent_ = std::string_view(data, size).starts_with(noReply);
  }
  if (silent_) return static_cast<ssize_t>(size);
  return ::send(socket_, data, size, MSG_NOSIGNAL);
}

void Connection::get_remote_ip_and_port(std::string& address, int& port) const {
  address = "127.0.0.1";
  port = 0;
}

void Connection::get_local_ip_and_port(std::string& address, int& port) const {
  get_remote_ip_and_port(address, port);
}

bool OneShotServer::process_and_close_socket(socket_t socket) {
  {
    const std::lock_guard lock(mutex_);
    open_.insert(socket);
    if (ended_) ::shutdown(socket, SHUT_RDWR);
  }
  // Head and body of a reply are written apart; the second must not wait for the client's receipt.
  const int on = 1;
  ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  Connection connection(socket);
  bool connectionClosed = false;
  const bool done =
      process_request(connection, true, connectionClosed, [&](httplib::Request& request) {
        addEmptyHeaders(connection.takeHead(), request);
        announceNoBody(request);
        askForPlainReply(request);
      });
  const std::lock_guard lock(mutex_);
  open_.erase(socket);
  ::shutdown(socket, SHUT_RDWR);
  ::close(socket);
  return done;
}

void OneShotServer::endAll() {
  stop();
  const std::lock_guard lock(mutex_);
  ended_ = true;
  for (const socket_t socket : open_) ::shutdown(socket, SHUT_RDWR);
}

}  // namespace awizo::demo
