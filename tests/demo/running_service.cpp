#include "demo/running_service.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace awizo::demo {

namespace {

RunningService::Reply replyOf(const httplib::Result& result) {
  if (!result) return {};
  return {result->status, result->body, result->get_header_value("Content-Type")};
}

}  // namespace

RunningService::RunningService(const std::vector<std::string>& arguments)
    : service_(optionsFrom(arguments)) {}

Options RunningService::optionsFrom(std::vector<std::string> arguments) const {
  arguments.insert(arguments.begin(), {"--posted", postedFolder().string()});
  return parseOptions(arguments);
}

std::vector<std::string> RunningService::postedFiles() const {
  std::vector<std::string> names;
  if (!std::filesystem::exists(postedFolder())) return names;
  for (const auto& entry : std::filesystem::directory_iterator(postedFolder())) {
    names.push_back(entry.path().filename().string());
  }
  std::ranges::sort(names);
  return names;
}

RunningService::Reply RunningService::post(const std::string& path, const std::string& body,
                                           const httplib::Headers& headers) const {
  httplib::Client client("127.0.0.1", port());
  return replyOf(client.Post(path, headers, body, "text/xml"));
}

RunningService::Reply RunningService::get(const std::string& path) const {
  httplib::Client client("127.0.0.1", port());
  client.set_read_timeout(60);
  return replyOf(client.Get(path));
}

void RunningService::clearFaults() const {
  httplib::Client("127.0.0.1", port()).Delete("/_faults");
}

std::string RunningService::wireReply(const std::string& path, const std::string& body) const {
  return wireReply("POST " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\nContent-Length: " +
                   std::to_string(body.size()) + "\r\n\r\n" + body);
}

std::string RunningService::wireReply(const std::string& request) const {
  const int connection = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port()));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (::connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    ::close(connection);
    throw std::runtime_error("can't connect");
  }
  ::send(connection, request.data(), request.size(), MSG_NOSIGNAL);
  std::string reply;
  std::array<char, 4096> buffer{};
  for (ssize_t count = 0; (count = ::recv(connection, buffer.data(), buffer.size(), 0)) > 0;) {
    reply.append(buffer.data(), static_cast<std::size_t>(count));
  }
  ::close(connection);
  return reply;
}

}  // namespace awizo::demo
