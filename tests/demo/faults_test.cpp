#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>

#include "demo/running_service.h"

namespace awizo::demo {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

struct ExchangeCall {
  std::string name;
  std::string path;
  std::string request;
};

/// One call of each exchange.
std::vector<ExchangeCall> calls() {
  return {{"partner-info", partnerInfoPath, partnerInfoRequest},
          {"catalogue", cataloguePath, catalogueRequest},
          {"places", placesPath, placesRequest},
          {"order", orderPath, orderRequest},
          {"upload", uploadPath, "<a/>"}};
}

class FaultAtEachExchange : public testing::TestWithParam<ExchangeCall> {
 protected:
  std::string wireReply() const { return service.wireReply(GetParam().path, GetParam().request); }
  void setFault(const std::string& kind) const {
    ASSERT_EQ(service.post("/_faults", GetParam().name + "=" + kind).status, 200);
  }

  RunningService service;
};

std::string bodyOf(const std::string& wireReply) {
  return wireReply.substr(wireReply.find("\r\n\r\n") + 4);
}

std::size_t announcedLength(const std::string& wireReply) {
  const std::string header = "Content-Length: ";
  return std::stoul(wireReply.substr(wireReply.find(header) + header.size()));
}

TEST_P(FaultAtEachExchange, DropClosesTheConnectionWithoutAByte) {
  setFault("drop");
  EXPECT_EQ(wireReply(), "");
}

TEST_P(FaultAtEachExchange, CutLeavesTheReplyHalf) {
  setFault("cut");
  const std::string reply = wireReply();
  EXPECT_THAT(reply, StartsWith("HTTP/1.1 200 "));
  EXPECT_EQ(bodyOf(reply).size(), announcedLength(reply) / 2);
  EXPECT_THAT(bodyOf(reply), StartsWith("<?xml"));
}

TEST_P(FaultAtEachExchange, GarbageIsNoXml) {
  setFault("garbage");
  const std::string reply = wireReply();
  EXPECT_THAT(reply, StartsWith("HTTP/1.1 200 "));
  EXPECT_EQ(bodyOf(reply).size(), announcedLength(reply));
  EXPECT_THAT(bodyOf(reply), StartsWith("<<\xFF\xFE not XML"));
}

TEST_P(FaultAtEachExchange, EmptyHasNoBytes) {
  setFault("empty");
  const std::string reply = wireReply();
  EXPECT_THAT(reply, StartsWith("HTTP/1.1 200 "));
  EXPECT_EQ(bodyOf(reply), "");
}

TEST_P(FaultAtEachExchange, Status500ComesWithAPageThatIsNoXml) {
  setFault("status500");
  const std::string reply = wireReply();
  EXPECT_THAT(reply, StartsWith("HTTP/1.1 500 "));
  EXPECT_THAT(bodyOf(reply), StartsWith("<html>"));
  EXPECT_THAT(bodyOf(reply), HasSubstr("<br></body>"));
}

TEST_P(FaultAtEachExchange, SlowHoldsTheReplyBackUntilItIsReleased) {
  setFault("slow");
  auto reply = std::async(std::launch::async, [this] { return wireReply(); });
  EXPECT_EQ(service.get("/_held").body, "1\n");
  EXPECT_EQ(reply.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
  service.post("/_release", "");
  EXPECT_THAT(reply.get(),
              EndsWith("-response>" + std::string(GetParam().name == "partner-info" ? "\n" : "")));
}

TEST_P(FaultAtEachExchange, SlowForATimeComesBeforeTheTimeIsOverWhenReleased) {
  setFault("slow:3600000");
  auto reply = std::async(std::launch::async, [this] { return wireReply(); });
  EXPECT_EQ(service.get("/_held").body, "1\n");
  service.post("/_release", "");
  EXPECT_THAT(reply.get(), StartsWith("HTTP/1.1 200 "));
}

TEST_P(FaultAtEachExchange, SlowForATimeComesByItself) {
  setFault("slow:1");
  EXPECT_THAT(wireReply(), StartsWith("HTTP/1.1 200 "));
}

TEST_P(FaultAtEachExchange, EndsWhenItIsTakenBack) {
  const std::string without = wireReply();
  service.post("/_reset", "");
  setFault("drop");
  EXPECT_EQ(wireReply(), "");
  setFault("none");
  const std::string again = wireReply();
  EXPECT_EQ(again, without);
}

TEST_P(FaultAtEachExchange, LeavesTheOthersAlone) {
  setFault("drop");
  for (const auto& call : calls()) {
    if (call.name == GetParam().name) continue;
    EXPECT_THAT(service.wireReply(call.path, call.request), StartsWith("HTTP/1.1 200 "))
        << call.name;
  }
}

INSTANTIATE_TEST_SUITE_P(, FaultAtEachExchange, testing::ValuesIn(calls()),
                         [](const auto& instance) {
                           std::string name = instance.param.name;
                           std::erase(name, '-');
                           return name;
                         });

TEST(FaultInsteadOfTheExchange, LeavesTheOrderWaiting) {
  for (const std::string kind : {"drop", "garbage", "empty", "status500"}) {
    const RunningService service({"--fault", "order=" + kind});
    EXPECT_THAT(service.post(orderPath, orderRequest).body, Not(HasSubstr("Document-Order")));
    service.clearFaults();
    EXPECT_THAT(service.post(orderPath, orderRequest).body, HasSubstr("Document-Order")) << kind;
  }
}

TEST(FaultInsteadOfTheExchange, StoresNothing) {
  for (const std::string kind : {"drop", "garbage", "empty", "status500"}) {
    const RunningService service({"--fault", "upload=" + kind});
    service.post(uploadPath, "<a/>");
    EXPECT_THAT(service.postedFiles(), IsEmpty()) << kind;
  }
}

TEST(FaultOfTheReply, ComesAfterTheExchangeTookPlace) {
  const RunningService service({"--fault", "order=cut", "--fault", "upload=cut"});
  service.post(orderPath, orderRequest);
  service.post(uploadPath, "<a/>");
  service.clearFaults();
  EXPECT_THAT(service.post(orderPath, orderRequest).body, Not(HasSubstr("Document-Order")));
  EXPECT_EQ(service.postedFiles().size(), 1U);
}

TEST(FaultCommand, TakesSeveralFaultsAtOnce) {
  const RunningService service;
  service.post("/_faults", "order=empty\nupload=status500\n");
  EXPECT_EQ(service.post(orderPath, orderRequest).body, "");
  EXPECT_EQ(service.post(uploadPath, "<a/>").status, 500);
}

TEST(FaultCommand, ThatIsNoFaultIsRefusedAndChangesNothing) {
  const RunningService service;
  EXPECT_EQ(service.post("/_faults", "order=empty\norder=late").status, 400);
  EXPECT_THAT(service.post(orderPath, orderRequest).body, HasSubstr("Document-Order"));
}

TEST(Command, NeedsNeitherABodyNorItsLength) {
  const RunningService service;
  for (const std::string command : {"/_reset", "/_release"}) {
    EXPECT_THAT(service.wireReply("POST " + command + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n"),
                StartsWith("HTTP/1.1 200 "))
        << command;
  }
}

TEST(Service, EndsAtOnceWhileARequestIsHeldBackAndAClientIsIdle) {
  auto service =
      std::make_unique<RunningService>(std::vector<std::string>{"--fault", "upload=slow"});
  auto reply = std::async(std::launch::async, [&, port = service->port()] {
    httplib::Client client("127.0.0.1", port);
    client.set_read_timeout(60);
    return static_cast<bool>(client.Post(uploadPath, "<a/>", "text/xml"));
  });
  ASSERT_EQ(service->get("/_held").body, "1\n");
  service.reset();
  reply.get();
}

TEST(FaultSettingText, NamesExchangeAndKind) {
  const auto setting = parseFaultSetting("partner-info=status500");
  ASSERT_TRUE(setting);
  EXPECT_EQ(setting->exchange, Exchange::partnerInfo);
  EXPECT_EQ(setting->fault.kind, FaultKind::status500);
  EXPECT_FALSE(setting->fault.delay);
}

TEST(FaultSettingText, MayGiveADelayInMilliseconds) {
  const auto setting = parseFaultSetting("order=slow:250");
  ASSERT_TRUE(setting);
  EXPECT_EQ(setting->fault.kind, FaultKind::slow);
  EXPECT_EQ(setting->fault.delay, std::chrono::milliseconds(250));
}

TEST(FaultSettingText, IsNothingElse) {
  for (const char* text : {"", "order", "order=", "=drop", "orders=drop", "order=Drop",
                           "order=slow:", "order=slow:-1", "order=slow:1s", "order=drop:1"}) {
    EXPECT_FALSE(parseFaultSetting(text)) << text;
  }
}

}  // namespace
}  // namespace awizo::demo
