#include "reading_desk.h"

namespace awizo::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

std::string line(const std::string& values) {
  return "<Line><Line-Item>" + values + "</Line-Item></Line>";
}

constexpr const char* fullLine =
    "<LineNumber>7.4</LineNumber><OrderLineNumber>9</OrderLineNumber><EAN>4607000000116</EAN>"
    "<BuyerItemCode>B-1</BuyerItemCode><SupplierItemCode>S-1</SupplierItemCode>"
    "<DespatchedQuantity>1.5</DespatchedQuantity><OrderedQuantity>2.0005</OrderedQuantity>"
    "<UnitOfMeasure>KGM</UnitOfMeasure><ItemDescription><![CDATA[Чай <чёрный> & зелёный]]>"
    "</ItemDescription><UnitNetPrice>1.995</UnitNetPrice><NetAmount>3</NetAmount>"
    "<TaxRate>18.00</TaxRate><CountryOfOriginCode>PL</CountryOfOriginCode>"
    "<CustomsDeclarationNumber>12345678/010108/1234567</CustomsDeclarationNumber>";

class ReadingLines : public ::testing::Test, public ReadingDesk {
 protected:
  explicit ReadingLines(const char* localeName = "ru_RU") : ReadingDesk(localeName) {}

  void readLines(const std::string& children, const std::string& summary = "") {
    AdvicePieces document;
    document.lines = "<DespatchAdvice-Lines>" + children + "</DespatchAdvice-Lines>";
    document.summary = summary;
    read(document);
  }
  void readTotals(const std::string& values) {
    readLines(line(fullLine), "<DespatchAdvice-Summary>" + values + "</DespatchAdvice-Summary>");
  }
};

struct ReadingLinesInAPointLocale : ReadingLines {
  ReadingLinesInAPointLocale() : ReadingLines("en_US") {}
};

TEST_F(ReadingLines, EveryValueReachesItsColumn) {
  readLines(line(fullLine));
  EXPECT_EQ(TestEditor::row(lines, 1), (std::vector<std::string>{"1",
                                                                 "4607000000116",
                                                                 "Чай <чёрный> & зелёный",
                                                                 "2,001",
                                                                 "1,500",
                                                                 "2,00",
                                                                 "B-1",
                                                                 "S-1",
                                                                 "",
                                                                 "KGM",
                                                                 "7",
                                                                 "3,00",
                                                                 "18",
                                                                 "",
                                                                 "",
                                                                 "PL",
                                                                 "",
                                                                 "21.11.2026",
                                                                 "",
                                                                 "",
                                                                 "",
                                                                 "0,000",
                                                                 ""}));
}

TEST_F(ReadingLinesInAPointLocale, EveryValueReachesItsColumn) {
  readLines(line(fullLine));
  EXPECT_EQ(lines.cell(1, GRD_POZ_QTY_ORDERED), "2.001");
  EXPECT_EQ(lines.cell(1, GRD_POZ_PRICE), "2.00");
  EXPECT_EQ(lines.cell(1, GRD_POZ_ORDER_LINE), "7");
  EXPECT_EQ(lines.cell(1, GRD_POZ_PRODUCTION_DATE), "11/21/2026");
  EXPECT_EQ(lines.cell(1, GRD_POZ_PACKED_QTY), "0.000");
  EXPECT_EQ(totals.cell(1, GRD_SUMA_QTY_DESPATCHED), "1.500");
}

TEST_F(ReadingLines, ABareLineIsEmptyButForWhatIsMade) {
  readLines("<Line/>");
  std::vector<std::string> expected(lineColumnCount);
  expected[GRD_POZ_LP] = "1";
  expected[GRD_POZ_PRODUCTION_DATE] = "21.11.2026";
  expected[GRD_POZ_PACKED_QTY] = "0,000";
  EXPECT_EQ(TestEditor::row(lines, 1), expected);
  EXPECT_THAT(takeBoxes(), Not(Contains(incomplete)));
}

TEST_F(ReadingLines, NumbersThatAreNoneStayAsTheyAre) {
  readLines(
      line("<EAN>ABC</EAN><OrderedQuantity>some</OrderedQuantity>"
           "<UnitNetPrice>1.2.3</UnitNetPrice><TaxRate>-1</TaxRate>"));
  EXPECT_EQ(lines.cell(1, GRD_POZ_QTY_ORDERED), "some");
  EXPECT_EQ(lines.cell(1, GRD_POZ_PRICE), "1,2,3");
  EXPECT_EQ(lines.cell(1, GRD_POZ_TAX_RATE), "-1");
  EXPECT_THAT(takeBoxes(), Not(Contains(incomplete)));
}

TEST_F(ReadingLines, LinesAreNumberedAnewAndOthersAreNoLines) {
  readLines(line("<EAN>1</EAN>") + "<!-- x --><Other/>" + line("<EAN>2</EAN>") +
            "<Line xmlns=\"urn:x\"/>");
  EXPECT_EQ(session.LineCount, 2);
  EXPECT_EQ(lines.rows(), 3);
  EXPECT_THAT(column(lines, GRD_POZ_LP), ElementsAre("1", "2"));
  EXPECT_THAT(column(lines, GRD_POZ_EAN), ElementsAre("1", "2"));
}

TEST_F(ReadingLines, LinesOfTheEarlierDocumentGo) {
  putLines(5);
  lines.setBackground(1, 1, pink);
  readLines(line("<EAN>1</EAN>"));
  EXPECT_EQ(session.LineCount, 1);
  EXPECT_EQ(lines.rows(), 2);
  EXPECT_EQ(lines.look(1, 1).background, white);
}

TEST_F(ReadingLines, TheReferencesOfALineDontComeBack) {
  readLines(
      "<Line><Line-Item><EAN>1</EAN></Line-Item><Package-Reference><PackageId>2</PackageId>"
      "<Quantity>1.000</Quantity></Package-Reference></Line>"
      "<Line><Line-Item><EAN>2</EAN></Line-Item><Package-Identification><Package-Reference>"
      "<PackageId>2</PackageId></Package-Reference></Package-Identification></Line>");
  EXPECT_THAT(column(lines, GRD_POZ_PACK_REFS), Each(""));
  EXPECT_THAT(column(lines, GRD_POZ_PACKED_QTY), Each("0,000"));
}

TEST_F(ReadingLines, ADocumentWithoutLinesIsReadAndReported) {
  AdvicePieces document;
  document.lines = "";
  document.summary =
      "<DespatchAdvice-Summary><TotalQuantity>4</TotalQuantity>"
      "</DespatchAdvice-Summary>";
  form.OrderAnswer = true;
  read(document);
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, "VIRDDesAdv|none|OK|1", incomplete));
  EXPECT_EQ(form.txtNrAwiza.text(), "WZ-7");
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_EQ(lines.rows(), 2);
  EXPECT_THAT(TestEditor::row(totals, 1), ElementsAre("", "4,00", ""));
  EXPECT_FALSE(form.OrderAnswer);
  EXPECT_TRUE(form.enabled());
}

TEST_F(ReadingLines, AnEmptyListOfLinesIsNoFault) {
  readLines("");
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, "VIRDDesAdv|none|OK|1"));
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_EQ(lines.rows(), 2);
  EXPECT_THAT(TestEditor::row(lines, 1), Each(""));
}

TEST_F(ReadingLines, TheTablesAreLeftAtTheirFirstCellWithOneHeadingRow) {
  lines.setFixedRows(0);
  packages.setFixedRows(0);
  lines.setColumn(GRD_POZ_NAME);
  totals.setColumn(2);
  readLines("");
  EXPECT_EQ(lines.fixedRows(), 1);
  EXPECT_EQ(packages.fixedRows(), 1);
  EXPECT_EQ(lines.row(), 1);
  EXPECT_EQ(lines.column(), 1);
  EXPECT_EQ(totals.column(), 1);
}

TEST_F(ReadingLines, EachTableRedrawsOnceItsRowsAreThere) {
  std::vector<bool> linesRedrawn;
  std::vector<bool> totalsRedrawn;
  lines.observers.add([&](const Change& change) {
    if (change.aspect == Aspect::cell) linesRedrawn.push_back(lines.redraw());
  });
  totals.observers.add([&](const Change& change) {
    const std::string text = change.aspect == Aspect::cell ? totals.cell(1, change.column) : "";
    if (text == "7,00" || text == "8,00") totalsRedrawn.push_back(totals.redraw());
  });
  readTotals("<TotalQuantity>7</TotalQuantity><TotalAmount>8</TotalAmount>");
  EXPECT_THAT(linesRedrawn, AllOf(Not(IsEmpty()), Each(false)));
  EXPECT_THAT(totalsRedrawn, ElementsAre(false, false));
  EXPECT_TRUE(lines.redraw());
  EXPECT_TRUE(totals.redraw());
}

TEST_F(ReadingLines, TheTotalsAreDrawnAgainBeforeTheyAreComputed) {
  totals.setRedraw(false);
  face.whileBoxIsOpen([](const MessageBox&) {});
  face.whileBoxIsOpen([](const MessageBox&) {});
  face.whileBoxIsOpen([&](const MessageBox& box) {
    EXPECT_EQ(box.title, "Произошла ошибка в  PoprawGrdSuma()");
    EXPECT_TRUE(totals.redraw());
  });
  readLines(line("<DespatchedQuantity>many</DespatchedQuantity>"));
  EXPECT_EQ(takeBoxes().size(), 3U);
}

TEST_F(ReadingLines, TotalsAreComputed) {
  readLines(line("<DespatchedQuantity>1.5</DespatchedQuantity><NetAmount>2</NetAmount>") +
            line("<DespatchedQuantity>2.25</DespatchedQuantity>"));
  EXPECT_THAT(TestEditor::row(totals, 1), ElementsAre("2", "3,750", "2,00"));
  EXPECT_EQ(lines.row(), 2);
  EXPECT_EQ(lines.column(), GRD_POZ_NET_AMOUNT);
  EXPECT_EQ(totals.column(), 1);
  EXPECT_TRUE(lines.redraw());
  EXPECT_TRUE(totals.redraw());
}

TEST_F(ReadingLines, TheDocumentsTotalsStandOverTheComputedOnes) {
  readTotals("<TotalAmount>99.999</TotalAmount><TotalQuantity>7</TotalQuantity>");
  EXPECT_THAT(TestEditor::row(totals, 1), ElementsAre("1", "7,00", "100,00"));
}

TEST_F(ReadingLines, AnEmptyOrMissingTotalLeavesTheComputedOne) {
  readTotals("<TotalQuantity/>");
  EXPECT_THAT(TestEditor::row(totals, 1), ElementsAre("1", "1,500", "3,00"));
}

TEST_F(ReadingLines, ATotalThatIsMissingByMarkerIsTaken) {
  readTotals("<TotalQuantity>-1</TotalQuantity>");
  EXPECT_EQ(totals.cell(1, GRD_SUMA_QTY_DESPATCHED), "-1,00");
}

TEST_F(ReadingLines, AQuantityThatCantBeAddedUpIsToldByTheTotals) {
  readLines(line("<DespatchedQuantity>many</DespatchedQuantity>"));
  EXPECT_THAT(takeBoxes(),
              ElementsAre(plainBreak1, "VIRDDesAdv|none|OK|1",
                          "Произошла ошибка в  PoprawGrdSuma()|critical|OK|Type mismatch"));
  EXPECT_TRUE(form.enabled());
}

TEST_F(ReadingLines, TheLimitIsReachedHalfWayThroughARow) {
  std::string all;
  for (int i = 0; i < 1424; ++i) all += line("<EAN>5</EAN>");
  readLines(all);
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, "VIRDDesAdv|none|OK|1", incomplete));
  EXPECT_EQ(session.LineCount, 1424);
  EXPECT_EQ(lines.rows(), 1425);
  EXPECT_EQ(lines.cell(1423, GRD_POZ_PACKED_QTY), "0,000");
  EXPECT_EQ(lines.cell(1424, GRD_POZ_EAN), "5");
  EXPECT_EQ(lines.cell(1424, GRD_POZ_PRODUCTION_DATE), "");
  EXPECT_FALSE(lines.redraw());
  EXPECT_TRUE(form.enabled());
}

/// A file of some megabytes can hold millions of them: none gets a row.
TEST_F(ReadingLines, MoreLinesThanSixteenBitsCountAreNotRead) {
  std::string all;
  for (int i = 0; i < 32768; ++i) all += "<Line/>";
  readLines(all);
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, "VIRDDesAdv|none|OK|1", incomplete));
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_EQ(lines.rows(), 2);
  EXPECT_EQ(lines.cell(1, GRD_POZ_LP), "");
  EXPECT_TRUE(lines.redraw());
  EXPECT_TRUE(form.enabled());
}

}  // namespace
}  // namespace awizo::test
