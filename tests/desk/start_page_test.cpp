#include "desk/start_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/control/test_control.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// A user before the start page; the folder is set up as a test wants it.
class StartPageTest : public ::testing::Test, public TestSurroundings {
 protected:
  static constexpr std::string_view folder = "c:\\VIRD";

  void setFolder() { settings.values["VIRD\\VirdActiveX\\OffLinePath"] = folder; }
  void putUser() { files.put("c:\\VIRD\\userinfo.xml", TestControl::userInfo()); }
  void putPartner(const std::string& iln, const std::string& name) {
    files.put("c:\\VIRD\\9520001000010_" + iln + "_partner_INFO.xml",
              TestControl::partnerInfo(name));
  }
  std::string document(const std::string& buyer) {
    files.put("c:\\docs\\a.xml",
              "<Document-DespatchAdvice><DespatchAdvice-Parties><Buyer><ILN>" + buyer +
                  "</ILN></Buyer></DespatchAdvice-Parties></Document-DespatchAdvice>");
    return "c:\\docs\\a.xml";
  }
  bool offersWork() const { return page.btnOffLine.enabled() && page.btnOpen.enabled(); }

  StartPage page{platform};
};

TEST_F(StartPageTest, OffersThePartnersWhoseFilesLieInTheFolder) {
  setFolder();
  putUser();
  putPartner("9520002000019", "ООО Покупатель");
  putPartner("9520002000027", "");
  files.put("c:\\VIRD\\9999999999999_9520002000035_partner_INFO.xml", "<of-another-seller/>");
  files.put("c:\\VIRD\\9520001000010_old_partner_INFO.xml", "<no-iln/>");
  page.show("", false);
  EXPECT_EQ(page.lblFolder.caption(), folder);
  EXPECT_EQ(page.lblSeller.caption(), "ООО Поставщик");
  EXPECT_THAT(page.cboxPartner.rows(),
              ElementsAre("ООО Покупатель (9520002000019)", "9520002000027"));
  EXPECT_EQ(page.cboxPartner.index(), 0);
  EXPECT_FALSE(page.lblMissing.visible());
  EXPECT_FALSE(page.lblWhy.visible());
  EXPECT_FALSE(page.btnAgain.visible());
  EXPECT_TRUE(offersWork());
}

TEST_F(StartPageTest, SaysWhatIsMissing) {
  page.show("", false);
  EXPECT_EQ(page.lblMissing.caption(), "Папка для работы без связи ещё не выбрана.");
  setFolder();
  page.refresh();
  EXPECT_THAT(page.lblMissing.caption(), HasSubstr("нет файла userinfo.xml"));
  putUser();
  page.refresh();
  EXPECT_THAT(page.lblMissing.caption(), HasSubstr("9520001000010_…_partner_INFO.xml"));
  EXPECT_TRUE(page.lblMissing.visible());
  EXPECT_FALSE(offersWork());
  putPartner("9520002000019", "ООО Покупатель");
  page.refresh();
  EXPECT_FALSE(page.lblMissing.visible());
  EXPECT_TRUE(offersWork());
}

TEST_F(StartPageTest, ChoosesTheFolderByTheDialog) {
  files.put("c:\\home\\VIRD\\userinfo.xml", TestControl::userInfo());
  page.show("", false);
  face.onModal([&] {
    EXPECT_EQ(page.dlgFolder.btnWczytaj.caption(), "&Ustaw");
    page.dlgFolder.DirList.userOpen("c:\\home");
    page.dlgFolder.ImageWczytaj.userClick();
  });
  page.btnFolder.userClick();
  EXPECT_EQ(page.lblFolder.caption(), "c:\\home\\VIRD");
  EXPECT_EQ(page.lblSeller.caption(), "ООО Поставщик");
}

TEST_F(StartPageTest, HandsTheUsersChoiceToTheHost) {
  setFolder();
  putUser();
  putPartner("9520002000019", "ООО Покупатель");
  putPartner("9520002000027", "АО Второй");
  std::vector<std::string> chosen;
  page.onOffLine = [&](const Partner& partner) { chosen.push_back("work " + partner.iln); };
  page.onOpen = [&](const Partner& partner) { chosen.push_back("open " + partner.name); };
  page.onLaunchFile = [&] { chosen.push_back("launch"); };
  page.onAgain = [&] { chosen.push_back("again"); };
  page.show("Начать не удалось.", true);
  EXPECT_EQ(page.lblWhy.caption(), "Начать не удалось.");
  page.btnOffLine.userClick();
  page.cboxPartner.userChoose(1);
  page.btnOpen.userClick();
  page.btnLaunchFile.userClick();
  page.btnAgain.userClick();
  EXPECT_THAT(chosen, ElementsAre("work 9520002000019", "open АО Второй", "launch", "again"));
}

TEST_F(StartPageTest, FindsThePartnerOfASavedDocument) {
  setFolder();
  putUser();
  putPartner("9520002000019", "ООО Покупатель");
  page.show("", false);
  const FoundPartner found = page.partnerOf(document("9520002000019"));
  ASSERT_NE(found.partner, nullptr);
  EXPECT_EQ(found.partner->name, "ООО Покупатель");
  EXPECT_EQ(page.partnerOf(document("1")).why,
            "Файл не открыт, в папке нет данных его покупателя (ILN 1): c:\\docs\\a.xml");
  files.put("c:\\docs\\b.xml", "not XML");
  for (const char* path : {"c:\\docs\\b.xml", "c:\\docs\\none.xml"}) {
    EXPECT_THAT(page.partnerOf(path).why, HasSubstr("не подтверждение отгрузки"));
  }
}

TEST_F(StartPageTest, OffersToGoOnWithWorkThatWasLeftBehind) {
  page.show("", false);
  EXPECT_FALSE(page.frmUnfinished.visible());
  EXPECT_FALSE(page.btnGoOn.visible());
  journal::UnfinishedWork work;
  work.record = "a record";
  work.summary = {
      .number = "ТН-6", .orderNumber = "", .time = "23:14", .lines = 25, .packedLines = 12};
  page.offer(work);
  EXPECT_EQ(page.lblUnfinished.caption(), "ТН-6 от 23:14, упаковано 12 из 25");
  std::string wanted;
  page.onGoOn = [&](const journal::UnfinishedWork& chosen) { wanted = chosen.record; };
  page.btnGoOn.userClick();
  EXPECT_EQ(wanted, "a record");
  page.offer(std::nullopt);
  EXPECT_FALSE(page.btnGoOn.visible());
}

TEST_F(StartPageTest, StandsOnAScreenOfItsOwn) {
  page.show("", false);
  EXPECT_EQ(page.screen().top(), &page);
  EXPECT_TRUE(page.takesInput());
}

}  // namespace
}  // namespace awizo::test
