#include "written_despatch_advice.h"

namespace awizo::test {
namespace {

TEST_F(WrittenAdvice, WithoutLinesAndPackagesIsTheHeaderAndTheConsignmentPackage) {
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

TEST_F(WrittenAdvice, WithEveryOptionalHeaderValue) {
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

TEST_F(WrittenAdvice, EmptyHeaderValuesStandAsEmptyElements) {
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

TEST_F(WrittenAdvice, HeaderValuesAreEscaped) {
  form.txtNrAwiza.setText("A&B<C>");
  form.txtCodeByBuyer.setText("x & y");
  EXPECT_THAT(written(), ::testing::HasSubstr("<DespatchAdviceNumber>A&amp;B&lt;C&gt;</"));
  EXPECT_EQ(value("/Document-DespatchAdvice/DespatchAdvice-Parties/Seller/CodeByBuyer"), "x & y");
}

TEST_F(WrittenAdvice, ACharacterThatXmlCantHoldEndsAtItsStep) {
  form.lblILNKupWart.setCaption("1\x01");
  expectFailure("8", "Invalid procedure call or argument");
  form.txtNrZam.setText("\uFFFF");
  expectFailure("6", "Invalid procedure call or argument");
  form.txtNrAwiza.setText("\x02");
  expectFailure("1", "Invalid procedure call or argument");
}

TEST_F(WrittenAdvice, AMissingDeliveryDateEndsAtItsStep) {
  form.txtEstimatedDeliveryDate.setDate(std::nullopt);
  expectFailure("4", "Invalid use of Null");
}

TEST_F(WrittenAdvice, CarriesAPackageWithAllItsValues) {
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

TEST_F(WrittenAdvice, KeepsThePackagesInTheirOrderUnderTheirParents) {
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

TEST_F(WrittenAdvice, APackageWithoutSerialHasAnEmptyId) {
  setPackages({package("", "")});
  EXPECT_THAT(written(), ::testing::HasSubstr("<Packing-Sequence><PackageId/><ParentId>1</ParentId>"
                                              "</Packing-Sequence></DespatchAdvice-Consignment>"));
}

TEST_F(WrittenAdvice, CarriesALineWithAllItsValues) {
  std::vector<std::string> cells = lineCells();
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

TEST_F(WrittenAdvice, CommasOfALineStayWhereNoNumberStands) {
  std::vector<std::string> cells = line("1");
  for (const int column :
       {GRD_POZ_LP, GRD_POZ_ORDER_LINE, GRD_POZ_EAN, GRD_POZ_CODE_BY_BUYER, GRD_POZ_CODE_BY_SELLER,
        GRD_POZ_UNIT, GRD_POZ_NAME, GRD_POZ_COUNTRY, GRD_POZ_CDN}) {
    cells[static_cast<std::size_t>(column)] = "A, B";
  }
  setLines({cells});
  for (const char* element :
       {"LineNumber", "OrderLineNumber", "EAN", "BuyerItemCode", "SupplierItemCode",
        "UnitOfMeasure", "ItemDescription", "CountryOfOriginCode", "CustomsDeclarationNumber"}) {
    EXPECT_EQ(value(std::string("//Line-Item/") + element), "A, B") << element;
  }
}

TEST_F(WrittenAdvice, CommasOfAPackageStayWhereNoNumberStands) {
  std::vector<std::string> cells = package("A, B", "A, B");
  for (const int column : {GRD_OPAK_TYPE, GRD_OPAK_SERIAL_NUMBER, GRD_OPAK_LOCATION_ILN}) {
    cells[static_cast<std::size_t>(column)] = "A, B";
  }
  setPackages({package("2", "1"), cells});
  for (const char* element :
       {"PackageId", "ParentId", "PackageType", "SerialNumber", "DeliveryPlace"}) {
    EXPECT_EQ(value(std::string("//Packing-Sequence[3]/") + element), "A, B") << element;
  }
}

TEST_F(WrittenAdvice, ALineWithoutValuesKeepsTheElementsThatAlwaysStand) {
  setLines({lineCells()});
  EXPECT_THAT(written(), ::testing::HasSubstr("<Line><Line-Item><LineNumber/><EAN/>"
                                              "<DespatchedQuantity/></Line-Item></Line>"));
}

TEST_F(WrittenAdvice, KeepsTheLinesInTheirOrder) {
  setLines({line("1"), line("3"), line("2")});
  EXPECT_THAT(lineNumbers(), ::testing::ElementsAre("1", "3", "2"));
}

TEST_F(WrittenAdvice, WritesNoMoreRowsThanAreCounted) {
  setLines({line("1"), line("2")});
  setPackages({package("2", "1"), package("3", "1")});
  test.session.LineCount = 1;
  test.session.IloscPozycjiOpak = 0;
  const std::unique_ptr<XmlDocument> document = MakeDesAdv(test.editor);
  EXPECT_EQ(document->node().selectAll("//Line").size(), 1U);
  EXPECT_EQ(document->node().selectAll("//Packing-Sequence").size(), 1U);
}

TEST_F(WrittenAdvice, ATaxRateThatIsMissingIsLeftOutAndZeroIsWritten) {
  const char* path = "//TaxRate";
  std::vector<std::string> cells = line("1");
  for (const auto& [rate, expected] : std::vector<std::pair<const char*, const char*>>{
           {"", "(none)"}, {"-1", "(none)"}, {"0", "0"}, {"18", "18"}}) {
    cells[GRD_POZ_TAX_RATE] = rate;
    setLines({cells});
    EXPECT_EQ(value(path), expected) << rate;
  }
}

TEST_F(WrittenAdvice, TheMarkOfAMissingOrderLineNumberIsWritten) {
  std::vector<std::string> cells = line("1");
  cells[GRD_POZ_ORDER_LINE] = "-1";
  setLines({cells});
  EXPECT_EQ(value("//OrderLineNumber"), "-1");
}

TEST_F(WrittenAdvice, AReferenceOfThreeFieldsHasNoQuantity) {
  std::vector<std::string> cells = line("1");
  cells[GRD_POZ_PACK_REFS] = "2@@1,5";
  setLines({cells});
  EXPECT_THAT(written(),
              ::testing::HasSubstr("</Line-Item><Package-Reference><PackageId>2</PackageId>"
                                   "</Package-Reference></Line>"));
}

TEST_F(WrittenAdvice, EmptyTotalsAreWrittenAsMissing) {
  setLines({line("1")});
  EXPECT_THAT(written(),
              ::testing::HasSubstr("<DespatchAdvice-Summary><TotalAmount>-1</TotalAmount>"
                                   "<TotalQuantity>-1</TotalQuantity>"));
}

TEST_F(WrittenAdvice, TotalsAreRoundedToTwoDecimalsAndTheTableKeepsItsOwn) {
  setLines({line("1")});
  form.grdSuma.setCell(1, GRD_SUMA_QTY_DESPATCHED, "7,125");
  form.grdSuma.setCell(1, GRD_SUMA_NET_AMOUNT, "0,1");
  EXPECT_EQ(value("//TotalQuantity"), "7.13");
  EXPECT_EQ(value("//TotalAmount"), "0.10");
  EXPECT_EQ(form.grdSuma.cell(1, GRD_SUMA_QTY_DESPATCHED), "7,125");
}

}  // namespace
}  // namespace awizo::test
