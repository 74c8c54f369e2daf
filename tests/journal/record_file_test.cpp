#include "journal/record_file.h"

#include <gtest/gtest.h>

#include <limits>

#include "journal/loading.h"
#include "support/error_of.h"

namespace awizo::journal {
namespace {

using test::errorNumberOf;

constexpr int typeMismatch = 13;

std::string fileOf(const std::vector<Record>& records) {
  std::string bytes = fileBeginning();
  for (const Record& record : records) bytes += framed(record);
  return bytes;
}

const std::vector<Record> session{
    headerRecord({{"locale", "ru_RU"}, {"version", "1.0.0"}}),
    {RecordKind::outcome, {6, 0}, {"Текст"}},
    {RecordKind::ready, {0}, {}},
    {RecordKind::act, {6, 0, 0, 0, 0}, {"AwizoWysylki", "txtNrAwiza", "1"}},
    {RecordKind::outcome,
     {std::numeric_limits<std::int64_t>::min(), -1},
     {"", std::string(300, 'x')}},
    {RecordKind::ready, {0}, {}}};

TEST(RecordFile, GivesBackWhatWasWritten) {
  const WholeRecords whole = wholeRecords(fileOf(session));
  EXPECT_EQ(whole.records, session);
  EXPECT_EQ(whole.length, fileOf(session).size());
}

TEST(RecordFile, CutAnywhereGivesTheRecordsThatAreWhole) {
  const std::string bytes = fileOf(session);
  std::size_t whole = 0;
  std::size_t end = fileBeginning().size();
  for (std::size_t length = end; length <= bytes.size(); ++length) {
    if (whole < session.size() && length == end + framed(session[whole]).size()) {
      end = length;
      ++whole;
    }
    const WholeRecords read = wholeRecords(bytes.substr(0, length));
    ASSERT_EQ(read.records.size(), whole) << length;
    ASSERT_EQ(read.length, end) << length;
  }
  EXPECT_EQ(whole, session.size());
}

TEST(RecordFile, DamagedAnywhereEndsBeforeTheDamage) {
  const std::string bytes = fileOf(session);
  for (std::size_t at = fileBeginning().size(); at < bytes.size(); ++at) {
    std::string damaged = bytes;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
    const WholeRecords read = wholeRecords(damaged);
    ASSERT_LT(read.records.size(), session.size()) << at;
    ASSERT_LE(read.length, at);
  }
}

TEST(RecordFile, OfAnotherFormatIsAnError) {
  EXPECT_EQ(errorNumberOf([] { wholeRecords(""); }), typeMismatch);
  EXPECT_EQ(errorNumberOf([] { wholeRecords("<a/>"); }), typeMismatch);
  EXPECT_EQ(errorNumberOf([] { wholeRecords("awizo record 3\n"); }), typeMismatch);
}

TEST(RecordFile, OfSoundFramesWithoutSenseIsAnError) {
  for (const std::string& bytes :
       {std::string(), std::string("\x01"), std::string("\x63\0\0", 3), std::string("\x01\xff", 2),
        std::string("\x01\x01\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80\x01\0", 14),
        std::string("\x01\0\x01\x09"
                    "ab",
                    6),
        std::string("\x01\0\0"
                    "more",
                    7)}) {
    EXPECT_EQ(errorNumberOf([&] { decoded(bytes); }), typeMismatch)
        << testing::PrintToString(bytes);
  }
}

TEST(Loading, GivesHeaderAndDeeds) {
  const RecordedSession loaded = recordedSession(fileOf(session));
  EXPECT_EQ(loaded.header.at("locale"), "ru_RU");
  EXPECT_EQ(loaded.records.size(), session.size() - 1);
  EXPECT_EQ(loaded.deeds, 1U);
  EXPECT_FALSE(loaded.requestUnanswered);
}

TEST(Loading, OfAFileWithoutAHeaderIsAnError) {
  EXPECT_EQ(errorNumberOf([] { recordedSession(fileBeginning()); }), typeMismatch);
  EXPECT_EQ(errorNumberOf([] {
              recordedSession(fileOf({{RecordKind::ready, {0}, {}}}));
            }),
            typeMismatch);
}

TEST(Loading, LeavesOutWhatWasNotFinished) {
  std::vector<Record> records = session;
  records.push_back({RecordKind::act, {3, 0, 0, 0, 0}, {"AwizoWysylki", "btnPrzeslij", ""}});
  records.push_back({RecordKind::outcome, {9, 0}, {}});
  EXPECT_EQ(recordedSession(fileOf(records)).records.size(), session.size() - 1);
  EXPECT_FALSE(recordedSession(fileOf(records)).requestUnanswered);
  records.push_back({RecordKind::request, {1}, {}});
  EXPECT_TRUE(recordedSession(fileOf(records)).requestUnanswered);
  EXPECT_EQ(recordedSession(fileOf(records)).deeds, 1U);
}

TEST(Loading, LeavesOutActsThatWereRefusedWithAllThatTheyAsked) {
  std::vector<Record> records = session;
  records.push_back({RecordKind::act, {9, 0, 0, 0, 0}, {"DlgWczytajZapisz", "DirList", "c:\\x"}});
  records.push_back({RecordKind::outcome, {4, 0, 0}, {}});
  records.push_back({RecordKind::undone, {}, {}});
  records.push_back({RecordKind::ready, {0}, {}});
  const RecordedSession loaded = recordedSession(fileOf(records));
  EXPECT_EQ(loaded.records.size(), session.size());
  EXPECT_EQ(loaded.deeds, 1U);
}

TEST(Loading, OfARefusalOfNothingIsAnError) {
  EXPECT_EQ(errorNumberOf([] {
              recordedSession(fileOf({session.front(), {RecordKind::undone, {}, {}}}));
            }),
            typeMismatch);
}

TEST(Loading, StopsBeforeTheDeedThatIsNotWanted) {
  EXPECT_EQ(recordedSession(fileOf(session), 0).records.size(), 2U);
  EXPECT_EQ(recordedSession(fileOf(session), 1).records.size(), session.size() - 1);
}

}  // namespace
}  // namespace awizo::journal
