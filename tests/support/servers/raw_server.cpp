#include "support/servers/raw_server.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace awizo::test {
namespace {

int boundSocket(int& port) {
  const int number = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof(address);
  auto* generic = reinterpret_cast<sockaddr*>(&address);
  if (bind(number, generic, size) != 0 || getsockname(number, generic, &size) != 0) std::abort();
  port = ntohs(address.sin_port);
  return number;
}

/// Whether head and body, by its announced length, are there.
bool isWhole(const std::string& request) {
  const std::size_t end = request.find("\r\n\r\n");
  if (end == request.npos) return false;
  const std::string name = "Content-Length: ";
  const std::size_t length = request.find(name);
  const std::size_t announced = length < end ? std::stoul(request.substr(length + name.size())) : 0;
  return request.size() - (end + 4) >= announced;
}

}  // namespace

RawServer::RawServer(std::string reply) : reply_(std::move(reply)), socket_(boundSocket(port_)) {
  if (::listen(socket_, 8) != 0) std::abort();
  thread_ = std::thread([this] { listen(); });
}

RawServer::~RawServer() { stop(); }

void RawServer::stop() {
  if (ending_.exchange(true)) return;
  shutdown(socket_, SHUT_RDWR);
  thread_.join();
  close(socket_);
}

std::string RawServer::url(const std::string& path) const {
  return "http://127.0.0.1:" + std::to_string(port_) + path;
}

void RawServer::listen() {
  while (!ending_) {
    const int connection = accept(socket_, nullptr, nullptr);
    if (connection < 0) return;
    talk(connection);
    close(connection);
  }
}

void RawServer::talk(int connection) {
  const auto read = [connection] {
    std::array<char, 65536> buffer;
    const ssize_t count = recv(connection, buffer.data(), buffer.size(), 0);
    return std::string(buffer.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
  };
  const auto write = [connection](const std::string& bytes) {
    std::string_view rest = bytes;
    while (!rest.empty()) {
      const ssize_t count = send(connection, rest.data(), rest.size(), MSG_NOSIGNAL);
      if (count <= 0) return;
      rest.remove_prefix(static_cast<std::size_t>(count));
    }
    shutdown(connection, SHUT_WR);
  };
  serve({read, write});
}

void RawServer::serve(const Channel& channel) {
  std::string request;
  while (!isWhole(request)) {
    const std::string more = channel.read();
    if (more.empty()) return;
    request += more;
  }
  requests_.push_back(request);
  channel.write(reply_);
}

std::string okReply(const std::string& body, const std::string& contentType) {
  return "HTTP/1.1 200 OK\r\nContent-Type: " + contentType +
         "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

int deadPort() {
  int port = 0;
  close(boundSocket(port));
  return port;
}

}  // namespace awizo::test
