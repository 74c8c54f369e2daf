#include "foundation/debug_log.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

constexpr std::string_view path = "c:\\offline\\FirmaAwizo.log";

struct LogTest : testing::Test {
  LogTest() { there.files.putFolder("c:\\offline"); }

  const std::string& text() const { return there.files.bytes(path); }

  TestSurroundings there;
  DebugLog log{there.clock, there.locale, there.files};
};

TEST_F(LogTest, BeginsWithTheStartLineInShortDateAndTime) {
  log.OpenDebugLog(path, 4);
  EXPECT_EQ(text(), "21.11.2026 10:15 Start logowania...\r\n");
}

TEST_F(LogTest, HasItsFilesFromTheFirstOpeningOn) {
  EXPECT_EQ(log.LogFileSystem, nullptr);
  log.OpenDebugLog("c:\\nowhere\\Awizo.log", 4);
  EXPECT_EQ(log.LogFileSystem, &there.files);
}

TEST_F(LogTest, FollowsTheLocalesShortForms) {
  const TestSurroundings american("en_US");
  DebugLog englishLog(american.clock, american.locale, there.files);
  englishLog.OpenDebugLog(path, 4);
  englishLog.WriteDebugLine("Form_Load start");
  EXPECT_EQ(text(),
            "11/21/2026 10:15 AM Start logowania...\r\n"
            "11/21/2026 10:15 AM Form_Load start\r\n");
}

TEST_F(LogTest, EachLineHasItsOwnTime) {
  log.OpenDebugLog(path, 4);
  there.clock.moment.time = {10, 16, 30};
  log.WriteDebugLine("cboxEANProd_Change koniec", 4);
  EXPECT_EQ(text(),
            "21.11.2026 10:15 Start logowania...\r\n"
            "21.11.2026 10:16 cboxEANProd_Change koniec\r\n");
}

TEST_F(LogTest, WritesWhatIsNotAboveItsLevel) {
  log.OpenDebugLog(path, 2);
  EXPECT_TRUE(log.writes(2));
  EXPECT_FALSE(log.writes(4));
  log.WriteDebugLine("trace", 4);
  log.WriteDebugXml("trace", there.document("<a/>")->node(), 4);
  log.WriteDebugLine("error", 2);
  EXPECT_EQ(text(),
            "21.11.2026 10:15 Start logowania...\r\n"
            "21.11.2026 10:15 error\r\n");
}

TEST_F(LogTest, AtLevelOneHoldsItsStartLineOnly) {
  log.OpenDebugLog(path, 1);
  log.WriteDebugLine("error", 2);
  log.WriteDebugLine("trace", 4);
  EXPECT_EQ(text(), "21.11.2026 10:15 Start logowania...\r\n");
}

TEST_F(LogTest, ALineWithoutAStatedLevelIsTrace) {
  log.OpenDebugLog(path, 3);
  log.WriteDebugLine("trace");
  log.WriteDebugXml("trace", there.document("<a/>")->node());
  EXPECT_EQ(text(), "21.11.2026 10:15 Start logowania...\r\n");
}

TEST_F(LogTest, XmlStandsOnTheNextLine) {
  const auto document = there.document("<order><line>1</line></order>");
  log.OpenDebugLog(path, 4);
  log.WriteDebugXml("Response", document->root(), 4);
  EXPECT_EQ(text(),
            "21.11.2026 10:15 Start logowania...\r\n"
            "21.11.2026 10:15 Response\r\n"
            "<order><line>1</line></order>\r\n");
}

TEST_F(LogTest, ANodeThatIsNoneLeavesTheLineBeforeIt) {
  log.OpenDebugLog(path, 4);
  log.WriteDebugXml("Response", XmlNode(), 4);
  EXPECT_EQ(text(),
            "21.11.2026 10:15 Start logowania...\r\n"
            "21.11.2026 10:15 Response\r\n");
}

TEST_F(LogTest, IsWrittenInTheSingleByteEncoding) {
  log.OpenDebugLog(path, 4);
  log.WriteDebugLine("Ёж 中");
  log.WriteDebugXml("Да", there.document("<a>Ж</a>")->root());
  EXPECT_EQ(text(),
            "21.11.2026 10:15 Start logowania...\r\n"
            "21.11.2026 10:15 \xA8\xE6 ?\r\n"
            "21.11.2026 10:15 \xC4\xE0\r\n"
            "<a>\xC6</a>\r\n");
}

TEST_F(LogTest, ATraceJoinsTextsAndNumbersInOneLine) {
  log.OpenDebugLog(path, 4);
  const std::string serial = "Паллета";
  log.trace("delSerials[", std::size_t{2}, "] = ", serial, std::int16_t{-1}, std::string_view("."));
  log.trace("P1");
  EXPECT_EQ(there.locale.fromSingleByte(text()),
            "21.11.2026 10:15 Start logowania...\r\n"
            "21.11.2026 10:15 delSerials[2] = Паллета-1.\r\n"
            "21.11.2026 10:15 P1\r\n");
}

TEST_F(LogTest, ATraceIsWrittenFromLevelFourOn) {
  log.OpenDebugLog(path, 3);
  log.trace("trace ", 1);
  EXPECT_EQ(text(), "21.11.2026 10:15 Start logowania...\r\n");
}

TEST_F(LogTest, ASecondRunOverwritesTheFile) {
  log.OpenDebugLog(path, 4);
  log.WriteDebugLine("first run");
  DebugLog second(there.clock, there.locale, there.files);
  second.OpenDebugLog(path, 4);
  EXPECT_EQ(text(), "21.11.2026 10:15 Start logowania...\r\n");
}

TEST_F(LogTest, ThatWasNeverOpenedWritesNothing) {
  EXPECT_FALSE(log.writes(0));
  log.WriteDebugLine("lost", 0);
  log.WriteDebugXml("lost", there.document("<a/>")->node(), 0);
  EXPECT_EQ(log.LogStream, nullptr);
  EXPECT_FALSE(there.files.has(path));
}

TEST_F(LogTest, InAFolderThatIsMissingStaysClosedSilently) {
  log.OpenDebugLog("c:\\nowhere\\Awizo.log", 4);
  log.WriteDebugLine("lost", 2);
  EXPECT_EQ(log.LogStream, nullptr);
  EXPECT_EQ(log.LogLevel, 4);
  EXPECT_FALSE(there.files.has("c:\\nowhere\\Awizo.log"));
  EXPECT_TRUE(there.face.boxes().empty());
}

TEST_F(LogTest, ALineThatCantBeWrittenIsLostSilently) {
  log.OpenDebugLog(path, 4);
  there.files.failLines(errors::diskFull());
  EXPECT_NO_THROW(log.WriteDebugLine("lost"));
  EXPECT_NO_THROW(log.WriteDebugXml("lost", there.document("<a/>")->node()));
  EXPECT_EQ(text(), "21.11.2026 10:15 Start logowania...\r\n");
  EXPECT_TRUE(there.face.boxes().empty());
}

}  // namespace
}  // namespace awizo::test
