#include "packagedialog/localization_dictionary.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The dictionary alone, without the dialog that shows it.
struct Places : ::testing::Test {
  TestEditor test;
  Sorter sorter{test.screen, test.editor.conversions};
  LocalizationDictionary places;

  void read(const std::string& entries) {
    const auto document = test.document("<localizations>" + entries + "</localizations>");
    places.read(document->root().children(), sorter);
  }
  static std::string place(const std::string& number, const std::string& iln) {
    return "<localization><number>" + number + "</number><iln>" + iln + "</iln></localization>";
  }
};

TEST_F(Places, KeepTheirOrderAndAreOfferedSortedWithoutTheLast) {
  read(place("в", "3") + place("А", "1") + place("Б", "2"));
  EXPECT_THAT(places.LocalizationNumbers, ElementsAre("в", "А", "Б"));
  EXPECT_THAT(places.LocalizationIlns, ElementsAre("3", "1", "2"));
  EXPECT_THAT(places.LocalizationOrder, ElementsAre(1, 2, 0));
  EXPECT_THAT(places.numberRows(), ElementsAre("А", "Б"));
  EXPECT_THAT(places.ilnRows(), ElementsAre("1", "2"));
}

TEST_F(Places, OfOneOrNoEntryOfferNothing) {
  read(place("А", "1"));
  EXPECT_THAT(places.LocalizationNumbers, ElementsAre("А"));
  EXPECT_THAT(places.numberRows(), IsEmpty());
  read("");
  EXPECT_THAT(places.LocalizationNumbers, ElementsAre(""));
  EXPECT_THAT(places.ilnRows(), IsEmpty());
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_F(Places, ReadAgainForgetTheEarlierOnes) {
  read(place("А", "1") + place("Б", "2") + place("В", "3"));
  read(place("Я", "9") + place("Ю", "8"));
  EXPECT_THAT(places.numberRows(), ElementsAre("Ю"));
  EXPECT_THAT(places.LocalizationOrder, ElementsAre(1, 0));
}

TEST_F(Places, GiveTheSortAStackOfTheirSize) {
  read(place("А", "1") + place("Б", "2") + place("В", "3"));
  EXPECT_EQ(sorter.SplitLeft.size(), 5U);
}

}  // namespace
}  // namespace awizo::test
