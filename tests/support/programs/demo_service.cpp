#include "support/programs/demo_service.h"

#include <httplib.h>

#include <algorithm>
#include <stdexcept>

#include "support/files/files.h"

namespace awizo::test {

namespace {

std::vector<std::string> commandOf(const std::filesystem::path& postedFolder,
                                   const std::vector<std::string>& options) {
  std::vector<std::string> command{AWIZO_DEMO_SERVICE, "--port", "0", "--posted",
                                   postedFolder.string()};
  command.insert(command.end(), options.begin(), options.end());
  return command;
}

}  // namespace

DemoService::DemoService(const std::filesystem::path& postedFolder,
                         const std::vector<std::string>& options)
    : program_(commandOf(postedFolder, options)), postedFolder_(postedFolder) {
  const auto port = program_.readLine();
  const auto page = program_.readLine();
  if (!port || !page) throw std::runtime_error("the demo service didn't start");
  port_ = std::stoi(port->substr(port->find(' ') + 1));
  pageUrl_ = *page;
}

void DemoService::setFaults(const std::string& faults) {
  httplib::Client client("127.0.0.1", port_);
  const auto reply = client.Post("/_faults", faults, "text/plain");
  if (!reply || reply->status != 200) {
    throw std::runtime_error("the demo service doesn't take the faults");
  }
}

nlohmann::ordered_json DemoService::requests() const {
  httplib::Client client("127.0.0.1", port_);
  const auto reply = client.Get("/_requests");
  if (!reply) throw std::runtime_error("the demo service doesn't tell its requests");
  return nlohmann::ordered_json::parse(reply->body);
}

std::vector<std::string> DemoService::posted() const {
  std::vector<std::filesystem::path> files;
  if (std::filesystem::exists(postedFolder_)) {
    for (const auto& entry : std::filesystem::directory_iterator(postedFolder_)) {
      files.push_back(entry.path());
    }
  }
  std::ranges::sort(files);
  std::vector<std::string> documents;
  for (const auto& file : files) documents.push_back(readFile(file));
  return documents;
}

}  // namespace awizo::test
