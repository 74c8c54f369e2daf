#include "formats/despatch_advice_writer.h"

#include <optional>

#include "support/test_editor.h"
#include "tables/columns.h"

namespace awizo::test {
namespace {

constexpr const char* emptyConsignment =
    "<DespatchAdvice-Consignment><Packing-Sequence><PackageId>1</PackageId></Packing-Sequence>"
    "</DespatchAdvice-Consignment>";

/// A document with the least header that validates.
struct DespatchAdvice : ::testing::Test {
  TestEditor test;
  AwizoForm& form = test.form;

  DespatchAdvice() {
    form.txtNrAwiza.setText("WZ-1");
    form.txtDataAwiza.setDate(makeDate(2026, 11, 21));
    form.txtDespatchAdviceTime.setTime(std::nullopt);
    form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 11, 22));
    form.txtEstimatedDeliveryTime.setTime(std::nullopt);
    form.txtNrZam.setText("ORD-7");
    form.dpDataZam.setDate(std::nullopt);
    form.lblILNKupWart.setCaption("9520002000019");
    form.lblILNSprzedWart.setCaption("9520001000010");
  }

  static std::vector<std::string> line(const std::string& number) {
    std::vector<std::string> cells(23);
    cells[GRD_POZ_LP] = number;
    cells[GRD_POZ_EAN] = "5901234123457";
    cells[GRD_POZ_QTY_DESPATCHED] = "1";
    return cells;
  }

  static std::vector<std::string> package(const std::string& serial, const std::string& parent) {
    std::vector<std::string> cells(15);
    cells[GRD_OPAK_SERIAL] = serial;
    cells[GRD_OPAK_PARENT_SERIAL] = parent;
    return cells;
  }

  void setLines(const std::vector<std::vector<std::string>>& lines) {
    TestEditor::fill(form.grdPozycje, lines);
    test.session.LineCount = static_cast<std::int16_t>(lines.size());
  }

  void setPackages(const std::vector<std::vector<std::string>>& packages) {
    TestEditor::fill(form.grdOpakowania, packages);
    test.session.IloscPozycjiOpak = static_cast<std::int16_t>(packages.size());
  }

  std::string written() {
    const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
    EXPECT_TRUE(test.face.boxes().empty()) << describe(test.face.boxes())[0];
    return document ? document->fileBytes() : "";
  }

  /// The text of the first node that the path selects, "(none)" without one.
  std::string value(std::string_view path) {
    const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
    if (!document) return "(no document)";
    const XmlNode node = document->node().selectSingle(path);
    return node ? node.text() : "(none)";
  }

  /// The numbers of the lines in the document's order.
  std::vector<std::string> lineNumbers() {
    const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
    std::vector<std::string> numbers;
    for (const XmlNode& number : document->node().selectAll(
             "/Document-DespatchAdvice/DespatchAdvice-Lines/Line/Line-Item/LineNumber")) {
      numbers.push_back(number.text());
    }
    return numbers;
  }

  void expectFailure(const std::string& step, const std::string& description) {
    EXPECT_EQ(MakeDesAdv(test.editor), nullptr);
    EXPECT_THAT(describe(test.face.takeBoxes()),
                ::testing::ElementsAre("Произошла ошибка в MakeDesAdv()" + step + "|critical|OK|" +
                                       description));
  }
};

TEST_F(DespatchAdvice, WithoutLinesAndPackagesIsTheHeaderAndTheConsignmentPackage) {
  EXPECT_EQ(written(), std::string("<Document-DespatchAdvice>"
                                   "<DespatchAdvice-Header>"
                                   "<DespatchAdviceNumber>WZ-1</DespatchAdviceNumber>"
                                   "<DespatchAdviceDate>2026-11-21</DespatchAdviceDate>"
                                   "<EstimatedDeliveryDate>2026-11-22</EstimatedDeliveryDate>"
                                   "<BuyerOrderNumber>ORD-7</BuyerOrderNumber>"
                                   "<Currency>RUR</Currency>"
                                   "</DespatchAdvice-Header>"
                                   "<DespatchAdvice-Parties>"
                                   "<Buyer><ILN>9520002000019</ILN></Buyer>"
                                   "<Seller><ILN>9520001000010</ILN></Seller>"
                                   "</DespatchAdvice-Parties>") +
                           emptyConsignment + "</Document-DespatchAdvice>");
}

TEST_F(DespatchAdvice, WithEveryOptionalHeaderValue) {
  form.txtDespatchAdviceTime.setTime(TimeOfDay{9, 5, 59});
  form.txtEstimatedDeliveryTime.setTime(TimeOfDay{14, 30, 0});
  form.dpDataZam.setDate(makeDate(2026, 1, 2));
  form.txtCodeByBuyer.setText("77");
  form.DeliveryILN = "9520002000026";
  form.lblCurrencyWart.setCaption("EUR");
  EXPECT_EQ(written(), std::string("<Document-DespatchAdvice>"
                                   "<DespatchAdvice-Header>"
                                   "<DespatchAdviceNumber>WZ-1</DespatchAdviceNumber>"
                                   "<DespatchAdviceDate>2026-11-21</DespatchAdviceDate>"
                                   "<DespatchAdviceTime>09:05</DespatchAdviceTime>"
                                   "<EstimatedDeliveryDate>2026-11-22</EstimatedDeliveryDate>"
                                   "<EstimatedDeliveryTime>14:30</EstimatedDeliveryTime>"
                                   "<BuyerOrderNumber>ORD-7</BuyerOrderNumber>"
                                   "<BuyerOrderDate>2026-01-02</BuyerOrderDate>"
                                   "<Currency>EUR</Currency>"
                                   "</DespatchAdvice-Header>"
                                   "<DespatchAdvice-Parties>"
                                   "<Buyer><ILN>9520002000019</ILN></Buyer>"
                                   "<Seller><ILN>9520001000010</ILN>"
                                   "<CodeByBuyer>77</CodeByBuyer></Seller>"
                                   "<DeliveryPoint><ILN>9520002000026</ILN></DeliveryPoint>"
                                   "</DespatchAdvice-Parties>") +
                           emptyConsignment + "</Document-DespatchAdvice>");
}

TEST_F(DespatchAdvice, EmptyHeaderValuesStandAsEmptyElements) {
  form.txtNrAwiza.setText("");
  form.txtDataAwiza.setDate(std::nullopt);
  form.txtNrZam.setText("");
  form.lblCurrencyWart.setCaption("");
  form.lblILNKupWart.setCaption("");
  form.lblILNSprzedWart.setCaption("");
  EXPECT_EQ(written(), std::string("<Document-DespatchAdvice>"
                                   "<DespatchAdvice-Header>"
                                   "<DespatchAdviceNumber/>"
                                   "<DespatchAdviceDate/>"
                                   "<EstimatedDeliveryDate>2026-11-22</EstimatedDeliveryDate>"
                                   "<BuyerOrderNumber/>"
                                   "<Currency/>"
                                   "</DespatchAdvice-Header>"
                                   "<DespatchAdvice-Parties>"
                                   "<Buyer><ILN/></Buyer>"
                                   "<Seller><ILN/></Seller>"
                                   "</DespatchAdvice-Parties>") +
                           emptyConsignment + "</Document-DespatchAdvice>");
}

TEST_F(DespatchAdvice, HeaderValuesAreEscaped) {
  form.txtNrAwiza.setText("A&B<C>");
  form.txtCodeByBuyer.setText("x & y");
  EXPECT_THAT(written(), ::testing::HasSubstr("<DespatchAdviceNumber>A&amp;B&lt;C&gt;</"));
  EXPECT_EQ(value("/Document-DespatchAdvice/DespatchAdvice-Parties/Seller/CodeByBuyer"), "x & y");
}

TEST_F(DespatchAdvice, ACharacterThatXmlCantHoldEndsAtItsStep) {
  form.lblILNKupWart.setCaption("1\x01");
  expectFailure("8", "Invalid procedure call or argument");
  form.txtNrZam.setText("\uFFFF");
  expectFailure("6", "Invalid procedure call or argument");
  form.txtNrAwiza.setText("\x02");
  expectFailure("1", "Invalid procedure call or argument");
}

TEST_F(DespatchAdvice, AMissingDeliveryDateEndsAtItsStep) {
  form.txtEstimatedDeliveryDate.setDate(std::nullopt);
  expectFailure("4", "Invalid use of Null");
}

TEST_F(DespatchAdvice, CarriesAPackageWithAllItsValues) {
  std::vector<std::string> cells = package("2", "1");
  cells[GRD_OPAK_DESC] = "not written";
  cells[GRD_OPAK_TYPE] = "201";
  cells[GRD_OPAK_SERIAL_NUMBER] = "354107380000001051";
  cells[GRD_OPAK_LOCATION_ILN] = "9520002000026";
  cells[GRD_OPAK_WEIGHT] = "12,500";
  cells[GRD_OPAK_HEIGHT] = "1,200";
  cells[GRD_OPAK_LENGTH] = "0,800";
  cells[GRD_OPAK_WIDTH] = "0,600";
  setPackages({cells});
  EXPECT_THAT(written(), ::testing::HasSubstr("<DespatchAdvice-Consignment>"
                                              "<Packing-Sequence><PackageId>1</PackageId>"
                                              "</Packing-Sequence>"
                                              "<Packing-Sequence>"
                                              "<PackageId>2</PackageId>"
                                              "<ParentId>1</ParentId>"
                                              "<PackageType>201</PackageType>"
                                              "<SerialNumber>354107380000001051</SerialNumber>"
                                              "<DeliveryPlace>9520002000026</DeliveryPlace>"
                                              "<PackageWeight>12.500</PackageWeight>"
                                              "<PackageHeight>1.200</PackageHeight>"
                                              "<PackageLength>0.800</PackageLength>"
                                              "<PackageWidth>0.600</PackageWidth>"
                                              "</Packing-Sequence>"
                                              "</DespatchAdvice-Consignment>"));
}

TEST_F(DespatchAdvice, KeepsThePackagesInTheirOrderUnderTheirParents) {
  // The first package lies in the consignment, whatever its cell says.
  setPackages({package("4", "9"), package("2", "4"), package("3", "")});
  EXPECT_THAT(written(), ::testing::HasSubstr(
                             "<Packing-Sequence><PackageId>4</PackageId><ParentId>1</ParentId>"
                             "</Packing-Sequence>"
                             "<Packing-Sequence><PackageId>2</PackageId><ParentId>4</ParentId>"
                             "</Packing-Sequence>"
                             "<Packing-Sequence><PackageId>3</PackageId></Packing-Sequence>"
                             "</DespatchAdvice-Consignment>"));
}

TEST_F(DespatchAdvice, APackageWithoutSerialHasAnEmptyId) {
  setPackages({package("", "")});
  EXPECT_THAT(written(), ::testing::HasSubstr("<Packing-Sequence><PackageId/><ParentId>1</ParentId>"
                                              "</Packing-Sequence></DespatchAdvice-Consignment>"));
}

TEST_F(DespatchAdvice, CarriesALineWithAllItsValues) {
  std::vector<std::string> cells(23);
  cells[GRD_POZ_LP] = "1";
  cells[GRD_POZ_EAN] = "5901234123457";
  cells[GRD_POZ_NAME] = "Чай чёрный";
  cells[GRD_POZ_QTY_ORDERED] = "10,000";
  cells[GRD_POZ_QTY_DESPATCHED] = "7,500";
  cells[GRD_POZ_PRICE] = "12,50";
  cells[GRD_POZ_CODE_BY_BUYER] = "B-1";
  cells[GRD_POZ_CODE_BY_SELLER] = "S-1";
  cells[GRD_POZ_WEIGHT] = "not written";
  cells[GRD_POZ_UNIT] = "PCE";
  cells[GRD_POZ_ORDER_LINE] = "3";
  cells[GRD_POZ_NET_AMOUNT] = "93,75";
  cells[GRD_POZ_TAX_RATE] = "10,5";
  cells[GRD_POZ_TAX_CATEGORY] = "not written";
  cells[GRD_POZ_EXPIRY_DATE] = "not written";
  cells[GRD_POZ_COUNTRY] = "RU";
  cells[GRD_POZ_CDN] = "12345678/010108/1234567";
  cells[GRD_POZ_PRODUCTION_DATE] = "not written";
  cells[GRD_POZ_PERIOD] = "not written";
  cells[GRD_POZ_PERIOD_FORMAT] = "not written";
  cells[GRD_POZ_PACK_REFS] = "2@Коробка@1@5,000$3@Поддон@2@2,500";
  cells[GRD_POZ_PACKED_QTY] = "not written";
  setLines({cells});
  form.grdSuma.setCell(1, GRD_SUMA_QTY_DESPATCHED, "7,500");
  form.grdSuma.setCell(1, GRD_SUMA_NET_AMOUNT, "93,75");
  EXPECT_THAT(written(),
              ::testing::EndsWith(
                  "</DespatchAdvice-Consignment>"
                  "<DespatchAdvice-Lines><Line>"
                  "<Line-Item>"
                  "<LineNumber>1</LineNumber>"
                  "<OrderLineNumber>3</OrderLineNumber>"
                  "<EAN>5901234123457</EAN>"
                  "<BuyerItemCode>B-1</BuyerItemCode>"
                  "<SupplierItemCode>S-1</SupplierItemCode>"
                  "<DespatchedQuantity>7.500</DespatchedQuantity>"
                  "<OrderedQuantity>10.000</OrderedQuantity>"
                  "<UnitOfMeasure>PCE</UnitOfMeasure>"
                  "<ItemDescription><![CDATA[Чай чёрный]]></ItemDescription>"
                  "<UnitNetPrice>12.50</UnitNetPrice>"
                  "<NetAmount>93.75</NetAmount>"
                  "<TaxRate>10.5</TaxRate>"
                  "<CountryOfOriginCode>RU</CountryOfOriginCode>"
                  "<CustomsDeclarationNumber>12345678/010108/1234567</CustomsDeclarationNumber>"
                  "</Line-Item>"
                  "<Package-Reference><PackageId>2</PackageId><Quantity>5.000</Quantity>"
                  "</Package-Reference>"
                  "<Package-Reference><PackageId>3</PackageId><Quantity>2.500</Quantity>"
                  "</Package-Reference>"
                  "</Line></DespatchAdvice-Lines>"
                  "<DespatchAdvice-Summary><TotalAmount>93.75</TotalAmount>"
                  "<TotalQuantity>7.50</TotalQuantity></DespatchAdvice-Summary>"
                  "</Document-DespatchAdvice>"));
}

TEST_F(DespatchAdvice, ALineWithoutValuesKeepsTheElementsThatAlwaysStand) {
  setLines({std::vector<std::string>(23)});
  EXPECT_THAT(written(), ::testing::HasSubstr("<Line><Line-Item><LineNumber/><EAN/>"
                                              "<DespatchedQuantity/></Line-Item></Line>"));
}

TEST_F(DespatchAdvice, KeepsTheLinesInTheirOrder) {
  setLines({line("1"), line("3"), line("2")});
  EXPECT_THAT(lineNumbers(), ::testing::ElementsAre("1", "3", "2"));
}

TEST_F(DespatchAdvice, WritesNoMoreRowsThanAreCounted) {
  setLines({line("1"), line("2")});
  setPackages({package("2", "1"), package("3", "1")});
  test.session.LineCount = 1;
  test.session.IloscPozycjiOpak = 0;
  const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
  EXPECT_EQ(document->node().selectAll("//Line").size(), 1U);
  EXPECT_EQ(document->node().selectAll("//Packing-Sequence").size(), 1U);
}

TEST_F(DespatchAdvice, ATaxRateThatIsMissingIsLeftOutAndZeroIsWritten) {
  const char* path = "//TaxRate";
  std::vector<std::string> cells = line("1");
  for (const auto& [rate, expected] : std::vector<std::pair<const char*, const char*>>{
           {"", "(none)"}, {"-1", "(none)"}, {"0", "0"}, {"18", "18"}}) {
    cells[GRD_POZ_TAX_RATE] = rate;
    setLines({cells});
    EXPECT_EQ(value(path), expected) << rate;
  }
}

TEST_F(DespatchAdvice, TheMarkOfAMissingOrderLineNumberIsWritten) {
  std::vector<std::string> cells = line("1");
  cells[GRD_POZ_ORDER_LINE] = "-1";
  setLines({cells});
  EXPECT_EQ(value("//OrderLineNumber"), "-1");
}

TEST_F(DespatchAdvice, AReferenceOfThreeFieldsHasNoQuantity) {
  std::vector<std::string> cells = line("1");
  cells[GRD_POZ_PACK_REFS] = "2@@1,5";
  setLines({cells});
  EXPECT_THAT(written(),
              ::testing::HasSubstr("</Line-Item><Package-Reference><PackageId>2</PackageId>"
                                   "</Package-Reference></Line>"));
}

TEST_F(DespatchAdvice, EmptyTotalsAreWrittenAsMissing) {
  setLines({line("1")});
  EXPECT_THAT(written(),
              ::testing::HasSubstr("<DespatchAdvice-Summary><TotalAmount>-1</TotalAmount>"
                                   "<TotalQuantity>-1</TotalQuantity>"));
}

TEST_F(DespatchAdvice, TotalsAreRoundedToTwoDecimalsAndTheTableKeepsItsOwn) {
  setLines({line("1")});
  form.grdSuma.setCell(1, GRD_SUMA_QTY_DESPATCHED, "7,125");
  form.grdSuma.setCell(1, GRD_SUMA_NET_AMOUNT, "0,1");
  EXPECT_EQ(value("//TotalQuantity"), "7.13");
  EXPECT_EQ(value("//TotalAmount"), "0.10");
  EXPECT_EQ(form.grdSuma.cell(1, GRD_SUMA_QTY_DESPATCHED), "7,125");
}

TEST_F(DespatchAdvice, ADescriptionIsProtectedByItsCDataSection) {
  std::vector<std::string> cells = line("1");
  cells[GRD_POZ_NAME] = "Сок <100%> & вода";
  setLines({cells});
  EXPECT_THAT(written(), ::testing::HasSubstr(
                             "<ItemDescription><![CDATA[Сок <100%> & вода]]></ItemDescription>"));
}

TEST_F(DespatchAdvice, AnEndOfCDataInADescriptionFailsInTheLines) {
  std::vector<std::string> cells = line("1");
  cells[GRD_POZ_NAME] = "a]]>b";
  setLines({cells});
  expectFailure("10", "Invalid procedure call or argument");
}

TEST_F(DespatchAdvice, MarkupInAPackageFailsInThePackages) {
  for (const char* text : {"a&b", "a<b", "]]>", "\x01"}) {
    std::vector<std::string> cells = package("2", "1");
    cells[GRD_OPAK_SERIAL_NUMBER] = text;
    setPackages({package("3", "1"), cells, package("4", "1")});
    expectFailure("9", "Invalid procedure call or argument");
  }
}

TEST_F(DespatchAdvice, MarkupInALineFailsInTheLines) {
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

TEST_F(DespatchAdvice, AFailureInThePackagesComesBeforeOneInTheLines) {
  std::vector<std::string> cells = line("1");
  cells[GRD_POZ_EAN] = "<";
  setLines({cells});
  cells = package("2", "1");
  cells[GRD_OPAK_TYPE] = "&";
  setPackages({cells});
  expectFailure("9", "Invalid procedure call or argument");
}

TEST_F(DespatchAdvice, WellFormedMarkupInACellPassesAsMarkup) {
  std::vector<std::string> cells = line("2");
  cells[GRD_POZ_EAN] = "1</EAN><Extra/><EAN>2";
  cells[GRD_POZ_CODE_BY_BUYER] = "A&amp;B";
  setLines({line("1"), cells, line("3")});
  const std::string text = written();
  EXPECT_THAT(text, ::testing::HasSubstr("<EAN>1</EAN><Extra/><EAN>2</EAN>"
                                         "<BuyerItemCode>A&amp;B</BuyerItemCode>"));
  EXPECT_THAT(lineNumbers(), ::testing::ElementsAre("1", "2", "3"));
}

TEST_F(DespatchAdvice, MarkupCantReachBeyondItsElement) {
  std::vector<std::string> first = line("1");
  first[GRD_POZ_COUNTRY] =
      "</CountryOfOriginCode></Line-Item></Line><Line><Line-Item>"
      "<CountryOfOriginCode>";
  setLines({first});
  expectFailure("10", "Invalid procedure call or argument");
}

TEST_F(DespatchAdvice, BeyondTheReachOfTheCellIndexItOverflowsInThePackages) {
  form.grdOpakowania.setRows(2185);
  test.session.IloscPozycjiOpak = 2184;
  expectFailure("9", "Overflow");
}

TEST_F(DespatchAdvice, BeyondTheReachOfTheCellIndexItOverflowsInTheLines) {
  form.grdPozycje.setRows(1425);
  test.session.LineCount = 1424;
  expectFailure("10", "Overflow");
}

TEST_F(DespatchAdvice, OfTwoRowsThatFailTheUpperOneIsTold) {
  form.grdPozycje.setRows(1425);
  test.session.LineCount = 1424;
  form.grdPozycje.setCell(5, GRD_POZ_EAN, "\x01");
  expectFailure("10", "Invalid procedure call or argument");
}

TEST_F(DespatchAdvice, AtTheTablesLimitsIsWhole) {
  form.grdPozycje.setRows(1424);
  form.grdOpakowania.setRows(2184);
  test.session.LineCount = 1423;
  test.session.IloscPozycjiOpak = 2183;
  const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
  ASSERT_NE(document, nullptr);
  EXPECT_EQ(document->node().selectAll("//Line").size(), 1423U);
  EXPECT_EQ(document->node().selectAll("//Packing-Sequence").size(), 2184U);
}

TEST_F(DespatchAdvice, MakingItChangesNothingAndCanBeRepeated) {
  setLines({line("1")});
  setPackages({package("2", "1")});
  form.grdPozycje.setColumn(3);
  const std::string first = written();
  EXPECT_EQ(written(), first);
  EXPECT_EQ(TestEditor::row(form.grdPozycje, 1), line("1"));
  EXPECT_EQ(TestEditor::row(form.grdOpakowania, 1), package("2", "1"));
  EXPECT_EQ(form.grdPozycje.column(), 3);
}

TEST(DespatchAdviceInAPointLocale, WritesTheSameNumbersDatesAndTimes) {
  TestEditor test("en_US");
  AwizoForm& form = test.form;
  form.txtDataAwiza.setDate(makeDate(2026, 2, 1));
  form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 3, 4));
  form.txtDespatchAdviceTime.setTime(TimeOfDay{15, 4, 0});
  std::vector<std::string> cells(23);
  cells[GRD_POZ_QTY_DESPATCHED] = "1.500";
  cells[GRD_POZ_PACK_REFS] = "2@A@1@1.500";
  TestEditor::fill(form.grdPozycje, {cells});
  test.session.LineCount = 1;
  form.grdSuma.setCell(1, GRD_SUMA_QTY_DESPATCHED, "1.500");
  const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
  ASSERT_NE(document, nullptr);
  const auto value = [&](std::string_view path) {
    return document->node().selectSingle(path).text();
  };
  EXPECT_EQ(value("//DespatchAdviceDate"), "2026-02-01");
  EXPECT_EQ(value("//EstimatedDeliveryDate"), "2026-03-04");
  EXPECT_EQ(value("//DespatchAdviceTime"), "15:04");
  EXPECT_EQ(value("//DespatchedQuantity"), "1.500");
  EXPECT_EQ(value("//Package-Reference/Quantity"), "1.500");
  EXPECT_EQ(value("//TotalQuantity"), "1.50");
}

TEST(DespatchAdviceSkeleton, HoldsOnlyWhatAlwaysStands) {
  const Libxml2 xml;
  EXPECT_EQ(CreateDesAdvSkeleton(xml, "", "", "", 0, "", "", 5)->fileBytes(),
            std::string("<Document-DespatchAdvice><DespatchAdvice-Header>"
                        "<DespatchAdviceNumber/><DespatchAdviceDate/><EstimatedDeliveryDate/>"
                        "<BuyerOrderNumber/><Currency>RUR</Currency></DespatchAdvice-Header>"
                        "<DespatchAdvice-Parties><Buyer><ILN/></Buyer><Seller><ILN/></Seller>"
                        "</DespatchAdvice-Parties>") +
                emptyConsignment + "</Document-DespatchAdvice>");
}

TEST(DespatchAdviceSkeleton, HoldsPlacesForOptionalValuesWithoutTheValues) {
  const Libxml2 xml;
  EXPECT_EQ(
      CreateDesAdvSkeleton(xml, "10:00", "11:00", "2026-01-01", 1, "77", "952", 0)->fileBytes(),
      std::string("<Document-DespatchAdvice><DespatchAdvice-Header>"
                  "<DespatchAdviceNumber/><DespatchAdviceDate/><DespatchAdviceTime/>"
                  "<EstimatedDeliveryDate/><EstimatedDeliveryTime/><BuyerOrderNumber/>"
                  "<BuyerOrderDate/><Currency>RUR</Currency></DespatchAdvice-Header>"
                  "<DespatchAdvice-Parties><Buyer><ILN/></Buyer>"
                  "<Seller><ILN/><CodeByBuyer/></Seller><DeliveryPoint><ILN/></DeliveryPoint>"
                  "</DespatchAdvice-Parties>") +
          emptyConsignment +
          "<DespatchAdvice-Lines/><DespatchAdvice-Summary><TotalAmount/><TotalQuantity/>"
          "</DespatchAdvice-Summary></Document-DespatchAdvice>");
}

TEST(DespatchAdviceParts, CanBeAddedOneByOne) {
  const Libxml2 xml;
  const auto document = CreateDesAdvSkeleton(xml, "", "", "", 1, "", "", 0);
  PackingSequenceValues box;
  box.packageId = "2";
  box.weight = "1.5";
  AddPackingSequence(xml, *document, box);
  DesAdvLineValues line;
  line.ean = "5";
  line.taxCategory = "S";
  line.expiryDate = "2026-01-01";
  AddDesAdvLine(xml, *document, line);
  EXPECT_THAT(document->fileBytes(),
              ::testing::HasSubstr("<Packing-Sequence><PackageId>2</PackageId>"
                                   "<PackageWeight>1.5</PackageWeight></Packing-Sequence>"
                                   "</DespatchAdvice-Consignment><DespatchAdvice-Lines>"
                                   "<Line><Line-Item><LineNumber/><EAN>5</EAN>"
                                   "<DespatchedQuantity/></Line-Item></Line>"
                                   "</DespatchAdvice-Lines>"));
}

TEST(DespatchAdviceParts, ThatAreNotWellFormedAreAnError) {
  const Libxml2 xml;
  const auto document = CreateDesAdvSkeleton(xml, "", "", "", 1, "", "", 0);
  const auto errorNumber = [](const auto& act) {
    try {
      act();
      return 0;
    } catch (const RunTimeError& error) {
      return static_cast<int>(error.number());
    }
  };
  PackingSequenceValues box;
  box.packageId = "<";
  EXPECT_EQ(errorNumber([&] { AddPackingSequence(xml, *document, box); }), 5);
  DesAdvLineValues line;
  line.description = "]]>";
  EXPECT_EQ(errorNumber([&] { AddDesAdvLine(xml, *document, line); }), 5);
}

}  // namespace
}  // namespace awizo::test
