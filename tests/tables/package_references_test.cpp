#include "tables/package_references.h"

#include "support/test_editor.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using Boxes = std::vector<std::string>;

/// A line dialog's table before anything was assigned.
struct GridTest : testing::Test {
  TestEditor test;
  Form dialog{test.screen, "DlgDodaj"};
  Table grid{dialog, "grdPozycje", 5};
};

TEST_F(GridTest, BecomesAReferenceString) {
  TestEditor::fill(grid, {{"", "2", "Коробка", "1", "5,000"}, {"", "3", "Поддон", "2", "2,500"}});
  EXPECT_EQ(GridToString(grid), "2@Коробка@1@5,000$3@Поддон@2@2,500");
}

TEST_F(GridTest, WithOneRowAndNoSerialIsTheEmptyText) {
  EXPECT_EQ(GridToString(grid), "");
  TestEditor::fill(grid, {{"", "", "Коробка", "1", "5,000"}});
  EXPECT_EQ(GridToString(grid), "");
}

TEST_F(GridTest, KeepsEmptyCellsOfSeveralRows) {
  TestEditor::fill(grid, {{}, {"", "2", "A", "1", "1"}});
  EXPECT_EQ(GridToString(grid), "@@@$2@A@1@1");
}

TEST_F(GridTest, BeyondTheFlatIndexIsTheEmptyTextWithoutAMessage) {
  grid.setRows(6554);
  EXPECT_EQ(GridToString(grid), "");
  grid.setRows(40000);
  EXPECT_EQ(GridToString(grid), "");
  EXPECT_TRUE(test.face.boxes().empty());
}

TEST_F(GridTest, IsFilledFromAReferenceString) {
  StringToGrid(grid, "2@Коробка@1@5,000$3@Поддон@2@2,500");
  EXPECT_EQ(grid.rows(), 3);
  EXPECT_THAT(TestEditor::row(grid, 1), ElementsAre("", "2", "Коробка", "1", "5,000"));
  EXPECT_THAT(TestEditor::row(grid, 2), ElementsAre("", "3", "Поддон", "2", "2,500"));
}

TEST_F(GridTest, GetsItsHeadingsCentredAndWrapped) {
  grid.setCell(0, 1, "old");
  StringToGrid(grid, "");
  EXPECT_THAT(TestEditor::row(grid, 0),
              ElementsAre("№ п.п", "ID упаковки", "Описание упаковки", "Уровень", "Количество"));
  for (int column = 0; column < 5; ++column) {
    EXPECT_EQ(grid.look(0, column).alignment, Alignment::centre) << column;
    EXPECT_TRUE(grid.look(0, column).wrap) << column;
  }
}

TEST_F(GridTest, OfTheEmptyTextHasOneEmptyRow) {
  TestEditor::fill(grid, {{"", "2", "A", "1", "1"}, {"", "3", "B", "1", "1"}});
  StringToGrid(grid, "");
  EXPECT_EQ(grid.rows(), 2);
  EXPECT_THAT(TestEditor::row(grid, 1), testing::Each(""));
}

TEST_F(GridTest, TakesAsManyFieldsAsThereAre) {
  StringToGrid(grid, "2$3@B$4@C@1$5@D@1@2@more");
  EXPECT_THAT(TestEditor::row(grid, 1), ElementsAre("", "2", "", "", ""));
  EXPECT_THAT(TestEditor::row(grid, 2), ElementsAre("", "3", "B", "", ""));
  EXPECT_THAT(TestEditor::row(grid, 3), ElementsAre("", "4", "C", "1", ""));
  EXPECT_THAT(TestEditor::row(grid, 4), ElementsAre("", "5", "D", "1", "2"));
}

TEST_F(GridTest, StaysPartlyFilledAtAnEmptyReference) {
  StringToGrid(grid, "2@A@1@1$$3@B@1@1");
  EXPECT_EQ(grid.rows(), 4);
  EXPECT_THAT(TestEditor::row(grid, 1), ElementsAre("", "2", "A", "1", "1"));
  EXPECT_THAT(TestEditor::row(grid, 2), testing::Each(""));
  EXPECT_THAT(TestEditor::row(grid, 3), testing::Each(""));
  EXPECT_TRUE(test.face.boxes().empty());
}

TEST_F(GridTest, StaysPartlyFilledWhereTheFlatIndexEnds) {
  std::string text = "2@A@1@1";
  for (int i = 1; i < 6554; ++i) text += "$2@A@1@1";
  StringToGrid(grid, text);
  EXPECT_EQ(grid.rows(), 6555);
  EXPECT_EQ(grid.cell(6553, 2), "A");
  EXPECT_EQ(grid.cell(6553, 3), "");
  EXPECT_EQ(grid.cell(6554, 1), "");
}

struct ReferencesTest : testing::Test {
  explicit ReferencesTest(std::string_view localeName = "ru_RU") : test(localeName) {}

  std::string remove(std::string_view text, const std::vector<std::string>& serials) {
    const std::string result = RemoveOldPackRef(test.editor, text, serials);
    EXPECT_EQ(RemoveOldPackRef(test.editor, text, SerialSet(serials)), result);
    return result;
  }

  TestEditor test;
};

struct AmericanReferencesTest : ReferencesTest {
  AmericanReferencesTest() : ReferencesTest("en_US") {}
};

TEST_F(ReferencesTest, RemovingTheFirstLeavesNoSeparatorInFront) {
  EXPECT_EQ(remove("2@A@1@1$3@B@1@2", {"2"}), "3@B@1@2");
  EXPECT_EQ(remove("2@A@1@1$3@B@1@2$4@C@1@3", {"2", "3"}), "4@C@1@3");
}

TEST_F(ReferencesTest, RemovingTheLastLeavesNoSeparatorBehind) {
  EXPECT_EQ(remove("2@A@1@1$3@B@1@2", {"3"}), "2@A@1@1");
}

TEST_F(ReferencesTest, RemovingTheMiddleOneLeavesItsNeighbours) {
  EXPECT_EQ(remove("a$b$c", {"b"}), "a$c");
}

TEST_F(ReferencesTest, RemovingAllLeavesTheEmptyText) {
  EXPECT_EQ(remove("2@A@1@1", {"2"}), "");
  EXPECT_EQ(remove("2@A@1@1$3@B@1@2", {"3", "2"}), "");
  EXPECT_EQ(remove("", {"2"}), "");
}

TEST_F(ReferencesTest, WholeSerialsAreCompared) {
  EXPECT_EQ(remove("12@A@1@1", {"2"}), "12@A@1@1");
  EXPECT_EQ(remove("2@A@1@1", {"12"}), "2@A@1@1");
  EXPECT_EQ(remove("2 @A@1@1", {"2"}), "2 @A@1@1");
}

TEST_F(ReferencesTest, TheSameSerialTwiceGoesTwice) {
  EXPECT_EQ(remove("2@A@1@1$3@B@1@2$2@A@1@3", {"2"}), "3@B@1@2");
}

TEST_F(ReferencesTest, NothingToRemoveKeepsAll) {
  EXPECT_EQ(remove("2@A@1@1$3@B@1@2", {}), "2@A@1@1$3@B@1@2");
}

TEST_F(ReferencesTest, FieldsBeyondTheFourthAreLostAndFewerStayFewer) {
  EXPECT_EQ(remove("2@A@1@1@more$3@B$4", {}), "2@A@1@1$3@B$4");
}

TEST_F(ReferencesTest, AnEmptyReferenceIsShownAsAnErrorAndGivesTheEmptyText) {
  EXPECT_EQ(RemoveOldPackRef(test.editor, "2@A@1@1$$3@B@1@2", std::vector<std::string>{}), "");
  EXPECT_EQ(describe(test.face.boxes()),
            Boxes{"Произошла ошибка в RemoveOldPackRef|critical|OK|Subscript out of range"});
}

TEST_F(ReferencesTest, RemovalIsLogged) {
  test.session.log.OpenDebugLog("c:\\a.log", 4);
  RemoveOldPackRef(test.editor, "2@A$3@B", std::vector<std::string>{"2"});
  RemoveOldPackRef(test.editor, "2@A", std::vector<std::string>{});
  const std::string stamp = "21.11.2026 10:15 ";
  EXPECT_EQ(test.files.bytes("c:\\a.log"),
            stamp + "Start logowania...\r\n" + stamp + "RemoveOldPackRef - INPUT: 2@A$3@B\r\n" +
                stamp + "RemoveOldPackRef - separator z przodu: $3@B\r\n" + stamp +
                "RemoveOldPackRef - OUTPUT: 3@B\r\n" + stamp + "RemoveOldPackRef - INPUT: 2@A\r\n" +
                stamp + "RemoveOldPackRef - OUTPUT: 2@A\r\n");
}

TEST_F(ReferencesTest, PackedQuantityIsTheSumWithThreeDecimals) {
  EXPECT_EQ(GetPackedQuantity(test.editor, "2@A@1@1,500$3@B@1@2,250"), "3,750");
  EXPECT_EQ(GetPackedQuantity(test.editor, "2@A@1@0,1$3@B@1@0,2"), "0,300");
}

TEST_F(AmericanReferencesTest, PackedQuantityHasThePointOfAPointLocale) {
  EXPECT_EQ(GetPackedQuantity(test.editor, "2@A@1@1.500$3@B@1@2.250"), "3.750");
  EXPECT_EQ(GetPackedQuantity(test.editor, ""), "0.000");
  // A comma groups digits here.
  EXPECT_EQ(GetPackedQuantity(test.editor, "2@A@1@1,500"), "1500.000");
}

TEST_F(ReferencesTest, PackedQuantityOfTheEmptyTextIsZero) {
  EXPECT_EQ(GetPackedQuantity(test.editor, ""), "0,000");
}

TEST_F(ReferencesTest, AReferenceOfThreeFieldsHasNoQuantity) {
  EXPECT_EQ(GetPackedQuantity(test.editor, "2@@1,5$3@B@1@2"), "2,000");
  EXPECT_EQ(GetPackedQuantity(test.editor, "$$"), "0,000");
}

TEST_F(ReferencesTest, AQuantityThatIsNoNumberIsShownAndGivesTheEmptyText) {
  EXPECT_EQ(GetPackedQuantity(test.editor, "2@A@1@1,5$3@B@1@ABC"), "");
  EXPECT_EQ(GetPackedQuantity(test.editor, "2@A@1@"), "");
  EXPECT_EQ(describe(test.face.boxes()),
            (Boxes{"Произошла ошибка в GetPackedQuantity|critical|OK|Type mismatch",
                   "Произошла ошибка в GetPackedQuantity|critical|OK|Type mismatch"}));
}

TEST_F(ReferencesTest, AQuantityTooLargeIsShownAndGivesTheEmptyText) {
  EXPECT_EQ(GetPackedQuantity(test.editor, "2@A@1@1e308$3@B@1@1e308"), "");
  EXPECT_EQ(describe(test.face.boxes()),
            Boxes{"Произошла ошибка в GetPackedQuantity|critical|OK|Overflow"});
}

TEST_F(ReferencesTest, PackedQuantityIsLogged) {
  test.session.log.OpenDebugLog("c:\\a.log", 4);
  GetPackedQuantity(test.editor, "2@A@1@1,500");
  const std::string stamp = "21.11.2026 10:15 ";
  EXPECT_EQ(test.files.bytes("c:\\a.log"), stamp + "Start logowania...\r\n" + stamp +
                                               "GetPackedQuantity - INPUT: 2@A@1@1,500\r\n" +
                                               stamp + "GetPackedQuantity - OUTPUT: 1,5\r\n");
}

TEST_F(ReferencesTest, BecomeXmlElements) {
  EXPECT_EQ(PackageRefsToXml("2@A@1@1,5"),
            "<Package-Reference><PackageId>2</PackageId><Quantity>1.5</Quantity>"
            "</Package-Reference>");
  EXPECT_EQ(PackageRefsToXml("2@A@1@1,5$3@B@1"),
            "<Package-Reference><PackageId>2</PackageId><Quantity>1.5</Quantity>"
            "</Package-Reference>"
            "<Package-Reference><PackageId>3</PackageId></Package-Reference>");
}

TEST_F(ReferencesTest, SerialsStandInXmlAsTheyStand) {
  EXPECT_EQ(PackageRefsToXml("a<b"),
            "<Package-Reference><PackageId>a<b</PackageId></Package-Reference>");
}

TEST_F(ReferencesTest, OfTheEmptyTextIsNoXml) { EXPECT_EQ(PackageRefsToXml(""), ""); }

TEST_F(ReferencesTest, AnEmptyReferenceIsNoXmlAtAll) {
  EXPECT_EQ(PackageRefsToXml("2@A@1@1$$3"), "");
  EXPECT_TRUE(test.face.boxes().empty());
}

TEST_F(ReferencesTest, ComeBackFromXmlWithTheQuantityInTheThirdField) {
  EXPECT_EQ(PackageRefsFromXml(test.xml, PackageRefsToXml("2@A@1@1,5")), "2@@1.5");
  EXPECT_EQ(PackageRefsFromXml(test.xml, PackageRefsToXml("2@A@1@1,5$3@B@1")), "2@@1.5$3@@");
}

TEST_F(ReferencesTest, FromXmlMissingNodesAreEmpty) {
  EXPECT_EQ(PackageRefsFromXml(test.xml,
                               "<Package-Reference><Quantity>7</Quantity>"
                               "</Package-Reference><Package-Reference/>"),
            "@@7$@@");
}

TEST_F(ReferencesTest, FromXmlTheDescriptionStaysEmpty) {
  EXPECT_EQ(PackageRefsFromXml(test.xml,
                               "<Package-Reference><PackageId>2</PackageId><Goods-Identity><Range>"
                               "<ID-Begin>X</ID-Begin></Range></Goods-Identity>"
                               "</Package-Reference>"),
            "2@@");
  EXPECT_EQ(PackageRefsFromXml(test.xml,
                               "<Goods-Identity><Range><ID-Begin>X</ID-Begin></Range>"
                               "</Goods-Identity><Package-Reference/>"),
            "@@");
}

TEST_F(ReferencesTest, FromXmlOnlyElementsDirectlyInTheTextCount) {
  EXPECT_EQ(PackageRefsFromXml(test.xml,
                               "<Package-Identification><Package-Reference><PackageId>2"
                               "</PackageId></Package-Reference></Package-Identification>"),
            "");
  EXPECT_EQ(PackageRefsFromXml(test.xml,
                               "<Other/><Package-Reference><Deep><PackageId>2</PackageId></Deep>"
                               "</Package-Reference>"),
            "@@");
}

TEST_F(ReferencesTest, FromWhatIsNoXmlAreTheEmptyText) {
  EXPECT_EQ(PackageRefsFromXml(test.xml, ""), "");
  EXPECT_EQ(PackageRefsFromXml(test.xml, "<Package-Reference>"), "");
  EXPECT_EQ(PackageRefsFromXml(test.xml, "</root><root>"), "");
  EXPECT_TRUE(test.face.boxes().empty());
}

}  // namespace
}  // namespace awizo::test
