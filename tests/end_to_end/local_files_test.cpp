// The local folder: starts off line, files that are missing, damaged or hostile, and files to save.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/files/files.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

constexpr const char* noUserFile =
    "VIRD|critical|Нет или неправильный формат файла XML о пользователе.";
constexpr const char* noPartnerFile =
    "VIRD|critical|Нет или неправильный формат файла XML о партнёре.";

fs::path userFile(const Supplier& supplier) { return supplier.place.folder() / "userinfo.xml"; }

fs::path partnerFile(const Supplier& supplier) {
  return supplier.place.folder() / "9520001000010_9520002000019_partner_INFO.xml";
}

TEST(OffLine, StartsWithAnEmptyDocumentAndNoSending) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.show();
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_EQ(editor.caption("lblOnLineStatus"), "Off-Line");
  EXPECT_EQ(editor.get("btnPrzeslij")["visible"], false);
  EXPECT_EQ(editor.caption("lblNameSprzedWart"), "ООО «Товары каждый день»");
  EXPECT_EQ(editor.caption("lblNameKupWart"), "АО «Магазины рядом»");
  EXPECT_EQ(editor.get("grdPozycje")["rows"], 2);
  editor.refused({{"do", "click"}, {"on", "btnPrzeslij"}});
}

TEST(OffLine, HostWithoutAPageWorksOffLineButStillShowsOnLine) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine({"--property", "OnLine="});
  editor.show();
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_EQ(editor.caption("lblOnLineStatus"), "On-Line");
  EXPECT_EQ(editor.get("btnPrzeslij")["visible"], true);
  EXPECT_EQ(editor.get("session")["SessionCookie"], "");
}

TEST(OffLine, PageWhoseAddressCannotBeReadEndsTheStart) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine({"--property", "OnLine=", "--cookie", "a=1"});
  editor.show();
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("Произошла ошибка в UserControl_Show()|critical|Object variable or With "
                          "block variable not set"));
  EXPECT_EQ(editor.get("control")["Enabled"], true);
}

TEST(LocalFolder, ThatNobodySetIsFatalOnLineToo) {
  const Supplier supplier;
  Conversation editor =
      supplier.startOffLine({"--offline-path", "", "--property", "OnLine=", "--cookie", "",
                             "--page-url", "http://h/a/b"});
  editor.show();
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("VIRD|critical|Нет определённого пути доступа к запасам."));
  EXPECT_EQ(editor.get("control")["Enabled"], false);
}

TEST(LocalFolder, WithoutThePartnersFileWorksOnLineAndGetsIt) {
  Supplier supplier;
  fs::remove(partnerFile(supplier));
  const DemoService service(supplier.place.posted());
  {
    Conversation offLine = supplier.startOffLine();
    offLine.show();
    EXPECT_THAT(offLine.answerAll(), ElementsAre(noPartnerFile));
  }
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_TRUE(fs::exists(partnerFile(supplier)));
  Conversation offLine = supplier.startOffLine();
  offLine.show();
  EXPECT_THAT(offLine.answerAll(), IsEmpty());
  EXPECT_EQ(offLine.caption("lblNameKupWart"), "АО «Магазины рядом»");
}

/// A file that a user may meet in the place of userinfo.xml.
struct BadFile {
  const char* name;
  std::string (*bytes)();
};

std::ostream& operator<<(std::ostream& out, const BadFile& file) { return out << file.name; }

std::string repeated(std::string_view text, std::size_t count) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

std::string entityBomb() {
  std::string text = "<!DOCTYPE a [<!ENTITY e0 \"0123456789\">";
  for (int i = 1; i < 12; ++i) {
    const std::string inner = repeated("&e" + std::to_string(i - 1) + ";", 10);
    text += "<!ENTITY e" + std::to_string(i) + " \"" + inner + "\">";
  }
  return text + "]><a><partner-info><info><iln>&e11;</iln></info></partner-info></a>";
}

std::string externalEntity() {
  return "<!DOCTYPE a [<!ENTITY e SYSTEM \"file:///etc/passwd\">]>"
         "<a><partner-info><info><iln>&e;</iln></info></partner-info></a>";
}

std::string aMillionLevels() { return repeated("<a>", 1'000'000) + repeated("</a>", 1'000'000); }

std::string aHundredMegabytes() { return "<a>" + std::string(100'000'000, 'x'); }

class BadUserFile : public testing::TestWithParam<BadFile> {};

INSTANTIATE_TEST_SUITE_P(
    Kinds, BadUserFile,
    testing::Values(BadFile{"Empty", [] { return std::string(); }},
                    BadFile{"CutOff", [] { return std::string("<a><partner-info><info><iln>95"); }},
                    BadFile{"Text", [] { return std::string("ILN 9520001000010"); }},
                    BadFile{"Bytes", [] { return std::string("\0\xFF\xFE\x01garbage", 11); }},
                    BadFile{"EntityBomb", entityBomb}, BadFile{"ExternalEntity", externalEntity},
                    BadFile{"AMillionLevelsDeep", aMillionLevels},
                    BadFile{"AHundredMegabytesCutOff", aHundredMegabytes}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_P(BadUserFile, IsRefusedWithItsMessageAndTheEditorLivesOn) {
  const Supplier supplier;
  writeFile(userFile(supplier), GetParam().bytes());
  Conversation editor = supplier.startOffLine();
  editor.show();
  EXPECT_THAT(editor.answerAll(), ElementsAre(noUserFile));
  EXPECT_EQ(editor.get("control")["Enabled"], false);
  EXPECT_EQ(editor.get("session")["UserInfoDom"], "");
  EXPECT_EQ(editor.finish(), 0);
}

TEST_P(BadUserFile, InThePlaceOfThePartnersFileIsRefusedToo) {
  const Supplier supplier;
  writeFile(partnerFile(supplier), GetParam().bytes());
  Conversation editor = supplier.startOffLine();
  editor.show();
  EXPECT_THAT(editor.answerAll(), ElementsAre(noPartnerFile));
  EXPECT_EQ(editor.finish(), 0);
}

TEST_P(BadUserFile, IsNoDocumentToRead) {
  const Supplier supplier;
  writeFile(supplier.place.documents() / "document.xml", GetParam().bytes());
  Conversation editor = supplier.startOffLine();
  editor.show();
  editor.click("btnWczytaj");
  editor.openFolder("DlgWczytajZapisz.DirList", supplier.place.documents().string());
  editor.choose("DlgWczytajZapisz.FileList", 0);
  editor.click("DlgWczytajZapisz.ImageWczytaj");
  EXPECT_THAT(editor.answerAll(), ElementsAre("VIRD|exclamation|Неправильный формат файла XML."));
  EXPECT_EQ(editor.get("control")["Enabled"], true);
  EXPECT_EQ(editor.finish(), 0);
}

TEST(UserFile, WithoutTheUsersNodeIsNoError) {
  const Supplier supplier;
  writeFile(userFile(supplier), "<anything/>");
  // Without the seller's ILN the partner's file is another one.
  fs::copy(partnerFile(supplier), supplier.place.folder() / "_9520002000019_partner_INFO.xml");
  Conversation editor = supplier.startOffLine();
  editor.show();
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_EQ(editor.caption("lblNameSprzedWart"), "");
}

TEST(UserFile, MayBeInWindows1251OrUtf16) {
  const std::string ascii =
      "<partner-info><info><iln>9520001000010</iln><name>AB</name></info></partner-info></a>";
  std::string utf16 = "\xFF\xFE";
  for (const char character : "<a>" + ascii) utf16 += std::string{character, '\0'};
  // "АБ" in windows-1251.
  std::string single = "<?xml version=\"1.0\" encoding=\"windows-1251\"?><a>" + ascii;
  single.replace(single.find("AB"), 2, "\xC0\xC1");
  const std::vector<std::pair<std::string, std::string>> files{{utf16, "AB"}, {single, "АБ"}};
  for (const auto& [bytes, name] : files) {
    const Supplier supplier;
    writeFile(userFile(supplier), bytes);
    Conversation editor = supplier.startOffLine();
    editor.show();
    EXPECT_THAT(editor.answerAll(), IsEmpty());
    EXPECT_EQ(editor.caption("lblNameSprzedWart"), name);
  }
}

TEST(Saving, ToAFolderThatIsGoneTellsTheErrorAndGoesOn) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  openSaving(editor);
  editor.type("DlgWczytajZapisz.txtAwizoPlik", "c:\\no\\such\\folder\\a.xml");
  editor.click("DlgWczytajZapisz.ImageZapisz");
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("Произошла ошибка в btnZapisz_Click()|critical|Path not found"));
  EXPECT_EQ(editor.get("control")["Enabled"], true);
}

TEST(Saving, WhereNothingCanBeWrittenTellsTheErrorAndGoesOn) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  openSaving(editor);
  editor.type("DlgWczytajZapisz.txtAwizoPlik", "/proc/a.xml");
  editor.click("DlgWczytajZapisz.ImageZapisz");
  const auto boxes = editor.answerAll();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes.front().find("Произошла ошибка в btnZapisz_Click()|critical|"), 0U);
  EXPECT_EQ(editor.get("control")["Enabled"], true);
}

TEST(Saving, OverAFolderTellsTheErrorAndLeavesIt) {
  const Supplier supplier;
  fs::create_directory(supplier.place.documents() / "old.xml");
  Conversation editor = supplier.startOffLine();
  openSaving(editor);
  editor.type("DlgWczytajZapisz.txtAwizoPlik", (supplier.place.documents() / "old.xml").string());
  editor.click("DlgWczytajZapisz.ImageZapisz");
  EXPECT_THAT(editor.answerAll(),
              ElementsAre("Произошла ошибка в btnZapisz_Click()|critical|Path/File access error"));
  EXPECT_TRUE(fs::is_directory(supplier.place.documents() / "old.xml"));
  EXPECT_EQ(std::distance(fs::directory_iterator(supplier.place.documents()), {}), 1);
}

TEST(Saving, ClosedWithoutAChoiceSavesNothing) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  openSaving(editor);
  editor.openFolder("DlgWczytajZapisz.DirList", supplier.place.documents().string());
  editor.click("DlgWczytajZapisz.ImageZamknij");
  EXPECT_TRUE(fs::is_empty(supplier.place.documents()));
  EXPECT_EQ(editor.get("control")["Enabled"], true);
}

TEST(OfflineFolder, IsSetByTheHostAndKeptForTheNextRun) {
  const Supplier supplier;
  const std::string settings = supplier.place.settings().string();
  {
    Conversation editor = supplier.startOffLine({"--settings", settings, "--offline-path", ""});
    editor.show();
    EXPECT_THAT(editor.answerAll(),
                ElementsAre("VIRD|critical|Нет определённого пути доступа к запасам."));
    editor.act({{"do", "offlineFolder"}});
    EXPECT_EQ(editor.takeEvents().back()["caption"], "Папка для автономной работы");
    editor.openFolder("DlgWczytajZapisz.DirList", supplier.place.folder().parent_path().string());
    const std::string proposed = editor.text("DlgWczytajZapisz.lblOffLinePath");
    editor.click("DlgWczytajZapisz.ImageWczytaj");
    EXPECT_THAT(editor.answerAll(), IsEmpty());
    EXPECT_EQ(editor.get("settings")["OffLinePath"], proposed);
    EXPECT_EQ(editor.finish(), 0);
  }
  Conversation editor({"--settings", settings, "--property", "OnLine=Off", "--property",
                       "PartnerILN=9520002000019"});
  editor.show();
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_EQ(editor.caption("lblNameSprzedWart"), "ООО «Товары каждый день»");
}

TEST(Log, HoldsTheRunWhenTheHostAsksForIt) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine({"--property", "DebugLevel=4"});
  EXPECT_EQ(editor.get("session")["LogStream"], false);
  EXPECT_EQ(editor.get("session")["LogFileSystem"], false);
  editor.show();
  EXPECT_EQ(editor.get("session")["LogLevel"], 4);
  EXPECT_EQ(editor.get("session")["LogStream"], true);
  EXPECT_EQ(editor.get("session")["LogFileSystem"], true);
  editor.call("WriteDebugLine", {"a line"});
  editor.call("WriteDebugLine", {"too deep", 5});
  EXPECT_EQ(editor.finish(), 0);
  const std::string log = readFile(supplier.place.folder() / "DemoAwizo.log");
  EXPECT_NE(log.find("21.11.2026 10:15 a line\r\n"), std::string::npos) << log;
  EXPECT_EQ(log.find("too deep"), std::string::npos);
}

}  // namespace
}  // namespace awizo::test
