#include <algorithm>
#include <chrono>
#include <filesystem>

#include "adapters/posix/posix_record_folder.h"
#include "adapters/posix/settings_stores.h"
#include "desk/document_watch.h"
#include "desktop_program/program_test.h"
#include "journal/loading.h"
#include "journal/record_file.h"
#include "platform/run_time_error.h"
#include "support/files/files.h"
#include "support/programs/conversation.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

namespace fs = std::filesystem;

class UnfinishedWorkTest : public ProgramTest {
 protected:
  UnfinishedWorkTest() { records = &folder; }
  ~UnfinishedWorkTest() override { close(); }

  /// An order in the window, with its number typed.
  void work() {
    agreeTo(service);
    open(onLineOptions(service));
    form().txtNrAwiza.userType("ТН-6");
  }
  /// The program ends without a word: what it leaves is what it has recorded.
  void crash() {
    fs::copy(path, kept, fs::copy_options::recursive);
    close();
    fs::remove_all(path);
    fs::rename(kept, path);
  }
  void openAgain(const QString& answer) {
    answerNext(answer, &asked);
    open(onLineOptions(service));
  }

  DemoService service{place.posted()};
  const fs::path path = place.folder() / "records";
  const fs::path kept = place.folder() / "kept";
  PosixRecordFolder folder{path.string()};
  std::string asked;
};

TEST_F(UnfinishedWorkTest, IsOfferedAtTheNextStartAndGoesOn) {
  work();
  crash();
  const std::size_t requests = service.requests().size();
  openAgain("&Продолжить");
  EXPECT_EQ(asked,
            "question|VIRD|Продолжить ТН-6 от 10:15, упаковано 0 из 25?\n\n"
            "«Начать заново» удаляет эту работу; «Отложить» оставляет её до следующего запуска.|"
            "&Продолжить,&Начать заново,О&тложить");
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-6");
  EXPECT_EQ(shownText(face(form().txtNrAwiza)), "ТН-6");
  EXPECT_EQ(control().editor.session.LineCount, 25);
  EXPECT_EQ(service.requests().size(), requests);
  EXPECT_EQ(folder.records().size(), 1U);

  form().txtNrAwiza.userType("ТН-7");
  crash();
  openAgain("&Продолжить");
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-7");
}

TEST_F(UnfinishedWorkTest, GoesOnInTheDialogInWhichItEnded) {
  work();
  then([this] {
    control().dlgSzczegoly.txtPackageDesc.userType("Паллета");
    fs::copy(path, kept, fs::copy_options::recursive);
    control().dlgSzczegoly.userClose();
  });
  form().btnDodajOpak.userClick();
  close();
  fs::remove_all(path);
  fs::rename(kept, path);

  bool seenAgain = false;
  answerNext("&Продолжить", &asked);
  then([&] {
    then([&] {
      seenAgain = control().dlgSzczegoly.shown();
      EXPECT_EQ(shownText(face(form().txtNrAwiza)), "ТН-6");
      EXPECT_EQ(control().dlgSzczegoly.txtPackageDesc.text(), "Паллета");
      control().dlgSzczegoly.userClose();
    });
  });
  open(onLineOptions(service));
  EXPECT_TRUE(seenAgain);
  EXPECT_EQ(control().editor.session.IloscPozycjiOpak, 0);
}

TEST_F(UnfinishedWorkTest, IsAnOrderThatNoTableHeldWhenTheProgramBrokeOff) {
  agreeTo(service);
  open(onLineOptions(service));
  const fs::path record = path / folder.records()[0].name;
  crash();
  const std::vector<journal::Record> whole = journal::wholeRecords(readFile(record)).records;
  const auto reply = std::ranges::find_if(whole, [](const journal::Record& entry) {
    return !entry.texts.empty() && entry.texts[0].find("<Document-Order>") != std::string::npos;
  });
  ASSERT_NE(reply, whole.end());
  std::string bytes = journal::fileBeginning();
  std::for_each(whole.begin(), reply + 1,
                [&](const journal::Record& entry) { bytes += journal::framed(entry); });
  writeFile(record, bytes);
  const std::size_t requests = service.requests().size();

  openAgain("&Продолжить");
  EXPECT_NE(asked.find("Продолжить полученный заказ от 10:15?"), asked.npos) << asked;
  EXPECT_EQ(control().editor.session.LineCount, 25);
  EXPECT_EQ(service.requests().size(), requests);
  EXPECT_TRUE(widget().watch().wouldBeLost());
  crash();
  openAgain("&Продолжить");
  EXPECT_EQ(control().editor.session.LineCount, 25);
}

TEST_F(UnfinishedWorkTest, IsWhatAWindowWouldAskAboutWithoutALineToo) {
  open(offLineOptions());
  form().txtNrAwiza.userType("ТН-6");
  crash();
  answerNext("&Продолжить", &asked);
  open(offLineOptions());
  EXPECT_NE(asked.find("Продолжить ТН-6 от 10:15?"), asked.npos) << asked;
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-6");
}

TEST_F(UnfinishedWorkTest, IsGoneWhereItsUserStartsAfresh) {
  work();
  crash();
  openAgain("&Начать заново");
  EXPECT_EQ(form().txtNrAwiza.text(), "");
  EXPECT_EQ(folder.records().size(), 1U);
  close();
  EXPECT_TRUE(folder.records().empty());
}

TEST_F(UnfinishedWorkTest, WaitsWhereItIsPutOff) {
  work();
  crash();
  openAgain("О&тложить");
  EXPECT_EQ(form().txtNrAwiza.text(), "");
  close();
  ASSERT_EQ(folder.records().size(), 1U);
  openAgain("&Продолжить");
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-6");
}

TEST_F(UnfinishedWorkTest, ThatIsPutOffIsOfferedOnTheStartPage) {
  work();
  crash();
  answerNext("О&тложить", &asked);
  Options bare = onLineOptions(service);
  bare.properties.clear();
  bare.pageUrl.reset();
  bare.cookie.reset();
  show(bare);
  StartPage& page = waitForStartPage().page();
  EXPECT_EQ(page.lblUnfinished.caption(), "ТН-6 от 10:15, упаковано 0 из 25");
  click(window().startPage().faces().face(page.btnGoOn));
  ASSERT_TRUE(QTest::qWaitFor([&] { return window().hasSession(); }, 10000));
  follow();
  waitForStart();
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-6");
  EXPECT_EQ(control().editor.session.LineCount, 25);
  close();
  EXPECT_TRUE(folder.records().empty());
}

TEST_F(UnfinishedWorkTest, IsNoneOnceItsWindowHasClosed) {
  work();
  close();
  EXPECT_TRUE(folder.records().empty());
  open(onLineOptions(service));
  EXPECT_EQ(form().txtNrAwiza.text(), "");
}

TEST_F(UnfinishedWorkTest, IsNoneWhereNothingWasDone) {
  open(offLineOptions());
  crash();
  open(offLineOptions());
  EXPECT_EQ(folder.records().size(), 1U);
}

TEST_F(UnfinishedWorkTest, OfAnotherWindowIsNotOffered) {
  work();
  PosixRecordFolder same{path.string()};
  desktop::MainWindow second(offLineOptions(), nullptr, &same);
  EXPECT_EQ(folder.records().size(), 2U);
}

/// The catalogue, beside each record that has it.
std::vector<fs::path> textsIn(const fs::path& path) {
  std::vector<fs::path> texts;
  for (const auto& entry : fs::recursive_directory_iterator(path)) {
    if (entry.is_regular_file() && entry.path().extension() != ".record") {
      texts.push_back(entry.path());
    }
  }
  return texts;
}

TEST_F(UnfinishedWorkTest, TwoProgramsShareACatalogueAndEachKeepsItsOwnWork) {
  work();
  DemoService another(place.folder() / "another");
  agreeTo(another);
  PosixRecordFolder same{path.string()};
  desktop::MainWindow second(onLineOptions(another), nullptr, &same);
  second.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return textsIn(path).size() == 2; }, 10000));
  EXPECT_EQ(fs::hard_link_count(textsIn(path)[0]), 2U);

  fs::copy(path, kept, fs::copy_options::recursive);
  close();
  EXPECT_EQ(folder.records().size(), 1U);
  EXPECT_EQ(textsIn(path).size(), 1U);
  fs::copy(kept, path, fs::copy_options::recursive | fs::copy_options::skip_existing);
  openAgain("&Продолжить");
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-6");
}

TEST_F(UnfinishedWorkTest, WithADamagedCatalogueIsToldAndStays) {
  work();
  crash();
  ASSERT_EQ(textsIn(path).size(), 1U);
  std::string bytes = readFile(textsIn(path)[0]);
  bytes[bytes.size() / 2] ^= 1;
  writeFile(textsIn(path)[0], bytes);
  std::string told;
  answerNext("&Продолжить", &asked);
  then([&] { answerNext("ОК", &told); });
  open(onLineOptions(service));
  EXPECT_NE(told.find("Запись прежней работы не читается: файл повреждён."), told.npos) << told;
  close();
  EXPECT_EQ(folder.records().size(), 1U);
}

TEST_F(UnfinishedWorkTest, ThatCantGoOnHidesNoOther) {
  work();
  crash();
  const fs::path older = path / folder.records()[0].name;
  answerNext("О&тложить", &asked);
  open(onLineOptions(service));
  form().txtNrAwiza.userType("ТН-7");
  crash();
  // Two records of unsent work: the newer one is damaged.
  std::string newer;
  for (const FoundRecord& record : folder.records()) {
    if (path / record.name != older) newer = record.name;
  }
  ASSERT_FALSE(newer.empty());
  std::vector<journal::Record> entries = journal::wholeRecords(readFile(path / newer)).records;
  std::string bytes = journal::fileBeginning();
  for (journal::Record& entry : entries) {
    if (entry.kind == journal::RecordKind::digest) entry.numbers.at(0) ^= 1;
    bytes += journal::framed(entry);
  }
  writeFile(path / newer, bytes);
  fs::last_write_time(older, fs::last_write_time(path / newer) - std::chrono::minutes(1));

  answerNext("&Продолжить", &asked);
  show(onLineOptions(service));
  StartPage& page = waitForStartPage().page();
  EXPECT_NE(asked.find("ТН-7"), asked.npos) << asked;
  EXPECT_TRUE(page.lblUnfinished.caption().starts_with("ТН-6")) << page.lblUnfinished.caption();
  close();
  openAgain("&Продолжить");
  EXPECT_NE(asked.find("ТН-6"), asked.npos) << asked;
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-6");
  close();
  EXPECT_EQ(folder.records().size(), 1U) << "what failed stays";
}

TEST_F(UnfinishedWorkTest, IsReplayedByTheHeadlessProgramToo) {
  work();
  form().grdPozycje.userCell(1, GRD_POZ_NAME);
  then([this] { control().dlgSzczegoly.userClose(); });
  form().btnDodajOpak.userClick();
  // So many that the record holds a digest of the whole state.
  for (int text = 0; text < 70; ++text) form().txtNrAwiza.userType(std::to_string(text));
  const std::string record = (path / folder.records()[0].name).string();
  const auto recorded = journal::recordedSession(readFile(record)).records;
  EXPECT_TRUE(std::ranges::any_of(recorded, [](const journal::Record& entry) {
    return entry.kind == journal::RecordKind::digest;
  }));
  const std::size_t requests = service.requests().size();

  Conversation replayed({"--replay", record});
  EXPECT_EQ(replayed.text("txtNrAwiza"), "69");
  EXPECT_EQ(replayed.get("grdPozycje")["rows"], form().grdPozycje.rows());
  EXPECT_EQ(replayed.get("grdPozycje")["row"], 1);
  EXPECT_EQ(replayed.cellText("grdPozycje", 25, GRD_POZ_NAME),
            form().grdPozycje.cell(25, GRD_POZ_NAME));
  EXPECT_EQ(replayed.finish(), 0);
  EXPECT_EQ(service.requests().size(), requests);
}

TEST_F(UnfinishedWorkTest, AFolderThatCantBeWrittenDisturbsNobody) {
  PosixRecordFolder forbidden{"/proc/records"};
  records = &forbidden;
  open(offLineOptions());
  form().txtNrAwiza.userType("ТН-6");
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-6");
  EXPECT_TRUE(widget().watch().status().starts_with("Работа больше не записывается"));
}

/// A folder of records on a disk that takes so many bytes of each new one.
struct FullFolder : RecordFolder {
  struct File : GrowingFile {
    std::size_t room = 0;
    void append(std::string_view bytes) override {
      if (bytes.size() > room) throw errors::diskFull();
      room -= bytes.size();
    }
    void flush() override {}
  };

  explicit FullFolder(RecordFolder& real) : real_(real) {}
  std::vector<FoundRecord> records() override { return real_.records(); }
  NewRecord create() override {
    auto file = std::make_unique<File>();
    file->room = 1000;
    return {"full.record", std::move(file)};
  }
  std::string read(std::string_view name) override { return real_.read(name); }
  std::string readBeside(std::string_view record, std::string_view text) override {
    return real_.readBeside(record, text);
  }
  void remove(std::string_view name) override { real_.remove(name); }

 private:
  RecordFolder& real_;
};

TEST_F(UnfinishedWorkTest, StaysWhereItWasUntilItsNewRecordIsWhole) {
  work();
  crash();
  FullFolder full(folder);
  records = &full;
  openAgain("&Продолжить");
  EXPECT_EQ(form().txtNrAwiza.text(), "ТН-6");
  close();
  EXPECT_EQ(folder.records().size(), 1U);
}

/// A folder of records from which nothing can be removed, and where at last nothing can be read.
struct StubbornFolder : RecordFolder {
  explicit StubbornFolder(RecordFolder& real) : real_(real) {}
  int readings = 100;

  std::vector<FoundRecord> records() override { return real_.records(); }
  NewRecord create() override { return real_.create(); }
  std::string read(std::string_view name) override {
    if (readings-- == 0) throw errors::fileNotFound();
    return real_.read(name);
  }
  std::string readBeside(std::string_view record, std::string_view text) override {
    return real_.readBeside(record, text);
  }
  void remove(std::string_view) override { throw errors::permissionDenied(); }

 private:
  RecordFolder& real_;
};

TEST_F(UnfinishedWorkTest, ThatCantBeRemovedIsToldAndTheWorkGoesOn) {
  work();
  crash();
  StubbornFolder stubborn(folder);
  records = &stubborn;
  std::string told;
  answerNext("&Начать заново", &asked);
  then([&] { answerNext("ОК", &told); });
  open(onLineOptions(service));
  EXPECT_NE(told.find("Запись прежней работы не удаляется: нет прав доступа."), told.npos) << told;
  EXPECT_EQ(form().txtNrAwiza.text(), "");
  close();
}

TEST_F(UnfinishedWorkTest, ThatCantBeReadAnyMoreIsToldAndTheWorkBeginsAnew) {
  work();
  crash();
  StubbornFolder stubborn(folder);
  // It was read once for the question.
  stubborn.readings = 1;
  records = &stubborn;
  std::string told;
  answerNext("&Продолжить", &asked);
  then([&] { answerNext("ОК", &told); });
  open(onLineOptions(service));
  EXPECT_NE(told.find("Запись прежней работы не читается: нет такого файла."), told.npos) << told;
  EXPECT_EQ(form().txtNrAwiza.text(), "");
  close();
}

TEST_F(UnfinishedWorkTest, IsNotRecordedWhereItsUserWantsThat) {
  Options options = offLineOptions();
  options.settingsFile = place.settings().string();
  SettingsFile(*options.settingsFile).write("Awizo", "Records", "Keep", "no");
  open(options);
  form().txtNrAwiza.userType("ТН-6");
  EXPECT_TRUE(folder.records().empty());
}

}  // namespace
}  // namespace awizo::test
