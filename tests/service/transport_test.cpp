#include "service/transport.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class Transport : public ::testing::Test, public TestEditor {
 protected:
  const std::string url = "http://firm.example/app/Partners.aspx?format=xml";
  std::unique_ptr<XmlDocument> request = document("<ask><what>Ж &amp; b</what></ask>");

  std::unique_ptr<XmlDocument> send() { return SendXMLDOMRequest(editor, url, *request); }
  static std::string textOf(const std::unique_ptr<XmlDocument>& reply) {
    return reply->root() ? reply->root().xml() : "";
  }
  void openLog(std::int16_t level) {
    files.putFolder("c:\\VIRD");
    session.log.OpenDebugLog("c:\\VIRD\\Awizo.log", level);
  }
  std::string logText() { return locale.fromSingleByte(files.bytes("c:\\VIRD\\Awizo.log")); }
};

TEST_F(Transport, PostsTheDocumentUnderTheCookieAndParsesTheReply) {
  session.SessionCookie = "SID=abc; x=1";
  http.reply("<answer><status>OK</status></answer>");

  EXPECT_EQ(textOf(send()), "<answer><status>OK</status></answer>");

  ASSERT_EQ(http.sent.size(), 1U);
  EXPECT_EQ(http.sent[0].method, "POST");
  EXPECT_EQ(http.sent[0].url, url);
  EXPECT_EQ(http.sent[0].body, request->node().xml());
  EXPECT_THAT(http.sent[0].body, ::testing::HasSubstr("<ask><what>Ж &amp; b</what></ask>"));
  EXPECT_THAT(http.sent[0].headers, ElementsAre(Pair("Cookie", "SID=abc; x=1")));
  EXPECT_THAT(face.texts(), IsEmpty());
}

TEST_F(Transport, SendsAnEmptyCookieAsAnEmptyHeader) {
  http.reply("<a/>");
  send();
  EXPECT_THAT(http.sent.at(0).headers, ElementsAre(Pair("Cookie", "")));
}

TEST_F(Transport, SendsAnEmptyRequestDocumentAsAnEmptyBody) {
  request = xml.createDocument();
  http.reply("<a/>");
  EXPECT_EQ(textOf(send()), "<a/>");
  EXPECT_EQ(http.sent.at(0).body, "");
}

TEST_F(Transport, AnswersAnEmptyDocumentWithoutAWordForAReplyThatIsNoXml) {
  for (const char* reply :
       {"<html><body>500 Internal Server Error", "", "garbage", "<a>", "\xFF"}) {
    http.reply(reply);
    const auto answer = send();
    ASSERT_NE(answer, nullptr);
    EXPECT_FALSE(answer->root()) << reply;
  }
  EXPECT_THAT(face.texts(), IsEmpty());
}

TEST_F(Transport, IgnoresTheEncodingThatAReplyDeclares) {
  http.reply("<?xml version=\"1.0\" encoding=\"windows-1251\"?><a>Ж</a>");
  EXPECT_EQ(send()->root().text(), "Ж");
}

TEST_F(Transport, TellsOfAFailedSendTwiceAndAnswersAnEmptyDocument) {
  http.fail(errors::hostNotFound());
  const auto answer = send();
  ASSERT_NE(answer, nullptr);
  EXPECT_FALSE(answer->root());
  EXPECT_THAT(describe(face.boxes()),
              ElementsAre("Bі№d w SendXMLDOMRequest()!|critical|OK|"
                          "The system cannot locate the resource specified.",
                          "Bі№d w SendXMLDOMRequest()!|critical|OK|"
                          "The data necessary to complete this operation is not yet available."));
}

TEST_F(Transport, TellsOfADroppedReplyAndOfABadCertificate) {
  http.fail(errors::downloadFailed());
  send();
  http.fail(errors::badCertificate());
  send();
  const std::string early = "The data necessary to complete this operation is not yet available.";
  EXPECT_THAT(
      face.texts(),
      ElementsAre("The download of the specified resource has failed.", early,
                  "Security certificate required to access this resource is invalid.", early));
}

TEST_F(Transport, GoesOnAfterAnAddressThatCantBeOpened) {
  http.failOpening(errors::hostNotFound());
  http.reply("<a/>");
  EXPECT_EQ(textOf(send()), "<a/>");
  EXPECT_EQ(face.boxes().size(), 1U);
}

TEST_F(Transport, TellsOfEveryStepWhereNoRequestCanBeMade) {
  http.failCreating(errors::outOfMemory());
  const auto answer = send();
  ASSERT_NE(answer, nullptr);
  const std::string none = "Object variable or With block variable not set";
  EXPECT_THAT(face.texts(), ElementsAre("Out of memory", none, none, none, none));
}

TEST_F(Transport, LogsRequestReplyAndParsedReplyAtLevel4) {
  openLog(4);
  session.SessionCookie = "SID=abc";
  http.reply("<answer>Ж</answer>");
  send();
  const std::string now = "21.11.2026 10:15 ";
  EXPECT_EQ(logText(), now + "Start logowania...\r\n" +                //
                           now + "Request: " + url + " SID=abc\r\n" +  //
                           request->node().xml() + "\r\n" +            //
                           now + "Response: <answer>Ж</answer>\r\n" +  //
                           now + "ResponseParsed: \r\n" + "<answer>Ж</answer>\r\n");
}

TEST_F(Transport, LogsErrorsAloneAtLevel2) {
  openLog(2);
  session.SessionCookie = "SID=secret";
  http.fail(errors::hostNotFound());
  send();
  // The single-byte encoding of the log knows all letters of the damaged word.
  const std::string line = "21.11.2026 10:15 Bі№d w SendXMLDOMRequest():";
  EXPECT_EQ(logText(),
            "21.11.2026 10:15 Start logowania...\r\n" + line +
                "The system cannot locate the resource specified.\r\n" + line +
                "The data necessary to complete this operation is not yet available.\r\n");
}

TEST_F(Transport, LogsNothingAtLevel1) {
  openLog(1);
  http.fail(errors::hostNotFound());
  send();
  EXPECT_EQ(logText(), "21.11.2026 10:15 Start logowania...\r\n");
}

TEST_F(Transport, LogsTheErrorBeforeItsBoxOpens) {
  openLog(2);
  http.fail(errors::hostNotFound());
  std::string seen;
  face.whileBoxIsOpen([&](const MessageBox&) { seen = logText(); });
  send();
  EXPECT_THAT(seen, ::testing::HasSubstr("The system cannot locate"));
}

TEST_F(Transport, LogsTheWholeOfAFailedExchangeAtLevel4) {
  openLog(4);
  http.fail(errors::hostNotFound());
  send();
  EXPECT_THAT(logText(),
              ::testing::HasSubstr("Response: \r\n21.11.2026 10:15 ResponseParsed: \r\n"));
}

/// Runs out of memory for documents once the test says so.
struct ScarceXml : Xml {
  Libxml2 plenty;
  bool isOut = false;
  std::unique_ptr<XmlDocument> createDocument() const override {
    if (isOut) throw errors::outOfMemory();
    return plenty.createDocument();
  }
};

TEST_F(Transport, HasNothingMoreToTellOfAReplyThatNoDocumentCouldBeMadeFor) {
  ScarceXml scarce;
  const Platform surroundings = platformWith({.xml = &scarce});
  SessionState record(surroundings);
  Editor other(surroundings, screen, record, form);
  files.putFolder("c:\\VIRD");
  record.log.OpenDebugLog("c:\\VIRD\\Awizo.log", 4);
  http.reply("<a/>");
  scarce.isOut = true;
  EXPECT_EQ(SendXMLDOMRequest(other, url, *request), nullptr);
  EXPECT_THAT(face.texts(), ElementsAre("Out of memory"));
  EXPECT_THAT(logText(),
              ::testing::EndsWith("Out of memory\r\n21.11.2026 10:15 ResponseParsed: \r\n"));
}

class NodeValue : public ::testing::Test, public TestSurroundings {
 protected:
  std::unique_ptr<XmlDocument> data =
      document("<a><b>first</b><b>second</b><zero>0</zero><empty/><c>  in <d>it</d> </c></a>");
};

TEST_F(NodeValue, IsTheTextOfTheFirstNodeThatThePathSelects) {
  EXPECT_EQ(GetNodeValue(data->node(), "/a/b", true), "first");
  EXPECT_EQ(GetNodeValue(data->root(), "b", false), "first");
  EXPECT_EQ(GetNodeValue(data->root(), "zero", true), "0");
}

TEST_F(NodeValue, OfAMissingNodeIsTheEmptyTextOrTheMarker) {
  EXPECT_EQ(GetNodeValue(data->node(), "/a/x", true), "");
  EXPECT_EQ(GetNodeValue(data->node(), "/a/x", false), "-1");
}

TEST_F(NodeValue, OfAnEmptyNodeIsTheEmptyTextEitherWay) {
  EXPECT_EQ(GetNodeValue(data->node(), "/a/empty", true), "");
  EXPECT_EQ(GetNodeValue(data->node(), "/a/empty", false), "");
}

TEST_F(NodeValue, OfAnInvalidPathIsThatOfAMissingNode) {
  EXPECT_EQ(GetNodeValue(data->node(), "/a/b[c=]", true), "");
  EXPECT_EQ(GetNodeValue(data->node(), "/a/b[c=]", false), "-1");
  EXPECT_EQ(GetNodeValue(data->node(), "", false), "-1");
}

TEST_F(NodeValue, OfNoNodeAndOfAnEmptyDocumentIsThatOfAMissingNode) {
  EXPECT_EQ(GetNodeValue(XmlNode(), "a", true), "");
  EXPECT_EQ(GetNodeValue(XmlNode(), "a", false), "-1");
  const auto empty = xml.createDocument();
  EXPECT_EQ(GetNodeValue(empty->node(), "/a", false), "-1");
}

}  // namespace
}  // namespace awizo::test
