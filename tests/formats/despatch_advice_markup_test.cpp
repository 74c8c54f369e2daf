#include "written_despatch_advice.h"

namespace awizo::test {
namespace {

TEST_F(WrittenAdvice, ADescriptionIsProtectedByItsCDataSection) {
  std::vector<std::string> cells = line("1");
  cells[GRD_POZ_NAME] = "Сок <100%> & вода";
  setLines({cells});
  EXPECT_THAT(written(), ::testing::HasSubstr(
                             "<ItemDescription><![CDATA[Сок <100%> & вода]]></ItemDescription>"));
}

TEST_F(WrittenAdvice, AnEndOfCDataInADescriptionFailsInTheLines) {
  std::vector<std::string> cells = line("1");
  cells[GRD_POZ_NAME] = "a]]>b";
  setLines({cells});
  expectFailure("10", "Invalid procedure call or argument");
}

TEST_F(WrittenAdvice, MarkupInAPackageFailsInThePackages) {
  for (const char* text : {"a&b", "a<b", "]]>", "\x01"}) {
    std::vector<std::string> cells = package("2", "1");
    cells[GRD_OPAK_SERIAL_NUMBER] = text;
    setPackages({package("3", "1"), cells, package("4", "1")});
    expectFailure("9", "Invalid procedure call or argument");
  }
}

TEST_F(WrittenAdvice, MarkupInALineFailsInTheLines) {
  for (const int column :
       {GRD_POZ_LP, GRD_POZ_ORDER_LINE, GRD_POZ_EAN, GRD_POZ_CODE_BY_BUYER, GRD_POZ_CODE_BY_SELLER,
        GRD_POZ_QTY_DESPATCHED, GRD_POZ_QTY_ORDERED, GRD_POZ_UNIT, GRD_POZ_PRICE,
        GRD_POZ_NET_AMOUNT, GRD_POZ_TAX_RATE, GRD_POZ_COUNTRY, GRD_POZ_CDN, GRD_POZ_PACK_REFS}) {
    std::vector<std::string> cells = line("2");
    cells[static_cast<std::size_t>(column)] = "a&b";
    setLines({line("1"), cells, line("3")});
    expectFailure("10", "Invalid procedure call or argument");
  }
}

TEST_F(WrittenAdvice, AFailureInThePackagesComesBeforeOneInTheLines) {
  std::vector<std::string> cells = line("1");
  cells[GRD_POZ_EAN] = "<";
  setLines({cells});
  cells = package("2", "1");
  cells[GRD_OPAK_TYPE] = "&";
  setPackages({cells});
  expectFailure("9", "Invalid procedure call or argument");
}

TEST_F(WrittenAdvice, WellFormedMarkupInACellPassesAsMarkup) {
  std::vector<std::string> cells = line("2");
  cells[GRD_POZ_EAN] = "1</EAN><Extra/><EAN>2";
  cells[GRD_POZ_CODE_BY_BUYER] = "A&amp;B";
  setLines({line("1"), cells, line("3")});
  const std::string text = written();
  EXPECT_THAT(text, ::testing::HasSubstr("<EAN>1</EAN><Extra/><EAN>2</EAN>"
                                         "<BuyerItemCode>A&amp;B</BuyerItemCode>"));
  EXPECT_THAT(lineNumbers(), ::testing::ElementsAre("1", "2", "3"));
}

TEST_F(WrittenAdvice, MarkupCantReachBeyondItsElement) {
  std::vector<std::string> first = line("1");
  first[GRD_POZ_COUNTRY] =
      "</CountryOfOriginCode></Line-Item></Line><Line><Line-Item>"
      "<CountryOfOriginCode>";
  setLines({first});
  expectFailure("10", "Invalid procedure call or argument");
}

TEST_F(WrittenAdvice, BeyondTheReachOfTheCellIndexItOverflowsInThePackages) {
  form.grdOpakowania.setRows(2185);
  test.session.IloscPozycjiOpak = 2184;
  expectFailure("9", "Overflow");
}

TEST_F(WrittenAdvice, BeyondTheReachOfTheCellIndexItOverflowsInTheLines) {
  form.grdPozycje.setRows(1425);
  test.session.LineCount = 1424;
  expectFailure("10", "Overflow");
}

TEST_F(WrittenAdvice, OfTwoRowsThatFailTheUpperOneIsTold) {
  form.grdPozycje.setRows(1425);
  test.session.LineCount = 1424;
  form.grdPozycje.setCell(5, GRD_POZ_EAN, "\x01");
  expectFailure("10", "Invalid procedure call or argument");
}

TEST_F(WrittenAdvice, ARowThatCantBeReadFailsAfterAllThatStandsBeforeIt) {
  setPackages({package("<", "1")});
  form.txtEstimatedDeliveryDate.setDate(std::nullopt);
  form.txtNrAwiza.setText("\x02");
  test.session.LineCount = 2;
  expectFailure("1", "Invalid procedure call or argument");
  form.txtNrAwiza.setText("WZ-1");
  expectFailure("4", "Invalid use of Null");
  form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 11, 22));
  expectFailure("9", "Invalid procedure call or argument");
  setPackages({package("2", "1")});
  form.grdPozycje.setCell(1, GRD_POZ_EAN, "<");
  expectFailure("10", "Invalid procedure call or argument");
  form.grdPozycje.setCell(1, GRD_POZ_EAN, "");
  expectFailure("10", "Subscript out of range");
  test.session.IloscPozycjiOpak = 2;
  expectFailure("9", "Subscript out of range");
  form.lblILNSprzedWart.setCaption("\x02");
  expectFailure("8", "Invalid procedure call or argument");
}

TEST_F(WrittenAdvice, AtTheTablesLimitsIsWhole) {
  form.grdPozycje.setRows(1424);
  form.grdOpakowania.setRows(2184);
  test.session.LineCount = 1423;
  test.session.IloscPozycjiOpak = 2183;
  const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
  ASSERT_NE(document, nullptr);
  EXPECT_EQ(document->node().selectAll("//Line").size(), 1423U);
  EXPECT_EQ(document->node().selectAll("//Packing-Sequence").size(), 2184U);
}

TEST_F(WrittenAdvice, MakingItChangesNothingAndCanBeRepeated) {
  setLines({line("1")});
  setPackages({package("2", "1")});
  form.grdPozycje.setColumn(3);
  const std::string first = written();
  EXPECT_EQ(written(), first);
  EXPECT_EQ(TestEditor::row(form.grdPozycje, 1), line("1"));
  EXPECT_EQ(TestEditor::row(form.grdOpakowania, 1), package("2", "1"));
  EXPECT_EQ(form.grdPozycje.column(), 3);
}

}  // namespace
}  // namespace awizo::test
