#include "read_order.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

TEST_F(OrderReader, GivesALineItsRow) {
  readLines(
      line("<LineNumber>10</LineNumber><EAN>5901234123457</EAN>"
           "<BuyerItemCode>B</BuyerItemCode><SupplierItemCode>S</SupplierItemCode>"
           "<ItemDescription>Чай чёрный</ItemDescription>"
           "<OrderedQuantity>2.5</OrderedQuantity><UnitOfMeasure>PCE</UnitOfMeasure>"
           "<OrderedUnitNetPrice>1.999</OrderedUnitNetPrice><TaxRate>18.0</TaxRate>"
           "<TaxCategoryCode>N</TaxCategoryCode><Weight>0.25</Weight>"
           "<Period>12</Period><PeriodFormat>802</PeriodFormat>"));
  EXPECT_EQ(TestEditor::row(table, 1), (std::vector<std::string>{"1",
                                                                 "5901234123457",
                                                                 "Чай чёрный",
                                                                 "2,500",
                                                                 "2,500",
                                                                 "2,00",
                                                                 "B",
                                                                 "S",
                                                                 "0,250",
                                                                 "PCE",
                                                                 "10",
                                                                 "5,00",
                                                                 "18.0",
                                                                 "N",
                                                                 "2027-11-21",
                                                                 "",
                                                                 "",
                                                                 "21.11.2026",
                                                                 "12",
                                                                 "802",
                                                                 "",
                                                                 "0,000",
                                                                 ""}));
  expectNoBox();
}

TEST_F(OrderReaderInAPointLocale, GivesALineItsRow) {
  readLines(
      line("<EAN>5901234123457</EAN><OrderedQuantity>2,5</OrderedQuantity>"
           "<OrderedUnitNetPrice>1.999</OrderedUnitNetPrice><Weight>0.25</Weight>"
           "<Period>2</Period><PeriodFormat>803</PeriodFormat>"));
  EXPECT_EQ(TestEditor::row(table, 1), (std::vector<std::string>{"1",
                                                                 "5901234123457",
                                                                 "",
                                                                 "2.500",
                                                                 "2.500",
                                                                 "2.00",
                                                                 "",
                                                                 "",
                                                                 "0.250",
                                                                 "",
                                                                 "-1",
                                                                 "5.00",
                                                                 "-1",
                                                                 "",
                                                                 "2026-12-05",
                                                                 "",
                                                                 "",
                                                                 "11/21/2026",
                                                                 "2",
                                                                 "803",
                                                                 "",
                                                                 "0.000",
                                                                 ""}));
  expectNoBox();
}

TEST_F(OrderReader, FillsABareLineWithFallBacks) {
  const std::vector<std::string> fallBacks{
      "1",  "", "", "-1,000", "-1,000", "",           "", "", "-1,000", "",      "-1", "",
      "-1", "", "", "",       "",       "21.11.2026", "", "", "",       "0,000", ""};
  std::vector<std::string> expected = fallBacks;
  // An empty period is no whole number, so there is no expiry date.
  EXPECT_EQ(expected[GRD_POZ_EXPIRY_DATE], "");
  readLines("<Line/>");
  EXPECT_EQ(TestEditor::row(table, 1), expected);
  expectNoBox();
}

TEST_F(OrderReader, EveryChildGetsARowAlsoWhenItIsNoLine) {
  readLines(line("<EAN>1</EAN>") + "<!-- a comment --><Linie><Line-Item><EAN>3</EAN></Line-Item>" +
            "</Linie>text<?pi?>" + line("<EAN>6</EAN>") +
            "<Line xmlns=\"urn:x\"><Line-Item><EAN>7</EAN></Line-Item></Line>");
  EXPECT_EQ(test.session.LineCount, 7);
  EXPECT_EQ(table.rows(), 8);
  std::vector<std::string> numbersAndEans;
  for (int row = 1; row <= 7; ++row) {
    numbersAndEans.push_back(cell(row, GRD_POZ_LP) + ":" + cell(row, GRD_POZ_EAN) + ":" +
                             cell(row, GRD_POZ_QTY_ORDERED));
  }
  EXPECT_THAT(numbersAndEans, ElementsAre("1:1:-1,000", "2::-1,000", "3::-1,000", "4::-1,000",
                                          "5::-1,000", "6:6:-1,000", "7::-1,000"));
  expectNoBox();
}

TEST_F(OrderReader, TakesTheFirstOfSeveralValues) {
  readLines(
      "<Line><Line-Item><TaxRate>10</TaxRate></Line-Item>"
      "<Line-Item><EAN>1</EAN><EAN>2</EAN><TaxRate>18</TaxRate></Line-Item></Line>");
  EXPECT_EQ(cell(1, GRD_POZ_EAN), "1");
  EXPECT_EQ(cell(1, GRD_POZ_TAX_RATE), "10");
}

TEST_F(OrderReader, EmptyElementsAreEmptyAndNotFallBacks) {
  readLines(line("<OrderedQuantity/><Weight/><LineNumber/><TaxRate/>"));
  for (const int column : {GRD_POZ_QTY_ORDERED, GRD_POZ_QTY_DESPATCHED, GRD_POZ_WEIGHT,
                           GRD_POZ_ORDER_LINE, GRD_POZ_TAX_RATE}) {
    EXPECT_EQ(cell(1, column), "") << column;
  }
}

TEST_F(OrderReader, ValuesThatAreNoNumbersStay) {
  readLines(
      line("<OrderedQuantity>some</OrderedQuantity>"
           "<OrderedUnitNetPrice>1.2.3</OrderedUnitNetPrice><NetAmount>much</NetAmount>"));
  EXPECT_EQ(cell(1, GRD_POZ_QTY_ORDERED), "some");
  EXPECT_EQ(cell(1, GRD_POZ_PRICE), "1,2,3");
  EXPECT_EQ(cell(1, GRD_POZ_NET_AMOUNT), "much");
}

TEST_F(OrderReader, AStatedNetAmountIsKept) {
  readLines(
      line("<OrderedQuantity>2</OrderedQuantity>"
           "<OrderedUnitNetPrice>3</OrderedUnitNetPrice><NetAmount>7.125</NetAmount>"));
  EXPECT_EQ(cell(1, GRD_POZ_NET_AMOUNT), "7,13");
}

TEST_F(OrderReader, AMissingNetAmountIsQuantityTimesPrice) {
  readLines(line("<OrderedQuantity>2.5</OrderedQuantity>"
                 "<OrderedUnitNetPrice>1.999</OrderedUnitNetPrice>") +
            line("<OrderedQuantity>2</OrderedQuantity><NetAmount/>"
                 "<OrderedUnitNetPrice>3</OrderedUnitNetPrice>") +
            line("<OrderedUnitNetPrice>3</OrderedUnitNetPrice>") +
            line("<OrderedQuantity>2</OrderedQuantity>"));
  EXPECT_EQ(cell(1, GRD_POZ_NET_AMOUNT), "5,00");
  EXPECT_EQ(cell(2, GRD_POZ_NET_AMOUNT), "6,00");
  EXPECT_EQ(cell(3, GRD_POZ_NET_AMOUNT), "-3,00");
  EXPECT_EQ(cell(4, GRD_POZ_NET_AMOUNT), "");
  EXPECT_EQ(cell(4, GRD_POZ_PRICE), "");
}

TEST_F(OrderReader, ComputesTheExpiryDateFromThePeriod) {
  const auto period = [](const std::string& count, const std::string& format) {
    return line("<Period>" + count + "</Period><PeriodFormat>" + format + "</PeriodFormat>");
  };
  test.clock.moment.date = makeDate(2026, 1, 31);
  readLines(period("1", "802") + period("2", "803") + period("10", "804") + period("10", "805") +
            period("1,5", "802") + period("x", "802") + period("", "802") + period("4682", "803") +
            period("5", ""));
  std::vector<std::string> dates;
  for (int row = 1; row <= 9; ++row) dates.push_back(cell(row, GRD_POZ_EXPIRY_DATE));
  EXPECT_THAT(dates, ElementsAre("2026-02-28", "2026-02-14", "2026-02-10", "2026-01-31", "", "", "",
                                 "", "2026-01-31"));
}

TEST_F(OrderReader, EndsWithTheFirstLineCurrentAndThePresetsOfAnAnswer) {
  test.session.LineCount = 9;
  table.setFixedRows(0);
  table.setRow(0);
  table.setColumn(5);
  readLines(line("<EAN>1</EAN>") + line("<EAN>2</EAN>"));
  EXPECT_EQ(test.session.LineCount, 2);
  EXPECT_EQ(table.rows(), 3);
  EXPECT_EQ(table.fixedRows(), 1);
  EXPECT_EQ(table.row(), 1);
  EXPECT_EQ(table.column(), 1);
  EXPECT_TRUE(table.redraw());
  EXPECT_TRUE(form.enabled());
  EXPECT_TRUE(form.OrderAnswer);
  EXPECT_EQ(form.cboxPackageDescription.index(), 1);
  EXPECT_EQ(form.txtGoodsIdentity.text(), "354107380000001051");
}

TEST_F(OrderReader, AnOrderWithoutLinesLeavesCountAndPresets) {
  test.session.LineCount = 9;
  table.setRows(10);
  readLines("");
  EXPECT_EQ(test.session.LineCount, 9);
  EXPECT_EQ(table.rows(), 2);
  EXPECT_TRUE(form.enabled());
  EXPECT_TRUE(form.OrderAnswer);
  EXPECT_EQ(form.cboxPackageDescription.index(), -1);
  EXPECT_EQ(form.txtGoodsIdentity.text(), "");
  expectNoBox();
}

TEST_F(OrderReader, LeavesPackagesAndTotalsAlone) {
  form.grdOpakowania.setCell(1, GRD_OPAK_SERIAL, "2");
  form.grdSuma.setCell(1, GRD_SUMA_LINE_COUNT, "5");
  test.session.IloscPozycjiOpak = 1;
  readLines(line("<EAN>1</EAN>"));
  EXPECT_EQ(form.grdOpakowania.cell(1, GRD_OPAK_SERIAL), "2");
  EXPECT_EQ(form.grdSuma.cell(1, GRD_SUMA_LINE_COUNT), "5");
  EXPECT_EQ(test.session.IloscPozycjiOpak, 1);
}

TEST_F(OrderReader, TakesNoInputWhileItReads) {
  bool enabledDuringReading = true;
  form.txtNrZam.onChange = [&] { enabledDuringReading = form.enabled(); };
  readLines(line("<EAN>1</EAN>"));
  EXPECT_FALSE(enabledDuringReading);
  EXPECT_TRUE(form.enabled());
}

TEST_F(OrderReader, ShowsTheWaitCursorWhileItReadsAlsoWhenItFails) {
  readLines("");
  EXPECT_THAT(test.face.cursors(), ElementsAre(Cursor::wait, Cursor::normal));
  test.face.whileBoxIsOpen(
      [&](const MessageBox&) { EXPECT_EQ(test.screen.cursor(), Cursor::wait); });
  read("<Document-Order/>");
  expectFailure("Object variable or With block variable not set");
  EXPECT_EQ(test.screen.cursor(), Cursor::normal);
}

TEST_F(OrderReader, GivesBackTheCursorThatWasThere) {
  test.screen.setCursor(Cursor::wait);
  readLines(line("<EAN>1</EAN>"));
  EXPECT_EQ(test.screen.cursor(), Cursor::wait);
  read("<Document-Order/>");
  expectFailure("Object variable or With block variable not set");
  EXPECT_EQ(test.screen.cursor(), Cursor::wait);
}

TEST_F(OrderReader, AnOrderWithoutLinesElementFailsAfterTheHeader) {
  read(std::string("<Document-Order>") + fullHeader + "</Document-Order>");
  expectFailure("Object variable or With block variable not set");
  EXPECT_EQ(form.txtNrZam.text(), "ORD-7");
  EXPECT_TRUE(form.OrderAnswer);
  EXPECT_EQ(form.txtGoodsIdentity.text(), "");
}

TEST_F(OrderReader, BeyondTheReachOfTheCellIndexKeepsWhatWasRead) {
  std::string lines;
  for (int i = 0; i < 1424; ++i) lines += line("<EAN>1</EAN>");
  readLines(lines);
  expectFailure("Overflow");
  EXPECT_EQ(test.session.LineCount, 1424);
  EXPECT_EQ(cell(1424, GRD_POZ_COUNTRY), "");
  EXPECT_EQ(cell(1424, GRD_POZ_TAX_RATE), "-1");
  EXPECT_EQ(cell(1424, GRD_POZ_PRODUCTION_DATE), "");
  EXPECT_EQ(cell(1423, GRD_POZ_PACKED_QTY), "0,000");
  EXPECT_FALSE(table.redraw());
  EXPECT_EQ(form.txtGoodsIdentity.text(), "");
}

TEST_F(OrderReader, MoreLinesThanCanBeCountedFailBeforeTheFirst) {
  std::string lines;
  for (int i = 0; i < 32768; ++i) lines += "<Line/>";
  readLines(lines);
  expectFailure("Overflow");
  EXPECT_EQ(test.session.LineCount, 0);
  EXPECT_EQ(table.rows(), 2);
  EXPECT_EQ(cell(1, GRD_POZ_LP), "");
  EXPECT_TRUE(table.redraw());
}

TEST_F(OrderReader, CompletesTheOrderFromALoadedCatalogue) {
  test.session.ProductCatalogDom->loadText(
      "<Document-ProductCatalogue><ProductCatalogue-Lines>"
      "<Line><Line-Item><EAN>1</EAN><ItemDescription>Чай</ItemDescription>"
      "<UnitNetPrice>3</UnitNetPrice></Line-Item></Line>"
      "</ProductCatalogue-Lines></Document-ProductCatalogue>");
  test.session.ProductCatalogLoaded = true;
  readLines(line("<EAN>1</EAN><OrderedQuantity>2</OrderedQuantity>") + line("<EAN>2</EAN>"));
  EXPECT_EQ(cell(1, GRD_POZ_NAME), "Чай");
  EXPECT_EQ(cell(1, GRD_POZ_PRICE), "3,00");
  EXPECT_EQ(cell(1, GRD_POZ_NET_AMOUNT), "6,00");
  // The catalogue knows the product, but no weight and no rate of it.
  EXPECT_EQ(cell(1, GRD_POZ_WEIGHT), "");
  EXPECT_EQ(cell(1, GRD_POZ_TAX_RATE), "");
  EXPECT_EQ(cell(2, GRD_POZ_WEIGHT), "-1,000");
  EXPECT_NE(order, nullptr);
  expectNoBox();
}

TEST_F(OrderReader, WithoutACatalogueReadsTheOrderAlone) {
  test.session.ProductCatalogDom->loadText(
      "<Document-ProductCatalogue><ProductCatalogue-Lines>"
      "<Line><Line-Item><EAN>1</EAN><ItemDescription>Чай</ItemDescription></Line-Item></Line>"
      "</ProductCatalogue-Lines></Document-ProductCatalogue>");
  readLines(line("<EAN>1</EAN>") + line(""));
  EXPECT_EQ(cell(1, GRD_POZ_NAME), "");
  expectNoBox();
}

TEST_F(OrderReader, ACompletionThatFailsLeavesNoOrderToRead) {
  test.session.ProductCatalogLoaded = true;
  read(std::string("<Document-Order>") + fullHeader + "<Order-Lines>" + line("") +
       "</Order-Lines></Document-Order>");
  EXPECT_THAT(describe(test.face.boxes()),
              ElementsAre("Произошла ошибка в ProductCatalogToOrder|critical|OK|"
                          "Invalid XPath expression.",
                          "Произошла ошибка в Wczytaj_Zamowienie()|critical|OK|"
                          "Object variable or With block variable not set"));
  EXPECT_EQ(order, nullptr);
  EXPECT_EQ(form.txtNrZam.text(), "-1");
  EXPECT_EQ(form.dpDataZam.date(), std::nullopt);
  EXPECT_EQ(form.lblCurrencyWart.caption(), "RUR");
  EXPECT_EQ(form.lblILNKupWart.caption(), "9520002000019");
  EXPECT_TRUE(form.enabled());
}

TEST_F(OrderReader, TheErrorThatEndsAReadingIsReturnedToWhoeverReadsWithoutAUser) {
  order = test.document("<Document-Order/>");
  const std::optional<RunTimeError> error = readOrder(test.editor, order);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->number(), errors::objectNotSet().number());
  expectNoBox();
  order = test.document("<Document-Order><Order-Lines/></Document-Order>");
  EXPECT_FALSE(readOrder(test.editor, order));
}

}  // namespace
}  // namespace awizo::test
