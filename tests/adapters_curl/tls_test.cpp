#include <unistd.h>

#include <filesystem>

#include "adapters/curl/curl_http.h"
#include "platform/run_time_error.h"
#include "support/servers/tls_server.h"

namespace awizo {
namespace {

using test::okReply;
using test::RawServer;
using test::SelfSigned;
using test::TlsServer;

/// The reply, or the description of the error that the sending raised.
std::string outcome(const std::string& url, const std::string& trustedCertificates = "") {
  CurlHttp http({{}, trustedCertificates});
  auto request = http.createRequest();
  request->open("POST", url);
  request->setHeader("Cookie", "SID=1");
  try {
    request->send("<a/>");
    return request->responseText();
  } catch (const RunTimeError& error) {
    return error.description();
  }
}

/// Greets whoever comes, before a word is said.
class GreetingServer final : public RawServer {
 public:
  GreetingServer() : RawServer("") {}
  ~GreetingServer() override { stop(); }

 private:
  void talk(int connection) override {
    const std::string greeting = "220 mail ready\r\n";
    EXPECT_EQ(write(connection, greeting.data(), greeting.size()),
              static_cast<ssize_t>(greeting.size()));
  }
};

class Tls : public testing::Test {
 protected:
  ~Tls() override { std::filesystem::remove(trusted); }

  const std::string trusted =
      std::filesystem::temp_directory_path() / ("awizo-test-" + std::to_string(getpid()) + ".pem");
  const std::string badCertificate = errors::badCertificate().description();
};

TEST_F(Tls, ACertificateThatNobodyVouchesForIsRefusedBeforeAnythingIsSent) {
  const TlsServer server(SelfSigned("IP:127.0.0.1"), okReply("OK"));
  EXPECT_EQ(outcome(server.secureUrl()), badCertificate);
  EXPECT_TRUE(server.requests().empty());
}

TEST_F(Tls, ATrustedCertificateIsTaken) {
  const SelfSigned identity("IP:127.0.0.1");
  identity.save(trusted);
  const TlsServer server(identity, okReply("OK"));
  EXPECT_EQ(outcome(server.secureUrl(), trusted), "OK");
}

TEST_F(Tls, ACertificateForAnotherHostIsRefused) {
  const SelfSigned identity("DNS:elsewhere.example");
  identity.save(trusted);
  const TlsServer server(identity, okReply("OK"));
  EXPECT_EQ(outcome(server.secureUrl(), trusted), badCertificate);
}

TEST_F(Tls, AnExpiredCertificateIsRefused) {
  const SelfSigned identity("IP:127.0.0.1", -3600);
  identity.save(trusted);
  const TlsServer server(identity, okReply("OK"));
  EXPECT_EQ(outcome(server.secureUrl(), trusted), badCertificate);
}

TEST_F(Tls, AServerThatSpeaksNoTlsIsAFailedDownload) {
  const GreetingServer server;
  const std::string url = "https://127.0.0.1:" + std::to_string(server.port()) + "/";
  EXPECT_EQ(outcome(url), errors::downloadFailed().description());
}

}  // namespace
}  // namespace awizo
