#include <unistd.h>

#include <algorithm>

#include "adapters/curl/curl_http.h"
#include "platform/run_time_error.h"
#include "support/servers/raw_server.h"

namespace awizo {
namespace {

using test::okReply;
using test::RawServer;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

template <typename Work>
RunTimeError errorOf(Work work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    return error;
  }
  return {0, "none"};
}

MATCHER_P(IsError, error, error.description()) {
  *result_listener << arg.description();
  return arg.number() == error.number() && arg.description() == error.description();
}

std::unique_ptr<HttpRequest> posted(Http& http, const std::string& url,
                                    const std::string& body = "<a/>",
                                    const std::string& cookie = "id=1") {
  auto request = http.createRequest();
  request->open("POST", url);
  request->setHeader("Cookie", cookie);
  request->send(body);
  return request;
}

std::string replyTo(const std::string& wire) {
  const RawServer server(wire);
  CurlHttp http;
  return posted(http, server.url())->responseText();
}

RunTimeError sendErrorFor(const std::string& url) {
  CurlHttp http;
  auto request = http.createRequest();
  request->open("POST", url);
  const RunTimeError error = errorOf([&] { request->send("<a/>"); });
  EXPECT_THAT(errorOf([&] { request->responseText(); }), IsError(errors::replyNotAvailable()));
  return error;
}

RunTimeError sendErrorForReply(const std::string& wire) {
  const RawServer server(wire);
  return sendErrorFor(server.url());
}

std::vector<std::string> headLines(const std::string& request) {
  std::vector<std::string> lines;
  const std::string head = request.substr(0, request.find("\r\n\r\n"));
  for (std::size_t at = 0; at <= head.size();) {
    const std::size_t end = std::min(head.find("\r\n", at), head.size());
    lines.push_back(head.substr(at, end - at));
    at = end + 2;
  }
  return lines;
}

TEST(Sending, OnlyTheCookieIsSetByUs) {
  RawServer server(okReply("OK"));
  CurlHttp http;
  posted(http, server.url("/Partners.aspx?format=xml"), "<a>Ёж</a>", "id=1; name=я");
  ASSERT_EQ(server.requests().size(), 1U);
  EXPECT_THAT(headLines(server.requests()[0]),
              ElementsAre("POST /Partners.aspx?format=xml HTTP/1.1",
                          "Host: 127.0.0.1:" + std::to_string(server.port()),
                          "Cookie: id=1; name=я", "Content-Length: 11"));
  EXPECT_THAT(server.requests()[0], testing::EndsWith("\r\n\r\n<a>Ёж</a>"));
}

TEST(Sending, NameAndPasswordInTheAddressAreNotSent) {
  RawServer server(okReply("OK"));
  CurlHttp http;
  const std::string host = "127.0.0.1:" + std::to_string(server.port());
  for (const char* who : {"us:pw@", "us@", ":pw@", "@"}) {
    posted(http, "http://" + (who + host) + "/x");
    EXPECT_THAT(
        headLines(server.requests().back()),
        ElementsAre("POST /x HTTP/1.1", "Host: " + host, "Cookie: id=1", "Content-Length: 4"))
        << who;
  }
}

TEST(Sending, AnEmptyCookieIsAnEmptyHeader) {
  RawServer server(okReply("OK"));
  CurlHttp http;
  for (const char* cookie : {"", " ", "\t", " \t  "}) {
    posted(http, server.url(), "<a/>", cookie);
    EXPECT_THAT(headLines(server.requests().back()), testing::Contains("Cookie:")) << cookie;
  }
}

TEST(Sending, ALargeBodyGoesOutWholeWithoutAskingFirst) {
  RawServer server(okReply("OK"));
  CurlHttp http;
  const std::string body(5'000'000, 'x');
  EXPECT_EQ(posted(http, server.url(), body)->responseText(), "OK");
  EXPECT_THAT(headLines(server.requests()[0]), Not(testing::Contains(HasSubstr("Expect"))));
  EXPECT_TRUE(server.requests()[0].ends_with("\r\n\r\n" + body));
}

TEST(Sending, AnEmptyBodyIsSentToo) {
  RawServer server(okReply("OK"));
  CurlHttp http;
  EXPECT_EQ(posted(http, server.url(), "")->responseText(), "OK");
  EXPECT_THAT(headLines(server.requests()[0]), testing::Contains("Content-Length: 0"));
}

TEST(Sending, WhatCantStandInAnAddressIsPutIntoPercentSigns) {
  RawServer server(okReply("OK"));
  CurlHttp http;
  posted(http, server.url("/my folder/я"));
  EXPECT_THAT(server.requests()[0], testing::StartsWith("POST /my%20folder/%d1%8f HTTP/1.1"));
}

TEST(Sending, ACookieCantSmuggleInAnotherHeader) {
  CurlHttp http;
  auto request = http.createRequest();
  request->open("POST", "http://127.0.0.1/");
  EXPECT_THAT(errorOf([&] { request->setHeader("Cookie", "a\r\nX: b"); }),
              IsError(errors::invalidProcedureCall()));
}

TEST(Sending, EachRequestIsOnItsOwn) {
  RawServer server(okReply("OK"));
  CurlHttp http;
  posted(http, server.url("/1"));
  posted(http, server.url("/2"));
  ASSERT_EQ(server.requests().size(), 2U);
  EXPECT_THAT(server.requests()[1], testing::StartsWith("POST /2 "));
}

TEST(Replies, AStatusIsNoError) {
  EXPECT_EQ(replyTo("HTTP/1.1 404 Not Found\r\nContent-Length: 4\r\n\r\nnone"), "none");
  EXPECT_EQ(replyTo("HTTP/1.1 500 Error\r\nContent-Length: 4\r\n\r\noops"), "oops");
  EXPECT_EQ(replyTo("HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic\r\n"
                    "Content-Length: 2\r\n\r\nno"),
            "no");
}

TEST(Replies, ARedirectIsNotFollowed) {
  RawServer elsewhere(okReply("elsewhere"));
  EXPECT_EQ(replyTo("HTTP/1.1 302 Found\r\nLocation: " + elsewhere.url() +
                    "\r\nContent-Length: 4\r\n\r\nhere"),
            "here");
  EXPECT_TRUE(elsewhere.requests().empty());
}

TEST(Replies, AnEmptyReplyIsTheEmptyText) {
  EXPECT_EQ(replyTo("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n"), "");
}

TEST(Replies, WithoutALengthTheEndOfTheConnectionIsTheEnd) {
  EXPECT_EQ(replyTo("HTTP/1.0 200 OK\r\n\r\ntext"), "text");
}

TEST(Replies, ALargeOneComesWhole) {
  std::string body = "<a>";
  while (body.size() < 17'000'000) body += "Молоко пастеризованное 3,2%\r\n";
  EXPECT_TRUE(replyTo(okReply(body)) == body);
}

TEST(Replies, TheTextIsHandedOverOnce) {
  const RawServer server(okReply("OK"));
  CurlHttp http;
  auto request = posted(http, server.url());
  EXPECT_EQ(request->responseText(), "OK");
  EXPECT_THAT(errorOf([&] { request->responseText(); }), IsError(errors::replyNotAvailable()));
}

TEST(Replies, ReadTooEarlyIsNotYetAvailable) {
  CurlHttp http;
  auto request = http.createRequest();
  EXPECT_THAT(errorOf([&] { request->responseText(); }), IsError(errors::replyNotAvailable()));
  request->open("POST", "http://127.0.0.1/");
  EXPECT_THAT(errorOf([&] { request->responseText(); }), IsError(errors::replyNotAvailable()));
}

TEST(Failures, AHostThatRefusesIsNotFound) {
  EXPECT_THAT(sendErrorFor("http://127.0.0.1:" + std::to_string(test::deadPort()) + "/"),
              IsError(errors::hostNotFound()));
}

TEST(Failures, AHostWithoutAnAddressIsNotFound) {
  EXPECT_THAT(sendErrorFor("http://no-such-host.invalid/"), IsError(errors::hostNotFound()));
}

TEST(Failures, AMalformedAddressIsNotFound) {
  for (const char* url : {"", "nonsense", "http://", "http:///path", "/Upload.aspx", "http://a:b/",
                          "http://[::1/", "http://127.0.0.1:99999/"}) {
    EXPECT_THAT(sendErrorFor(url), IsError(errors::hostNotFound())) << url;
  }
}

TEST(Failures, OnlyHttpIsSpoken) {
  for (const char* url : {"file:///etc/hostname", "ftp://127.0.0.1/", "javascript:alert(1)"}) {
    EXPECT_THAT(sendErrorFor(url), IsError(errors::hostNotFound())) << url;
  }
}

TEST(Failures, AConnectionDroppedWithoutAWordIsAFailedDownload) {
  EXPECT_THAT(sendErrorForReply(""), IsError(errors::downloadFailed()));
}

TEST(Failures, AReplyCutOffIsAFailedDownload) {
  EXPECT_THAT(sendErrorForReply("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<a>"),
              IsError(errors::downloadFailed()));
  EXPECT_THAT(sendErrorForReply("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n10\r\n<a>"),
              IsError(errors::downloadFailed()));
  EXPECT_THAT(sendErrorForReply("HTTP/1.1 200 OK\r\nContent-Le"),
              IsError(errors::downloadFailed()));
}

TEST(Failures, WhatIsNoHttpIsAFailedDownload) {
  EXPECT_THAT(sendErrorForReply("220 mail ready\r\n"), IsError(errors::downloadFailed()));
  EXPECT_THAT(sendErrorForReply(std::string(100'000, '\x01')), IsError(errors::downloadFailed()));
}

TEST(Failures, AnEndlessHeadIsAFailedDownload) {
  std::string head = "HTTP/1.1 200 OK\r\n";
  while (head.size() < 2'000'000) head += "X-Filler: " + std::string(1000, 'x') + "\r\n";
  EXPECT_THAT(sendErrorForReply(head), IsError(errors::downloadFailed()));
}

/// Takes a request and never answers.
class SilentServer : public RawServer {
 public:
  SilentServer() : RawServer("") {}
  ~SilentServer() override { stop(); }

 private:
  void talk(int connection) override {
    char byte = 0;
    while (read(connection, &byte, 1) > 0) continue;
  }
};

TEST(KeepingGoing, TheHostIsAskedWhileItWaitsAndCanEndTheExchange) {
  const SilentServer server;
  int asked = 0;
  CurlHttp http({[&] { return ++asked < 5; }, ""});
  EXPECT_THAT(errorOf([&] { posted(http, server.url()); }), IsError(errors::downloadFailed()));
  EXPECT_EQ(asked, 5);
}

TEST(KeepingGoing, AHostThatAgreesGetsItsReply) {
  const RawServer server(okReply("OK"));
  bool asked = false;
  CurlHttp http({[&] { return asked = true; }, ""});
  EXPECT_EQ(posted(http, server.url())->responseText(), "OK");
  EXPECT_TRUE(asked);
}

std::string decoded(const std::string& body, const std::string& contentType) {
  return replyTo(okReply(body, contentType));
}

TEST(Decoding, IsUtf8UnlessToldOtherwise) {
  EXPECT_EQ(decoded("<a>Ёж</a>", "text/xml"), "<a>Ёж</a>");
  EXPECT_EQ(decoded("<a>Ёж</a>", "text/xml; charset=utf-8"), "<a>Ёж</a>");
  EXPECT_EQ(decoded("<a>Ёж</a>", "text/xml; charset=nonsense"), "<a>Ёж</a>");
}

TEST(Decoding, BadBytesOfUtf8AreReplaced) {
  EXPECT_EQ(decoded("a\xFF\xD1z", "text/xml"), "a\uFFFD\uFFFDz");
}

TEST(Decoding, FollowsTheCharset) {
  EXPECT_EQ(decoded("\xA8\xE6 \xB9", "text/xml; charset=windows-1251"), "Ёж №");
  EXPECT_EQ(decoded("\xA8\xE6", "text/xml; Charset=\"Windows-1251\" ; x=y"), "Ёж");
  EXPECT_EQ(decoded("\xEB", "text/html;charset=ISO-8859-1"), "ë");
}

TEST(Decoding, AByteOrderMarkIsStrongerThanTheCharset) {
  EXPECT_EQ(decoded("\xEF\xBB\xBF<a>Ё</a>", "text/xml; charset=windows-1251"), "<a>Ё</a>");
  EXPECT_EQ(decoded(std::string("\xFF\xFE<\0\x01\x04", 6), "text/xml; charset=utf-8"), "<Ё");
  EXPECT_EQ(decoded(std::string("\xFE\xFF\0<\x04\x01", 6), "text/xml"), "<Ё");
}

}  // namespace
}  // namespace awizo
