// What may not get out: the session's cookie, and files other than those that the user named.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "platform/run_time_error.h"
#include "support/files/files.h"
#include "support/servers/tls_server.h"
#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
namespace fs = std::filesystem;

const std::string cookie = "SID=kept-to-ourselves-4711";

class Security : public testing::Test {
 protected:
  Security() : before_(files()) {}

  fs::path root() const { return supplier.place.folder().parent_path(); }
  /// All files of the supplier's machine, as paths from its root.
  std::set<std::string> files() const {
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(root())) {
      if (entry.is_regular_file()) names.insert(fs::relative(entry, root()).string());
    }
    return names;
  }
  std::set<std::string> newFiles() const {
    std::set<std::string> names = files();
    for (const std::string& name : before_) names.erase(name);
    return names;
  }
  std::vector<std::string> filesWithTheCookie() const {
    std::vector<std::string> names;
    for (const std::string& name : files()) {
      if (readFile(root() / name).find("kept-to-ourselves") != std::string::npos) {
        names.push_back(name);
      }
    }
    return names;
  }

  /// Works on line from the waiting order to a document that is sent and saved. Returns all that
  /// the program said by itself meanwhile.
  std::string work(const DemoService& service, const std::string& debugLevel) const {
    Conversation editor = supplier.startOnLine(
        service, {"--cookie", cookie, "--property", "DebugLevel=" + debugLevel});
    editor.show();
    completeHeader(editor);
    editor.click("btnPrzeslij");
    editor.answer("Yes");
    std::string said = testing::PrintToString(editor.answerAll());
    editor.click("btnZapisz");
    editor.answer("Yes");
    saveAs(editor, (supplier.place.documents() / "document.xml").string());
    editor.answerAll();
    for (const Json& event : editor.takeEvents()) said += event.dump();
    EXPECT_EQ(editor.finish(), 0);
    return said;
  }

  Supplier supplier;

 private:
  std::set<std::string> before_;
};

TEST_F(Security, AServiceThatNobodyVouchesForGetsNoRequestAndNoCookie) {
  const TlsServer server(SelfSigned("IP:127.0.0.1"), okReply("<partner-info-response/>"));
  Conversation editor =
      supplier.startOffLine({"--property", "OnLine=", "--page-url",
                             server.secureUrl() + "vird/page/editor.html", "--cookie", cookie});
  editor.show();
  EXPECT_THAT(
      editor.answerAll(),
      ElementsAre("Bі№d w SendXMLDOMRequest()!|critical|" + errors::badCertificate().description(),
                  "Bі№d w SendXMLDOMRequest()!|critical|The data necessary to complete this "
                  "operation is not yet available.",
                  "VIRD|critical|Неправильный формат XML партнёр инфо."));
  EXPECT_EQ(editor.get("control")["Enabled"], false);
  EXPECT_THAT(server.requests(), IsEmpty());
}

TEST_F(Security, TheCookieIsInTheRequestsAndNowhereElse) {
  const DemoService service(supplier.place.posted());
  EXPECT_EQ(work(service, "2").find("kept-to-ourselves"), std::string::npos);
  EXPECT_EQ(service.requests().size(), 5U);
  for (const Json& request : service.requests()) {
    EXPECT_EQ(request["cookie"], cookie);
    EXPECT_EQ(request["body"].dump().find("kept-to-ourselves"), std::string::npos);
  }
  EXPECT_THAT(filesWithTheCookie(), IsEmpty());
}

TEST_F(Security, AtLevelFourTheCookieIsInTheLogThatOnlyItsOwnerReads) {
  const DemoService service(supplier.place.posted());
  const fs::path log = supplier.place.folder() / "DemoAwizo.log";
  writeFile(log, "of an earlier day");
  fs::permissions(log, fs::perms(0644));
  work(service, "4");
  EXPECT_THAT(filesWithTheCookie(), ElementsAre("VIRD/DemoAwizo.log"));
  EXPECT_EQ(fs::status(log).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Security, ALogThatIsALinkIsNotFollowed) {
  const fs::path other = supplier.place.documents() / "other.txt";
  writeFile(other, "untouched");
  fs::create_symlink(other, supplier.place.folder() / "DemoAwizo.log");
  Conversation editor = supplier.startOffLine({"--property", "DebugLevel=4"});
  editor.show();
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_EQ(editor.get("session")["LogStream"], false);
  EXPECT_EQ(readFile(other), "untouched");
}

TEST_F(Security, APartnersNameDoesNotLeadOutOfTheLocalFolder) {
  for (const char* name : {"../../up", "..\\..\\up", "/absolute", "c:\\drive"}) {
    Conversation editor = supplier.startOffLine(
        {"--property", "DebugLevel=4", "--property", std::string("PartnerName=") + name});
    editor.show();
    EXPECT_THAT(editor.answerAll(), IsEmpty());
  }
  EXPECT_THAT(newFiles(), UnorderedElementsAre("VIRD/.._.._upAwizo.log", "VIRD/_absoluteAwizo.log",
                                               "VIRD/c:_driveAwizo.log"));
}

TEST_F(Security, ASellersNumberDoesNotLeadOutOfTheLocalFolder) {
  writeFile(supplier.place.folder() / "userinfo.xml",
            "<a><partner-info><info><iln>../../up</iln></info></partner-info></a>");
  const DemoService service(supplier.place.posted());
  Conversation editor = supplier.startOnLine(service);
  editor.show();
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_THAT(newFiles(), UnorderedElementsAre("VIRD/.._.._up_9520002000019_partner_INFO.xml"));
}

TEST_F(Security, ADocumentsNumberDoesNotLeadOutOfTheChosenFolder) {
  Conversation editor = supplier.startOffLine();
  editor.show();
  editor.type("txtNrZam", "2");
  for (const char* number : {"../../up", "..\\up", "/etc/passwd"}) {
    editor.type("txtNrAwiza", number);
    openSavingAgain(editor);
    editor.openFolder("DlgWczytajZapisz.DirList", supplier.place.documents().string());
    editor.click("DlgWczytajZapisz.ImageZapisz");
    EXPECT_THAT(editor.answerAll(), IsEmpty());
  }
  EXPECT_THAT(newFiles(), UnorderedElementsAre("documents/Подтверждение_отгрузки_.._.._up.xml",
                                               "documents/Подтверждение_отгрузки_.._up.xml",
                                               "documents/Подтверждение_отгрузки__etc_passwd.xml"));
}

/// A user who types a path means it: it is his own choice, wherever it leads.
TEST_F(Security, AFileIsWrittenWhereTheUserSaysAndNothingIsLeftBeside) {
  Conversation editor = supplier.startOffLine();
  openSaving(editor);
  saveAs(editor, (supplier.place.documents() / "../named.xml").string());
  EXPECT_THAT(editor.answerAll(), IsEmpty());
  EXPECT_THAT(newFiles(), UnorderedElementsAre("named.xml"));
}

TEST_F(Security, ANameWithANulIsNoText) {
  Conversation editor = supplier.startOffLine();
  openSaving(editor);
  const Json closing = editor.sayText(
      R"({"do":"type","on":"DlgWczytajZapisz.txtAwizoPlik","text":"a.xml\u0000.txt"})");
  EXPECT_EQ(closing["ok"], false);
  EXPECT_THAT(newFiles(), IsEmpty());
}

}  // namespace
}  // namespace awizo::test
