#include "journal/unfinished_work.h"

#include <gtest/gtest.h>

#include <map>

#include "journal/loading.h"
#include "journal/record_file.h"
#include "journal/tape.h"
#include "journal/texts_beside.h"
#include "platform/run_time_error.h"
#include "support/control/test_control.h"
#include "support/error_of.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using journal::WorkSummary;

struct MemoryFolder : RecordFolder {
  struct Entry {
    std::string bytes;
    std::int64_t changed = 0;
    bool inUse = false;
    std::vector<TextBeside> texts = {};
    bool tried = false;
  };
  std::map<std::string, Entry, std::less<>> entries;
  std::map<std::string, std::string, std::less<>> texts;

  std::vector<FoundRecord> records() override {
    std::vector<FoundRecord> found;
    for (const auto& [name, entry] : entries) {
      found.push_back(
          {name, entry.bytes.size(), entry.changed, entry.inUse, entry.texts, entry.tried});
    }
    return found;
  }
  NewRecord create() override { return {}; }
  std::string read(std::string_view name) override { return entries.find(name)->second.bytes; }
  std::string readBeside(std::string_view, std::string_view text) override {
    const auto found = texts.find(text);
    if (found == texts.end()) throw errors::fileNotFound();
    return found->second;
  }
  void markTried(std::string_view name) override { entries.find(name)->second.tried = true; }
  void remove(std::string_view name) override { entries.erase(entries.find(name)); }

  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const auto& [name, entry] : entries) all.push_back(name);
    return all;
  }
};

const WorkSummary unsent{"ТН-6", "ЗК-1", "23:14", 25, 12, true};

std::string recordOf(const WorkSummary& summary, bool requestUnanswered = false) {
  using journal::Record;
  using journal::RecordKind;
  std::string bytes = journal::fileBeginning() + journal::framed(journal::headerRecord({})) +
                      journal::framed({RecordKind::summary, {}, journal::textsOf(summary)}) +
                      journal::framed({RecordKind::ready, {0}, {}});
  if (requestUnanswered) bytes += journal::framed({RecordKind::request, {1}, {}});
  return bytes;
}

WorkSummary sent() {
  WorkSummary summary = unsent;
  summary.isUnsent = false;
  return summary;
}

using Names = std::vector<std::string>;

TEST(UnfinishedWork, IsTheNewestThatNobodyWritesNow) {
  MemoryFolder folder;
  WorkSummary older = unsent;
  older.number = "ТН-5";
  folder.entries = {{"a", {recordOf(older), 10}},
                    {"b", {recordOf(unsent), 20}},
                    {"c", {recordOf(older), 30, true}}};
  const auto work = journal::unfinishedWork(folder);
  ASSERT_TRUE(work);
  EXPECT_EQ(work->record, "b");
  EXPECT_EQ(work->summary, unsent);
  EXPECT_FALSE(work->mayHaveArrived);
  EXPECT_EQ(folder.names(), (Names{"a", "b", "c"}));
}

TEST(UnfinishedWork, ThatWasTriedHidesNoOther) {
  MemoryFolder folder;
  folder.entries = {
      {"a", {recordOf(unsent), 10}}, {"b", {recordOf(unsent), 20}}, {"c", {recordOf(unsent), 30}}};
  folder.markTried("c");
  EXPECT_EQ(journal::unfinishedWork(folder)->record, "b");
  folder.markTried("b");
  EXPECT_EQ(journal::unfinishedWork(folder)->record, "a");
  EXPECT_FALSE(journal::unfinishedWork(folder)->tried);
  folder.markTried("a");
  EXPECT_EQ(journal::unfinishedWork(folder)->record, "c");
  EXPECT_TRUE(journal::unfinishedWork(folder)->tried);
  journal::keepWithin(folder, 2 * folder.entries["a"].bytes.size());
  EXPECT_EQ(folder.names(), (Names{"b", "c"})) << "the oldest goes, tried or not";
}

TEST(UnfinishedWork, MayHaveArrivedWhereTheAnswerNeverCame) {
  MemoryFolder folder;
  folder.entries = {{"a", {recordOf(unsent, true), 10}}};
  EXPECT_TRUE(journal::unfinishedWork(folder)->mayHaveArrived);
}

TEST(UnfinishedWork, IsAnOrderThatNoTableHoldsYet) {
  using journal::Record;
  using journal::RecordKind;
  constexpr auto reply = static_cast<std::int64_t>(journal::Source::reply);
  const std::string asked = recordOf({}) + journal::framed({RecordKind::request, {1}, {}});
  const std::string arrived =
      asked + journal::framed({RecordKind::outcome, {reply, 0}, {"<order/>"}});
  const std::string asksUser = arrived + journal::framed({RecordKind::ready, {1}, {}});
  for (const std::string& bytes : {arrived, asksUser}) {
    MemoryFolder folder;
    folder.entries = {{"a", {bytes, 10}}};
    const auto work = journal::unfinishedWork(folder);
    ASSERT_TRUE(work);
    EXPECT_TRUE(work->orderArrived);
    EXPECT_FALSE(work->mayHaveArrived);
  }
  const std::string refused =
      asked + journal::framed({RecordKind::outcome, {reply, 1, 53}, {"File not found"}});
  const std::string ended = arrived + journal::framed({RecordKind::ready, {0}, {}});
  for (const std::string& bytes : {refused, ended}) {
    MemoryFolder folder;
    folder.entries = {{"a", {bytes, 10}}};
    EXPECT_FALSE(journal::unfinishedWork(folder));
  }
}

TEST(UnfinishedWork, IsNoneWhereAllWasSentAndThenNothingIsKept) {
  MemoryFolder folder;
  folder.entries = {{"a", {recordOf(sent()), 10}}, {"b", {recordOf({}), 20}}};
  EXPECT_FALSE(journal::unfinishedWork(folder));
  EXPECT_EQ(folder.names(), Names{});
}

TEST(UnfinishedWork, IsLookedForPastWhatCantBeRead) {
  MemoryFolder folder;
  folder.entries = {{"a", {recordOf(unsent), 10}}, {"b", {"garbage", 20}}};
  EXPECT_EQ(journal::unfinishedWork(folder)->record, "a");
  EXPECT_EQ(folder.names(), (Names{"a", "b"}));
}

TEST(UnfinishedWork, IsNoneInAFolderThatNobodyCanUse) {
  struct ClosedFolder : MemoryFolder {
    std::vector<FoundRecord> records() override { throw errors::permissionDenied(); }
  } folder;
  folder.entries = {{"a", {recordOf(unsent), 10}}};
  EXPECT_FALSE(journal::unfinishedWork(folder));
}

TEST(KeepingWithin, RemovesTheOldestButNoneInUse) {
  MemoryFolder folder;
  const std::string bytes(100, 'x');
  folder.entries = {{"a", {bytes, 10, true}}, {"b", {bytes, 20}}, {"c", {bytes, 30}}};
  journal::keepWithin(folder, 300);
  EXPECT_EQ(folder.names(), (Names{"a", "b", "c"}));
  journal::keepWithin(folder, 299);
  EXPECT_EQ(folder.names(), (Names{"a", "c"}));
  journal::keepWithin(folder, 0);
  EXPECT_EQ(folder.names(), Names{"a"});
}

TEST(KeepingWithin, CountsWhatRecordsShareOnce) {
  MemoryFolder folder;
  const std::string bytes(100, 'x');
  const TextBeside shared{"a-1000", 1000};
  folder.entries = {{"a", {bytes, 10, false, {shared}}},
                    {"b", {bytes, 20, false, {shared}}},
                    {"c", {bytes, 30, false, {shared, {"b-500", 500}}}}};
  journal::keepWithin(folder, 1800);
  EXPECT_EQ(folder.names(), (Names{"a", "b", "c"}));
  journal::keepWithin(folder, 1799);
  EXPECT_EQ(folder.names(), (Names{"b", "c"}));
}

TEST(KeptSession, IsWholeOrAnError) {
  using journal::Record;
  using journal::RecordKind;
  const std::string text(1000, 'x');
  const std::string name = journal::nameBeside(text);
  MemoryFolder folder;
  folder.entries = {{"a",
                     {journal::fileBeginning() + journal::framed(journal::headerRecord({})) +
                      journal::framed({RecordKind::outcomeBeside, {20, 0}, {name}}) +
                      journal::framed({RecordKind::ready, {0}, {}})}}};
  EXPECT_EQ(errorNumberOf([&] { journal::keptSession(folder, "a"); }), 53);
  folder.texts[name] = text;
  EXPECT_EQ(journal::keptSession(folder, "a").records.at(0).texts.at(0), text);
  folder.texts[name] = "damaged";
  EXPECT_EQ(errorNumberOf([&] { journal::keptSession(folder, "a"); }), 13);
}

struct WorkSummaryTest : testing::Test {
  TestControl desk;
  bool wouldBeLost = false;

  WorkSummary summary() const {
    return journal::summaryOf(desk.control, desk.clock, [this] { return wouldBeLost; });
  }
};

TEST_F(WorkSummaryTest, SaysHowFarTheWorkIs) {
  EXPECT_EQ(summary(), (WorkSummary{"", "", "10:15", 0, 0, false}));
  desk.form.grdPozycje.setRows(3);
  desk.session.LineCount = 2;
  desk.form.grdPozycje.setCell(2, GRD_POZ_PACK_REFS, "2@A@1@1,000");
  desk.form.txtNrAwiza.setText("ТН-6");
  desk.form.txtNrZam.setText("ЗК-1");
  EXPECT_EQ(summary(), (WorkSummary{"ТН-6", "ЗК-1", "10:15", 2, 1, true}));
  desk.form.LastSentNumber = "ТН-5";
  EXPECT_TRUE(summary().isUnsent);
  desk.form.LastSentNumber = "ТН-6";
  EXPECT_FALSE(summary().isUnsent);
}

TEST_F(WorkSummaryTest, CountsWhatTheUserWouldBeAskedAboutAsUnsent) {
  wouldBeLost = true;
  EXPECT_TRUE(summary().isUnsent) << "a document without a line";
  desk.session.LineCount = 2;
  desk.form.txtNrAwiza.setText("ТН-6");
  desk.form.LastSentNumber = "ТН-6";
  EXPECT_TRUE(summary().isUnsent) << "one that was changed after it had been sent";
}

TEST(WorkSummary, IsReadBackAndNothingElse) {
  EXPECT_EQ(journal::summaryIn(journal::textsOf(unsent)), unsent);
  EXPECT_FALSE(journal::summaryIn({}));
  EXPECT_FALSE(journal::summaryIn({"a", "b", "c", "1", "x", "1"}));
  EXPECT_FALSE(journal::summaryIn({"a", "b", "c", "-1", "0", "1"}));
}

}  // namespace
}  // namespace awizo::test
