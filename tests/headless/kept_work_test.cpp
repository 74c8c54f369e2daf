// Whether a session goes on with work that the machine's records hold.

#include "hosts/headless/kept_work.h"

#include <gtest/gtest.h>

#include <sstream>

#include "hosts/headless/native/stream_lines.h"
#include "journal/record_file.h"
#include "journal/unfinished_work.h"
#include "platform/run_time_error.h"

namespace awizo::headless::test {
namespace {

std::string recordOfWork() {
  const journal::WorkSummary summary{"ТН-6", "ЗК-1", "23:14", 25, 12, true};
  return journal::fileBeginning() +
         journal::framed(journal::headerRecord({{"property PartnerILN", "952"}})) +
         journal::framed({journal::RecordKind::summary, {}, journal::textsOf(summary)}) +
         journal::framed({journal::RecordKind::ready, {0}, {}});
}

/// One record, which somebody may make unreadable after it was found.
struct OneRecord : RecordFolder {
  int readable = 2;  ///< times
  bool removable = true;
  bool there = true;

  std::vector<FoundRecord> records() override {
    if (!there) return {};
    return {{"a", 1, 0, false}};
  }
  NewRecord create() override { return {}; }
  std::string read(std::string_view) override {
    if (readable-- == 0) throw errors::permissionDenied();
    return recordOfWork();
  }
  std::string readBeside(std::string_view, std::string_view) override {
    throw errors::fileNotFound();
  }
  void remove(std::string_view) override {
    if (!removable) throw errors::permissionDenied();
    there = false;
  }
};

/// Nothing but the records is asked of it before the session is there.
struct RecordsAlone : Machine {
  OneRecord folder;

  Http& http() override { throw errors::deviceUnavailable(); }
  Files& files() override { throw errors::deviceUnavailable(); }
  std::unique_ptr<Clock> clock(const Options&) override { return nullptr; }
  std::unique_ptr<SettingsStore> settings(const Options&) override { return nullptr; }
  std::string localeName() override { return "ru_RU"; }
  std::unique_ptr<Locale> locale(const std::string&) override { return nullptr; }
  std::string readFile(const std::string&) override { return ""; }
  std::unique_ptr<GrowingFile> newFile(const std::string&) override { return nullptr; }
  std::string absolutePath(const std::string& path) override { return path; }
  RecordFolder* records() override { return &folder; }
};

struct KeptWorkTest : testing::Test {
  Beginning beginning(const std::string& lines) {
    std::istringstream in(lines);
    StreamLines streams(in, out);
    Conversation conversation(streams);
    Options options;
    options.properties["PartnerILN"] = "today's";
    return beginningOf(options, machine, conversation);
  }
  bool told(const std::string& words) const { return out.str().find(words) != std::string::npos; }

  RecordsAlone machine;
  std::ostringstream out;
};

TEST_F(KeptWorkTest, GoesOnWithThePartnerOfThatWork) {
  const Beginning goesOn = beginning("{\"answer\":\"goOn\"}\n");
  EXPECT_TRUE(told("Продолжить ТН-6 от 23:14, упаковано 12 из 25?"));
  EXPECT_EQ(goesOn.record, "a");
  EXPECT_EQ(goesOn.time, "23:14");
  EXPECT_EQ(goesOn.options.properties.at("PartnerILN"), "952");
}

TEST_F(KeptWorkTest, StartsAfreshWithoutTheRecord) {
  EXPECT_EQ(beginning("{\"answer\":\"startAfresh\"}\n").record, "");
  EXPECT_FALSE(machine.folder.there);
}

TEST_F(KeptWorkTest, LaterLeavesTheRecord) {
  const Beginning afresh = beginning("{\"answer\":\"later\"}\n");
  EXPECT_EQ(afresh.record, "");
  EXPECT_EQ(afresh.options.properties.at("PartnerILN"), "today's");
  EXPECT_TRUE(machine.folder.there);
}

TEST_F(KeptWorkTest, TellsOfARecordThatCantBeReadOrRemoved) {
  machine.folder.readable = 1;
  EXPECT_EQ(beginning("{\"answer\":\"goOn\"}\n{\"get\":\"x\"}\n{\"answer\":\"OK\"}\n").record, "");
  EXPECT_TRUE(told("Запись прежней работы не читается"));
  machine.folder.readable = 1;
  machine.folder.removable = false;
  EXPECT_EQ(beginning("{\"answer\":\"startAfresh\"}\n{\"answer\":\"OK\"}\n").record, "");
  EXPECT_TRUE(told("Запись прежней работы не удаляется"));
}

}  // namespace
}  // namespace awizo::headless::test
