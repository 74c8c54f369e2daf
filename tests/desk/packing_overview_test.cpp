#include "desk/packing_overview.h"

#include <gmock/gmock.h>

#include <ctime>

#include "platform/text.h"
#include "support/documents.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct PackingOverviewTest : ::testing::Test {
  explicit PackingOverviewTest(std::string_view localeName = "ru_RU") : test(localeName) {}

  void putLine(int row, std::string_view name, std::string_view despatched, std::string_view packed,
               std::string_view references, std::string_view unit = "PCE") {
    Table& lines = test.form.grdPozycje;
    lines.setCell(row, GRD_POZ_NAME, name);
    lines.setCell(row, GRD_POZ_UNIT, unit);
    lines.setCell(row, GRD_POZ_QTY_DESPATCHED, despatched);
    lines.setCell(row, GRD_POZ_PACKED_QTY, packed);
    lines.setCell(row, GRD_POZ_PACK_REFS, references);
  }
  /// "level name: quantity" of each place.
  std::vector<std::string> places() const {
    std::vector<std::string> texts;
    for (const PackingPlace& place : packingOverview(test.editor).places) {
      texts.push_back(joined({std::to_string(place.level), " ", place.name, ": ", place.quantity}));
    }
    return texts;
  }

  TestEditor test;
};

struct AmericanPackingOverview : PackingOverviewTest {
  AmericanPackingOverview() : PackingOverviewTest("en_US") {}
};

TEST_F(PackingOverviewTest, ShowsPackagesAsATreeWithWhatIsInThemAndInThoseInside) {
  putPackages(test.editor, 4, [](int row) { return row == 2 || row == 4 ? 1 : 0; });
  putLines(test.editor, 3);
  putLine(1, "Чай", "8,250", "8,250", "3@П2@2@7,250$5@П4@2@1,000");
  putLine(2, "Рис", "2,500", "2,500", "3@П2@2@2,500", "KGM");
  putLine(3, "Соль", "4,000", "1,000", "2@П1@1@1,000");
  EXPECT_THAT(places(), ElementsAre("1 П1: 9,25 шт. · 2,5 кг", "2 3 Соль: 1 шт.",
                                    "2 П2: 7,25 шт. · 2,5 кг", "3 1 Чай: 7,25 шт.",
                                    "3 2 Рис: 2,5 кг", "2 П4: 1 шт.", "3 1 Чай: 1 шт.", "1 П3: "));
}

TEST_F(PackingOverviewTest, CountsWhatNoSumHolds) {
  putPackages(test.editor, 2, [](int row) { return row == 2 ? 1 : 0; });
  putLines(test.editor, 3);
  putLine(1, "Чай", "8,250", "8,250", "3@П2@2@много");
  putLine(2, "Рис", "2,500", "2,500", "2@П1@1@2,500", "KGM");
  putLine(3, "Соль", "2,500", "2,500", "2@П1@1@-1", "KGM");
  EXPECT_THAT(places(),
              ElementsAre("1 П1: 2,5 кг · не сложено: 2", "2 2 Рис: 2,5 кг", "2 3 Соль: -1 кг",
                          "2 П2: не сложено: 1", "3 1 Чай: много шт."));
}

TEST_F(PackingOverviewTest, TellsOfEachLineHowMuchOfItIsPacked) {
  putLines(test.editor, 4);
  putLine(1, "Чай", "8,250", "8,250", "2@П1@1@8,250");
  putLine(2, "Рис", "2,500", "1,000", "2@П1@1@1,000");
  putLine(3, "Соль", "1,000", "2,000", "2@П1@1@2,000");
  putLine(4, "Кофе", "много", "0,000", "");
  const PackingOverview overview = packingOverview(test.editor);
  std::vector<std::string> packed;
  std::vector<int> whole;
  for (const PackingLine& line : overview.lines) {
    packed.push_back(line.packed);
    if (line.isWhole) whole.push_back(line.row);
  }
  EXPECT_THAT(packed, ElementsAre("8,25 из 8,25", "1 из 2,5", "2 из 1", "0 из много"));
  EXPECT_THAT(whole, ElementsAre(1, 3));
  EXPECT_EQ(overview.summary, "упаковано 2 из 4 строк");
}

TEST_F(AmericanPackingOverview, WritesNumbersInTheLocalesForm) {
  putPackages(test.editor, 1, [](int) { return 0; });
  putLines(test.editor, 1);
  putLine(1, "Чай", "8.250", "7.250", "2@П1@1@7.250");
  EXPECT_THAT(places(), ElementsAre("1 П1: 7.25 шт.", "2 1 Чай: 7.25 шт."));
  EXPECT_EQ(packingOverview(test.editor).lines.front().packed, "7.25 из 8.25");
  EXPECT_EQ(packingOverview(test.editor).summary, "упаковано 0 из 1 строки");
}

TEST_F(PackingOverviewTest, LeadsBackToTheRowsOfTheTables) {
  putPackages(test.editor, 3, [](int row) { return row == 2 ? 3 : 0; });
  putLines(test.editor, 2);
  putLine(2, "Чай", "1,000", "1,000", "3@П2@2@1,000");
  const std::vector<PackingPlace> places = packingOverview(test.editor).places;
  ASSERT_EQ(places.size(), 4U);
  EXPECT_EQ(places[1].package, 3) << "the package around stands below in the table";
  EXPECT_EQ(places[2].package, 2);
  EXPECT_EQ(places[2].serial, "3");
  EXPECT_EQ(places[3].package, 2);
  EXPECT_EQ(places[3].line, 2);
}

TEST_F(PackingOverviewTest, OfAnEmptyDocumentHoldsNothing) {
  const PackingOverview overview = packingOverview(test.editor);
  EXPECT_THAT(overview.lines, IsEmpty());
  EXPECT_THAT(overview.places, IsEmpty());
  EXPECT_EQ(overview.summary, "упаковано 0 из 0 строк");
}

TEST_F(PackingOverviewTest, SaysWhyItCanNotBeMade) {
  putLines(test.editor, 1424);
  EXPECT_EQ(packingOverview(test.editor).summary, "Overflow");
}

TEST_F(PackingOverviewTest, OfAChainOfAsManyPackagesAsThereCanBeTakesNoTimeToSpeakOf) {
  putPackages(test.editor, 2183, [](int row) { return row - 1; });
  putLines(test.editor, 1423);
  for (int row = 1; row <= 1423; ++row) {
    putLine(row, "Чай", "1,000", "1,000", joined({std::to_string(row + 700), "@П@1@1,000"}));
  }
  const std::clock_t start = std::clock();
  const PackingOverview overview = packingOverview(test.editor);
  const double taken = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  RecordProperty("milliseconds", std::to_string(taken * 1000));
  EXPECT_EQ(overview.places.size(), 2183U + 1423U);
  EXPECT_EQ(overview.places.front().quantity, "1423 шт.");
  EXPECT_LT(taken, 0.5);
}

}  // namespace
}  // namespace awizo::test
