#include "package_desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

std::string place(const std::string& number, const std::string& iln) {
  return "<localization><number>" + number + "</number><iln>" + iln +
         "</iln><address>ул. Мира</address></localization>";
}

std::string places(const std::string& entries) {
  return "<localizations>" + entries + "</localizations>";
}

class Localizations : public ::testing::Test, public PackageDesk {
 protected:
  const std::vector<std::string>& names() const { return dialog.cboxLokalizacja.rows(); }
  const std::vector<std::string>& ilns() const { return dialog.cboxILNLokalizacji.rows(); }
  void open() {
    show([] {});
  }
  std::string logText() { return locale.fromSingleByte(files.bytes("c:\\log")); }
};

TEST_F(Localizations, WithoutACatalogueBothListsAreEmptyAndTakeTyping) {
  show([&] {
    dialog.cboxLokalizacja.userType("Магазин");
    dialog.cboxILNLokalizacji.userType("9520002000026");
    EXPECT_EQ(dialog.cboxLokalizacja.text(), "Магазин");
    EXPECT_EQ(dialog.cboxILNLokalizacji.text(), "9520002000026");
  });
  EXPECT_THAT(names(), IsEmpty());
  EXPECT_THAT(ilns(), IsEmpty());
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(Localizations, RowsStandInTheOrderOfTheirNumbersAndTheLastIsNotOffered) {
  loadPlaces(places(place("Магазин 3", "33") + place("ёлка", "44") + place("магазин 1", "11") +
                    place("Магазин 2", "22")));
  open();
  EXPECT_THAT(names(), ElementsAre("ёлка", "магазин 1", "Магазин 2"));
  EXPECT_THAT(ilns(), ElementsAre("44", "11", "22"));
  EXPECT_EQ(dialog.cboxLokalizacja.style(), ListStyle::matchRequired);
  EXPECT_THAT(dialog.localizations().LocalizationNumbers,
              ElementsAre("Магазин 3", "ёлка", "магазин 1", "Магазин 2"));
  EXPECT_THAT(dialog.localizations().LocalizationIlns, ElementsAre("33", "44", "11", "22"));
  EXPECT_THAT(dialog.localizations().LocalizationOrder, ElementsAre(1, 2, 3, 0));
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(Localizations, ACatalogueOfTwoOffersOne) {
  loadPlaces(places(place("Б", "2") + place("А", "1")));
  open();
  EXPECT_THAT(names(), ElementsAre("А"));
  EXPECT_THAT(ilns(), ElementsAre("1"));
  EXPECT_EQ(dialog.cboxLokalizacja.style(), ListStyle::matchRequired);
}

TEST_F(Localizations, ASecondReadingAddsItsRowsAndDecidesOnTypingAnew) {
  loadPlaces(places(place("А", "1") + place("Б", "2")));
  open();
  loadPlaces(places(place("В", "3")));
  dialog.LoadLocalizationDictionary();
  EXPECT_THAT(names(), ElementsAre("А"));
  EXPECT_EQ(dialog.cboxLokalizacja.style(), ListStyle::freeTyping);
}

TEST_F(Localizations, ACatalogueOfOneOffersNoneAndTakesTyping) {
  loadPlaces(places(place("А", "1")));
  open();
  EXPECT_THAT(names(), IsEmpty());
  EXPECT_EQ(dialog.cboxLokalizacja.style(), ListStyle::freeTyping);
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(Localizations, AnEmptyCatalogueOffersNone) {
  loadPlaces("<localizations/>");
  open();
  EXPECT_THAT(names(), IsEmpty());
  EXPECT_EQ(dialog.cboxLokalizacja.style(), ListStyle::freeTyping);
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(Localizations, AMissingValueReadsAsMinusOne) {
  loadPlaces(places("<localization><number>А</number></localization>" +
                    std::string("<localization><iln>5</iln></localization>") + place("Я", "9")));
  open();
  EXPECT_THAT(names(), ElementsAre("-1", "А"));
  EXPECT_THAT(ilns(), ElementsAre("5", "-1"));
}

TEST_F(Localizations, ChildrenOfAnotherKindCountAsPlacesWithoutValues) {
  loadPlaces(
      places("<!-- closed --><other><number>x</number></other>"
             "<localization xmlns='urn:o'><number xmlns=''>А</number></localization>" +
             place("А", "1") + place("Я", "9")));
  open();
  EXPECT_THAT(names(), ElementsAre("-1", "-1", "-1", "А"));
  EXPECT_THAT(ilns(), ElementsAre("-1", "-1", "-1", "1"));
}

TEST_F(Localizations, EqualNumbersAreOfferedEachWithItsILN) {
  loadPlaces(places(place("А", "1") + place("А", "2") + place("Я", "9")));
  open();
  EXPECT_THAT(names(), ElementsAre("А", "А"));
  EXPECT_THAT(ilns(), ::testing::UnorderedElementsAre("1", "2"));
}

TEST_F(Localizations, ACatalogueWithoutItsListIsAnError) {
  loadPlaces("");
  open();
  EXPECT_THAT(boxes(),
              ElementsAre("Произошла ошибка в LoadLocalizationDictionary() (Opak)|critical|OK|"
                          "Object variable or With block variable not set"));
  open();
  EXPECT_THAT(boxes(), IsEmpty()) << "the catalogue is read once, whatever came of it";
}

TEST_F(Localizations, AReplyWithoutTheCatalogueOffersNone) {
  session.LocalizationsLoaded = session.LocalizationsDom->loadText(
      "<dictionary-response><document-content/>"
      "</dictionary-response>");
  open();
  EXPECT_THAT(names(), IsEmpty());
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(Localizations, TheListsAreFilledAtTheFirstShowingOnly) {
  open();
  EXPECT_TRUE(dialog.LocalizationsFilled);
  loadPlaces(places(place("А", "1") + place("Б", "2")));
  open();
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(Localizations, PickingOneOfAPairPicksTheOther) {
  loadPlaces(places(place("А", "1") + place("Б", "2") + place("Я", "9")));
  show([&] {
    dialog.cboxLokalizacja.userChoose(1);
    EXPECT_EQ(dialog.cboxILNLokalizacji.text(), "2");
    dialog.cboxILNLokalizacji.userChoose(0);
    EXPECT_EQ(dialog.cboxLokalizacja.text(), "А");
  });
}

TEST_F(Localizations, TypingARowsTextPicksItsPair) {
  loadPlaces(places(place("А", "1") + place("Б", "2") + place("Я", "9")));
  show([&] {
    dialog.cboxILNLokalizacji.userType("2");
    EXPECT_EQ(dialog.cboxLokalizacja.text(), "Б");
    dialog.cboxLokalizacja.userType("А");
    EXPECT_EQ(dialog.cboxILNLokalizacji.text(), "1");
  });
}

TEST_F(Localizations, ATextThatIsNoRowTakesThePairAwayAndStays) {
  loadPlaces(places(place("А", "1") + place("Б", "2") + place("Я", "9")));
  show([&] {
    dialog.cboxILNLokalizacji.userChoose(1);
    dialog.cboxILNLokalizacji.userType("9520002000026");
    EXPECT_EQ(dialog.cboxLokalizacja.index(), -1);
    EXPECT_EQ(dialog.cboxLokalizacja.text(), "");
    EXPECT_EQ(dialog.cboxILNLokalizacji.text(), "9520002000026");
    dialog.cboxLokalizacja.userChoose(0);
    dialog.cboxLokalizacja.userType("Ж");
    EXPECT_EQ(dialog.cboxILNLokalizacji.index(), -1);
    EXPECT_EQ(dialog.cboxILNLokalizacji.text(), "");
    EXPECT_EQ(dialog.cboxLokalizacja.text(), "Ж");
    dialog.cboxLokalizacja.userType("");
  });
}

TEST_F(Localizations, ANameThatIsNoRowCantBeLeft) {
  loadPlaces(places(place("А", "1") + place("Б", "2") + place("Я", "9")));
  show([&] {
    dialog.cboxLokalizacja.userType("Ж");
    dialog.txtPackageDesc.userFocus();
    EXPECT_EQ(dialog.focus(), &dialog.cboxLokalizacja);
    dialog.cboxLokalizacja.userType("Б");
    dialog.txtPackageDesc.userFocus();
    EXPECT_EQ(dialog.focus(), &dialog.txtPackageDesc);
  });
  EXPECT_THAT(boxes(), ElementsAre("VIRDDesAdv|exclamation|OK|Invalid property value."));
}

TEST_F(Localizations, AnILNSetFromOutsideShowsItsPlace) {
  loadPlaces(places(place("А", "1") + place("Б", "2") + place("Я", "9")));
  open();
  dialog.cboxILNLokalizacji.setText("2");
  dialog.cboxILNLokalizacji_Change_PublicWrapper();
  EXPECT_EQ(dialog.cboxLokalizacja.text(), "Б");
  dialog.cboxILNLokalizacji.setText("77");
  dialog.cboxILNLokalizacji_Change_PublicWrapper();
  EXPECT_EQ(dialog.cboxLokalizacja.text(), "");
  EXPECT_EQ(dialog.cboxILNLokalizacji.text(), "77");
}

TEST_F(Localizations, TheLogTellsWhetherThereIsACatalogue) {
  session.log.OpenDebugLog("c:\\log", 4);
  open();
  EXPECT_THAT(logText(), HasSubstr("10:15 LoadLocalizationDictionary: xml_loc_loaded = False\r\n"));
  EXPECT_THAT(logText(), Not(HasSubstr("slownika")));
}

TEST_F(Localizations, TheLogTellsOfTheReading) {
  session.log.OpenDebugLog("c:\\log", 4);
  loadPlaces(places(place("А", "1") + place("Б", "2")));
  show([&] { dialog.cboxLokalizacja.userChoose(0); });
  const std::string time = "21.11.2026 10:15 ";
  EXPECT_THAT(logText(), HasSubstr(time + "LoadLocalizationDictionary: xml_loc_loaded = True\r\n" +
                                   time + "Form_Load start przetwarzania slownika lokalizacji\r\n" +
                                   time + "Form_Load przetworzono slownik lokalizacji\r\n" + time +
                                   "cboxLokalizacja_Change start\r\n" + time +
                                   "cboxLokalizacja_Change koniec\r\n"));
}

TEST_F(Localizations, TheLogTellsTheEndAlsoWithoutACatalogueInTheReply) {
  session.log.OpenDebugLog("c:\\log", 4);
  session.LocalizationsLoaded = session.LocalizationsDom->loadText("<dictionary-response/>");
  open();
  EXPECT_THAT(logText(), HasSubstr("Form_Load przetworzono slownik lokalizacji"));
}

}  // namespace
}  // namespace awizo::test
