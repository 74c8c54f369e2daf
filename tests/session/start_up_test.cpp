#include "platform/forms/table.h"
#include "support/control/test_control.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class StartUp : public ::testing::Test, public TestControl {
 protected:
  StartUp() { prepareFolder(); }

  void prepareOffLine() {
    bag.values["OnLine"] = "Off";
    files.put(partnerFile, partnerInfo("ООО Покупатель"));
  }
  /// Whether the start-up came to its end: the header panel got its defaults.
  bool finished() const { return form.txtGoodsIdentity.text() == "0"; }
  void expectFatal(const std::string& text) {
    EXPECT_THAT(boxes(), ElementsAre("VIRD|critical|OK|" + text));
    EXPECT_FALSE(control.Enabled());
    EXPECT_FALSE(finished());
  }
};

// Before anything is read.

TEST_F(StartUp, ResetsQuestionAndSerial) {
  prepareOffLine();
  create();
  session.SendQuestionAsked = true;
  form.LastPackageSerial = 9;
  control.UserControl_Show();
  EXPECT_FALSE(session.SendQuestionAsked);
  EXPECT_EQ(form.LastPackageSerial, 1);
}

TEST_F(StartUp, HidesPricesAndTaxRates) {
  prepareOffLine();
  start();
  DlgDodaj& dialog = control.dlgDodaj;
  for (const Control* hidden : std::initializer_list<const Control*>{
           &dialog.lblCenaNetto, &dialog.txtCenaNetto, &dialog.Label7, &dialog.txtAmount,
           &dialog.Label8, &dialog.cboxStawkaVAT, &form.lblStawkaVAT, &form.comboStawkaVAT,
           &form.btnUzupelnij, &form.btnNadpisz}) {
    EXPECT_FALSE(hidden->visible()) << hidden->name();
  }
  EXPECT_TRUE(dialog.cboxKodVAT.visible());
  EXPECT_TRUE(form.btnUzupelnij2.visible());
  EXPECT_TRUE(form.comboCountry.visible());
}

TEST_F(StartUp, LoadsTheLineDialogOnlyAfterItHasEnded) {
  prepareOffLine();
  create();
  control.dlgDodaj.touch();
  EXPECT_FALSE(control.dlgDodaj.loaded());
  control.UserControl_Show();
  EXPECT_FALSE(control.dlgDodaj.loaded());
  control.dlgDodaj.touch();
  EXPECT_TRUE(control.dlgDodaj.loaded());
}

TEST_F(StartUp, EmptiesTimesAndTheOrdersDateWhichOpensOnToday) {
  prepareOffLine();
  start();
  EXPECT_EQ(form.txtDespatchAdviceTime.time(), std::nullopt);
  EXPECT_EQ(form.txtEstimatedDeliveryTime.time(), std::nullopt);
  EXPECT_EQ(form.dpDataZam.date(), std::nullopt);
  EXPECT_EQ(form.dpDataZam.lastDate(), makeDate(2026, 11, 21));
}

TEST_F(StartUp, EmptiesTheWarningAboutWeights) {
  prepareOffLine();
  EXPECT_EQ(form.lblNiepelnaWagaKom.caption(), "Не для всех позиций указан вес");
  start();
  EXPECT_EQ(form.lblNiepelnaWagaKom.caption(), "");
}

TEST_F(StartUp, FillsTheListsOfTheMainForm) {
  prepareOffLine();
  start();
  EXPECT_THAT(form.comboStawkaVAT.rows(), ElementsAre("", "0", "10", "18"));
  EXPECT_THAT(
      form.comboCountry.rows(),
      ElementsAre("(RU)Россия", "(BY)Белоруссия", "(KZ)Казахстан", "(CN)Китай", "(LV)Латвия",
                  "(LT)Литва", "(PL)Польша", "(UA)Украина", "(FI)Финляндия", "(EE)Эстония"));
}

// The local folder.

TEST_F(StartUp, WithoutALocalFolderIsFatalOffLineAndOnLine) {
  settings.values.clear();
  start();
  expectFatal("Нет определённого пути доступа к запасам.");

  TestControl onLine;
  onLine.preparePage();
  onLine.start();
  EXPECT_THAT(onLine.face.texts(), ElementsAre("Нет определённого пути доступа к запасам."));
  EXPECT_FALSE(onLine.control.Enabled());
  EXPECT_THAT(onLine.http.sent, IsEmpty());
}

TEST_F(StartUp, DisablesTheControlOnlyWhenTheUserHasReadWhy) {
  settings.values.clear();
  create();
  bool enabledAtBox = false;
  face.whileBoxIsOpen([&](const MessageBox&) { enabledAtBox = control.Enabled(); });
  control.UserControl_Show();
  EXPECT_TRUE(enabledAtBox);
  EXPECT_FALSE(control.Enabled());
}

TEST_F(StartUp, TakesTheFolderFromTheSettings) {
  prepareOffLine();
  start();
  EXPECT_EQ(session.OffLinePathValue, "c:\\VIRD");
}

TEST_F(StartUp, KeepsALogUnderThePartnersName) {
  prepareOffLine();
  bag.values["DebugLevel"] = "4";
  bag.values["PartnerName"] = "X";
  start();
  EXPECT_THAT(files.bytes("c:\\VIRD\\XAwizo.log"),
              ::testing::StartsWith("21.11.2026 10:15 Start logowania...\r\n"));
  EXPECT_EQ(session.log.LogLevel, 4);
}

TEST_F(StartUp, KeepsNoLogBelowLevelOneOrWithoutALevel) {
  for (const char* level : {"0", "-1", "", "abc", "40000", "0,5", "0,6", "0,999"}) {
    TestControl other;
    other.prepareFolder();
    other.bag.values["OnLine"] = "Off";
    other.bag.values["DebugLevel"] = level;
    other.files.put(partnerFile, partnerInfo("ООО Покупатель"));
    other.start();
    EXPECT_FALSE(other.files.has(logFile)) << level;
    EXPECT_THAT(other.boxes(), IsEmpty()) << level;
  }
}

TEST_F(StartUp, KeepsALogFromLevelOneUpWhichAFractionDoesNotRaiseToIt) {
  const std::pair<const char*, int> levels[] = {{"1", 1}, {"1,4", 1}, {"1,6", 2}};
  for (const auto& [level, expected] : levels) {
    TestControl other;
    other.prepareFolder();
    other.bag.values["DebugLevel"] = level;
    other.start();
    EXPECT_TRUE(other.files.has(logFile)) << level;
    EXPECT_EQ(other.session.log.LogLevel, expected) << level;
  }
}

TEST_F(StartUp, AnOpenLogKeepsItsLevel) {
  prepareOffLine();
  bag.values["DebugLevel"] = "4";
  start();
  control.setDebugLevel("0");
  session.log.WriteDebugLine("still traced", 4);
  EXPECT_THAT(logText(), ::testing::EndsWith("21.11.2026 10:15 still traced\r\n"));
}

TEST_F(StartUp, ALevelThatIsSetLaterOpensNoLog) {
  prepareOffLine();
  start();
  control.setDebugLevel("4");
  session.log.WriteDebugLine("not traced", 4);
  EXPECT_FALSE(files.has(logFile));
}

TEST_F(StartUp, OpensTheLogBeforeItReadsTheUsersFile) {
  prepareOffLine();
  bag.values["DebugLevel"] = "4";
  files.put("c:\\VIRD\\userinfo.xml", "<broken");
  start();
  expectFatal("Нет или неправильный формат файла XML о пользователе.");
  EXPECT_THAT(logText(), HasSubstr("Start logowania..."));
}

TEST_F(StartUp, GoesOnWithoutALogThatCantBeWritten) {
  prepareOffLine();
  bag.values["DebugLevel"] = "4";
  files.failWriting(logFile, errors::permissionDenied());
  start();
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_TRUE(finished());
}

// Who the user is.

TEST_F(StartUp, ReadsTheUsersFirm) {
  prepareOffLine();
  start();
  EXPECT_TRUE(session.UserInfoLoaded);
  EXPECT_EQ(session.SellerILN, seller);
  EXPECT_EQ(session.SellerNIP, "7700000001");
  EXPECT_EQ(session.SellerName, "ООО Поставщик");
  EXPECT_EQ(session.SellerAccount, "40702");
}

TEST_F(StartUp, IsFatalWithoutTheUsersFile) {
  settings.values["VIRD\\VirdActiveX\\OffLinePath"] = "c:\\elsewhere";
  start();
  expectFatal("Нет или неправильный формат файла XML о пользователе.");
  EXPECT_FALSE(session.UserInfoLoaded);
}

TEST_F(StartUp, IsFatalWithAUsersFileThatIsNoXml) {
  for (const char* bytes : {"", "<user><partner-info>", "plain", "<a/><b/>"}) {
    TestControl other;
    other.prepareFolder();
    other.preparePage();
    other.files.put("c:\\VIRD\\userinfo.xml", bytes);
    other.start();
    EXPECT_THAT(other.boxes(), ElementsAre("VIRD|critical|OK|"
                                           "Нет или неправильный формат файла XML о пользователе."))
        << bytes;
    EXPECT_FALSE(other.control.Enabled());
    EXPECT_THAT(other.http.sent, IsEmpty());
  }
}

TEST_F(StartUp, IsFatalWithAUsersFileThatCantBeRead) {
  files.failReading("c:\\VIRD\\userinfo.xml", errors::permissionDenied());
  start();
  expectFatal("Нет или неправильный формат файла XML о пользователе.");
}

TEST_F(StartUp, ReadsAUsersFileInItsDeclaredEncoding) {
  prepareOffLine();
  const std::string text = "<?xml version=\"1.0\" encoding=\"windows-1251\"?>" + userInfo();
  files.put("c:\\VIRD\\userinfo.xml", locale.toSingleByte(text));
  start();
  EXPECT_EQ(session.SellerName, "ООО Поставщик");
}

TEST_F(StartUp, ReadsAUsersFileInUtf16ByItsByteOrderMark) {
  prepareOffLine();
  std::string bytes = "\xFF\xFE";
  for (const char letter : std::string("<u><partner-info><info><iln>9520001000010</iln>"
                                       "<name>Firma</name></info></partner-info></u>")) {
    bytes += {letter, '\0'};
  }
  files.put("c:\\VIRD\\userinfo.xml", bytes);
  start();
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_EQ(session.SellerName, "Firma");
}

TEST_F(StartUp, IsFatalWithAUsersFileThatReachesOutside) {
  prepareOffLine();
  files.put("c:\\VIRD\\userinfo.xml",
            "<!DOCTYPE u [<!ENTITY x SYSTEM \"file:///etc/hostname\">]>"
            "<u><partner-info><info><name>&x;</name></info></partner-info></u>");
  start();
  expectFatal("Нет или неправильный формат файла XML о пользователе.");
}

TEST_F(StartUp, AUsersFileWithoutTheFirmIsNoError) {
  bag.values["OnLine"] = "Off";
  files.put("c:\\VIRD\\userinfo.xml", "<user><other/></user>");
  files.put("c:\\VIRD\\_9520002000019_partner_INFO.xml", partnerInfo("ООО Покупатель"));
  create();
  session.SellerILN = "old";
  session.SellerNIP = "kept";
  control.UserControl_Show();
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_EQ(session.SellerILN, "");
  EXPECT_EQ(session.SellerNIP, "kept");
  EXPECT_EQ(session.BuyerName, "ООО Покупатель");
}

TEST_F(StartUp, MissingDetailsOfTheFirmAreEmpty) {
  bag.values["OnLine"] = "Off";
  files.put("c:\\VIRD\\userinfo.xml",
            "<user><partner-info><info><iln>9520001000010</iln></info></partner-info></user>");
  files.put(partnerFile,
            "<partner-info-response><partner-info><info/></partner-info></partner-info-response>");
  start();
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_EQ(session.SellerNIP, "");
  EXPECT_EQ(session.SellerName, "");
  EXPECT_EQ(session.SellerAccount, "");
  EXPECT_EQ(session.BuyerNIP, "");
  EXPECT_EQ(session.BuyerName, "");
  EXPECT_EQ(session.BuyerAccount, "");
}

TEST_F(StartUp, AFirmWithoutANumberOfItsOwnHasTheEmptyOne) {
  bag.values["OnLine"] = "Off";
  files.put("c:\\VIRD\\userinfo.xml",
            "<user><partner-info><info><name>ООО Продавец</name></info></partner-info></user>");
  files.put("c:\\VIRD\\_9520002000019_partner_INFO.xml", partnerInfo("ООО Покупатель"));
  start();
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_EQ(session.SellerILN, "");
  EXPECT_EQ(session.SellerName, "ООО Продавец");
  EXPECT_EQ(session.BuyerName, "ООО Покупатель");
}

// Off line.

TEST_F(StartUp, OffLineReadsThePartnersFileAndAsksNobody) {
  prepareOffLine();
  preparePage();
  start();
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_THAT(http.sent, IsEmpty());
  EXPECT_TRUE(session.PartnerInfoLoaded);
  EXPECT_EQ(session.BuyerILN, buyer);
  EXPECT_EQ(session.BuyerNIP, "7700000002");
  EXPECT_EQ(session.BuyerName, "ООО Покупатель");
  EXPECT_EQ(session.BuyerAccount, "40703");
  EXPECT_EQ(form.lblNameKupWart.caption(), "ООО Покупатель");
  EXPECT_EQ(form.lblILNSprzedWart.caption(), seller);
  EXPECT_EQ(form.HeaderBuyerILN, "");
  EXPECT_EQ(form.PartnersUrl, "");
  EXPECT_EQ(session.SessionCookie, "");
  EXPECT_FALSE(session.ProductCatalogLoaded);
  EXPECT_FALSE(session.LocalizationsLoaded);
  EXPECT_FALSE(form.OrderAnswer);
  EXPECT_TRUE(control.Enabled());
  EXPECT_TRUE(finished());
}

TEST_F(StartUp, OffLineIsFatalWithoutTheFactsOnThePartner) {
  const std::string none = "VIRD|critical|OK|Нет или неправильный формат файла XML о партнёре.";
  for (const char* bytes : {"", "<broken", "<partner-info-response><partner-info/>",
                            "<partner-info-response><partner-info/></partner-info-response>"}) {
    TestControl other;
    other.prepareFolder();
    other.bag.values["OnLine"] = "Off";
    other.files.put(partnerFile, bytes);
    other.start();
    EXPECT_THAT(other.boxes(), ElementsAre(none)) << bytes;
    EXPECT_FALSE(other.control.Enabled()) << bytes;
  }
  bag.values["OnLine"] = "Off";
  start();
  expectFatal("Нет или неправильный формат файла XML о партнёре.");
  EXPECT_EQ(session.SellerName, "ООО Поставщик");
}

TEST_F(StartUp, WithoutAHostPageWorksOffLineButLooksOnLine) {
  start();
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_THAT(http.sent, IsEmpty());
  EXPECT_EQ(form.lblOnLineStatus.caption(), "On-Line");
  EXPECT_TRUE(form.btnPrzeslij.visible());
  EXPECT_FALSE(session.PartnerInfoLoaded);
  EXPECT_TRUE(finished());
}

TEST_F(StartUp, WithAnEmptyCookieIsOnLine) {
  preparePage();
  page.pageCookie = "";
  http.reply(partnerInfo("ООО Покупатель"));
  http.reply("<none/>");
  http.reply("<none/>");
  http.reply("<none/>");
  start();
  EXPECT_EQ(http.sent.size(), 4U);
  EXPECT_EQ(session.SessionCookie, "");
}

TEST_F(StartUp, EndsWithoutAHeaderWhenThePagesAddressCantBeRead) {
  preparePage();
  page.pageUrl.reset();
  start();
  EXPECT_THAT(boxes(), ElementsAre("Произошла ошибка в UserControl_Show()|critical|OK|"
                                   "Object variable or With block variable not set"));
  EXPECT_TRUE(control.Enabled());
  EXPECT_FALSE(finished());
  EXPECT_EQ(session.SellerName, "ООО Поставщик");
  control.dlgDodaj.touch();
  EXPECT_TRUE(control.dlgDodaj.loaded());
}

}  // namespace
}  // namespace awizo::test
