#include "journal/texts_beside.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "journal/state_digest.h"
#include "support/control/taped_control.h"
#include "support/error_of.h"

namespace awizo::test {
namespace {

using journal::Record;
using journal::RecordKind;

struct MemoryTexts : TextsBeside {
  std::map<std::string, std::string, std::less<>> kept;
  bool full = false;

  void keep(std::string_view name, std::string_view text) override {
    if (full) throw errors::diskFull();
    kept.emplace(name, text);
  }
  std::string read(const std::string& name) const {
    const auto found = kept.find(name);
    if (found == kept.end()) throw errors::fileNotFound();
    return found->second;
  }
  auto reading() const {
    return [this](const std::string& name) { return read(name); };
  }
};

const std::string longText(100'000, 'x');
const Record longReply{RecordKind::outcome, {20, 0}, {longText}};

TEST(TextsBeside, HaveOneNameForWhatIsTheSame) {
  EXPECT_EQ(journal::nameBeside(longText), journal::nameBeside(std::string(100'000, 'x')));
  EXPECT_NE(journal::nameBeside(longText), journal::nameBeside(longText + "x"));
  std::string other = longText;
  other[70'000] = 'y';
  EXPECT_NE(journal::nameBeside(longText), journal::nameBeside(other));
}

TEST(TextsBeside, AreFetchedAsTheyWere) {
  MemoryTexts texts;
  const auto named = journal::namedBeside(longReply, texts);
  ASSERT_TRUE(named);
  EXPECT_LT(journal::framed(*named).size(), 100U);
  std::vector<Record> records{*named};
  EXPECT_FALSE(journal::fetchBeside(records, texts.reading()));
  EXPECT_EQ(records, std::vector<Record>{longReply});
}

TEST(TextsBeside, AreNoneOfWhatIsShortOrNoText) {
  MemoryTexts texts;
  EXPECT_FALSE(journal::namedBeside({RecordKind::outcome, {20, 0}, {"short"}}, texts));
  EXPECT_FALSE(journal::namedBeside({RecordKind::outcome, {4, 0, 1}, {}}, texts));
  EXPECT_TRUE(texts.kept.empty());
}

TEST(TextsBeside, StayInTheRecordWhereTheyCantBeKept) {
  MemoryTexts texts;
  texts.full = true;
  EXPECT_FALSE(journal::namedBeside(longReply, texts));
}

TEST(TextsBeside, ThatAreMissingOrDamagedAreTold) {
  MemoryTexts texts;
  const Record named = *journal::namedBeside(longReply, texts);
  std::vector<Record> records{named};
  texts.kept.begin()->second[5] = 'y';
  EXPECT_EQ(journal::fetchBeside(records, texts.reading())->number(), 13);
  EXPECT_EQ(records, std::vector<Record>{named});
  texts.kept.clear();
  EXPECT_EQ(journal::fetchBeside(records, texts.reading())->number(), 53);
}

TEST(TextsBeside, AreNeverLookedForElsewhere) {
  std::vector<Record> records{{RecordKind::outcomeBeside, {20, 0}, {"../secret"}}};
  int reads = 0;
  const auto error = journal::fetchBeside(records, [&](const std::string&) {
    ++reads;
    return std::string();
  });
  EXPECT_EQ(error->number(), 52);
  EXPECT_EQ(reads, 0);
}

/// A session whose partner's file is long.
struct SessionWithTexts : testing::Test {
  void start() {
    TestControl& desk = recorded.desk;
    desk.prepareFolder();
    desk.files.put(TestControl::partnerFile,
                   TestControl::partnerInfo("ООО Покупатель") + std::string(100'000, ' '));
    desk.bag.values["OnLine"] = "Off";
    recorded.recording->start();
    recorded.show();
    desk.form.txtNrAwiza.userType("ТН/1");
  }
  /// What a replay says where it stops; empty where it doesn't.
  std::string replay() {
    std::vector<Record> records = sessionIn(record).records;
    journal::fetchBeside(records, texts.reading());
    TapedControl replayed(nullptr, std::move(records));
    try {
      replayed.recording->start();
    } catch (const journal::ReplayDiffers& differs) {
      return differs.what;
    }
    EXPECT_EQ(journal::stateDigest(replayed.desk.control),
              journal::stateDigest(recorded.desk.control));
    return "";
  }

  MemoryRecord record;
  MemoryTexts texts;
  TapedControl recorded{&record, {}, TapedControl::unchanged, "ru_RU", &texts};
};

TEST_F(SessionWithTexts, IsReplayedWithThem) {
  start();
  EXPECT_EQ(texts.kept.size(), 1U);
  EXPECT_LT(record.bytes.size(), 100'000U);
  EXPECT_EQ(replay(), "");
}

TEST_F(SessionWithTexts, EndsItsReplayWhereOneIsMissing) {
  start();
  texts.kept.clear();
  EXPECT_EQ(replay(), "a reply or file beside the record that is missing or damaged");
}

TEST_F(SessionWithTexts, HoldsThemItselfWhereTheyCantBeKeptBeside) {
  texts.full = true;
  start();
  EXPECT_GT(record.bytes.size(), 100'000U);
  EXPECT_EQ(replay(), "");
}

}  // namespace
}  // namespace awizo::test
