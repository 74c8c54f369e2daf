#include "formats/catalogue_completion.h"

#include "support/logged.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string orderOf(const std::string& lines) {
  return "<Document-Order><Order-Lines>" + lines + "</Order-Lines></Document-Order>";
}

std::string orderLine(const std::string& values) {
  return "<Line><Line-Item>" + values + "</Line-Item></Line>";
}

std::string catalogueOf(const std::string& lines) {
  return "<Document-ProductCatalogue><ProductCatalogue-Lines>" + lines +
         "</ProductCatalogue-Lines></Document-ProductCatalogue>";
}

constexpr const char* fullProduct =
    "<Line><Line-Item><EAN>5901234123457</EAN><ItemDescription>Чай</ItemDescription>"
    "<UnitOfMeasure>PCE</UnitOfMeasure><UnitNetPrice>12.50</UnitNetPrice>"
    "<BuyerItemCode>B</BuyerItemCode><SupplierItemCode>S</SupplierItemCode>"
    "<TaxRate>18</TaxRate><TaxCategoryCode>N</TaxCategoryCode>"
    "<PackDetails><UnitPacksize>6</UnitPacksize><Weight>0.25</Weight></PackDetails>"
    "<ProductLifespan><Period>12</Period><PeriodFormat>802</PeriodFormat></ProductLifespan>"
    "</Line-Item></Line>";

struct Completion : ::testing::Test {
  TestEditor test;
  std::unique_ptr<XmlDocument> order;
  XmlDocument* returned = nullptr;

  /// The order's lines after its completion.
  std::string complete(const std::string& orderLines, const std::string& catalogueLines) {
    const auto catalogue = test.document(catalogueOf(catalogueLines));
    order = test.document(orderOf(orderLines));
    returned = ProductCatalogToOrder(test.editor, *catalogue, *order);
    const std::string text = order->node().xml();
    const std::string around = orderOf("|");
    const std::size_t start = around.find('|');
    return text.size() < around.size() ? text : text.substr(start, text.size() - around.size() + 1);
  }

  /// The name of the product that a line of this EAN is completed from, "" for none.
  std::string productOf(const std::string& ean, const std::string& catalogueLines) {
    complete(orderLine("<EAN>" + ean + "</EAN>"), catalogueLines);
    const XmlNode name = order->node().selectSingle("//ItemDescription");
    return name ? name.text() : "";
  }

  static std::string product(const std::string& ean, const std::string& name) {
    return orderLine("<EAN>" + ean + "</EAN><ItemDescription>" + name + "</ItemDescription>");
  }

  void expectError(const std::string& description) {
    EXPECT_EQ(returned, nullptr);
    EXPECT_THAT(describe(test.face.takeBoxes()),
                ElementsAre("Произошла ошибка в ProductCatalogToOrder|critical|OK|" + description));
  }
};

TEST_F(Completion, GivesABareLineAllValuesInTheirOrder) {
  EXPECT_EQ(complete(orderLine("<EAN>5901234123457</EAN>"), fullProduct),
            orderLine("<EAN>5901234123457</EAN><UnitOfMeasure>PCE</UnitOfMeasure>"
                      "<ItemDescription>Чай</ItemDescription>"
                      "<OrderedUnitNetPrice>12.50</OrderedUnitNetPrice>"
                      "<BuyerItemCode>B</BuyerItemCode><SupplierItemCode>S</SupplierItemCode>"
                      "<TaxRate>18</TaxRate><TaxCategoryCode>N</TaxCategoryCode>"
                      "<Weight>0.25</Weight><Period>12</Period>"
                      "<PeriodFormat>802</PeriodFormat>"));
  EXPECT_EQ(returned, order.get());
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_F(Completion, KeepsWhatTheBuyerSent) {
  const std::string sent =
      "<EAN>5901234123457</EAN><UnitOfMeasure>KGM</UnitOfMeasure>"
      "<ItemDescription>Кофе</ItemDescription>"
      "<OrderedUnitNetPrice>1.00</OrderedUnitNetPrice><BuyerItemCode>b</BuyerItemCode>"
      "<SupplierItemCode>s</SupplierItemCode>";
  EXPECT_EQ(complete(orderLine(sent), fullProduct),
            orderLine(sent + "<TaxRate>18</TaxRate><TaxCategoryCode>N</TaxCategoryCode>"
                             "<Weight>0.25</Weight><Period>12</Period>"
                             "<PeriodFormat>802</PeriodFormat>"));
}

TEST_F(Completion, FillsAnEmptyElementWhereItStands) {
  EXPECT_EQ(complete(orderLine("<ItemDescription/><EAN>5901234123457</EAN><BuyerItemCode> "
                               "</BuyerItemCode>"),
                     fullProduct),
            orderLine("<ItemDescription>Чай</ItemDescription><EAN>5901234123457</EAN>"
                      "<BuyerItemCode>B</BuyerItemCode><UnitOfMeasure>PCE</UnitOfMeasure>"
                      "<OrderedUnitNetPrice>12.50</OrderedUnitNetPrice>"
                      "<SupplierItemCode>S</SupplierItemCode>"
                      "<TaxRate>18</TaxRate><TaxCategoryCode>N</TaxCategoryCode>"
                      "<Weight>0.25</Weight><Period>12</Period>"
                      "<PeriodFormat>802</PeriodFormat>"));
}

TEST_F(Completion, AValueOfMinusOneCountsAsMissing) {
  complete(orderLine("<EAN>5901234123457</EAN><UnitOfMeasure>-1</UnitOfMeasure>"), fullProduct);
  std::vector<std::string> units;
  for (const XmlNode& unit : order->node().selectAll("//UnitOfMeasure")) {
    units.push_back(unit.text());
  }
  EXPECT_THAT(units, ElementsAre("-1", "PCE"));
}

TEST_F(Completion, AppendsASecondTaxRateBehindTheOrdersOwn) {
  complete(orderLine("<EAN>5901234123457</EAN><TaxRate>10</TaxRate>"), fullProduct);
  std::vector<std::string> rates;
  for (const XmlNode& rate : order->node().selectAll("//TaxRate")) rates.push_back(rate.text());
  EXPECT_THAT(rates, ElementsAre("10", "18"));
}

TEST_F(Completion, AppendsEmptyElementsForWhatTheCatalogueLacks) {
  EXPECT_EQ(complete(orderLine("<EAN>1</EAN>"), orderLine("<EAN>1</EAN>")),
            orderLine("<EAN>1</EAN><UnitOfMeasure/><ItemDescription/><OrderedUnitNetPrice/>"
                      "<BuyerItemCode/><SupplierItemCode/><TaxRate/><TaxCategoryCode/><Weight/>"
                      "<Period/><PeriodFormat/>"));
}

TEST_F(Completion, EscapesWhatItCopies) {
  complete(orderLine("<EAN>1</EAN>"), product("1", "<![CDATA[A & <B>]]>"));
  EXPECT_THAT(order->node().xml(),
              ::testing::HasSubstr("<ItemDescription>A &amp; &lt;B&gt;</ItemDescription>"));
}

TEST_F(Completion, LeavesALineThatTheCatalogueDoesntKnow) {
  const std::string line = orderLine("<EAN>4</EAN><LineNumber>1</LineNumber>");
  EXPECT_EQ(complete(line, fullProduct), line);
  EXPECT_EQ(returned, order.get());
}

TEST_F(Completion, CompletesEachLineByItsOwnEan) {
  complete(product("1", "") + product("9", "") + product("2", "") + product("1", ""),
           product("1", "one") + product("2", "two"));
  std::vector<std::string> names;
  for (const XmlNode& name : order->node().selectAll("//ItemDescription")) {
    names.push_back(name.text());
  }
  EXPECT_THAT(names, ElementsAre("one", "", "two", "one"));
}

TEST_F(Completion, AppendsToTheFirstItemOfTheLine) {
  EXPECT_THAT(
      complete("<Line><Line-Item><A/></Line-Item><Line-Item><EAN>1</EAN></Line-Item></Line>",
               product("1", "one")),
      ::testing::StartsWith("<Line><Line-Item><A/><UnitOfMeasure/>"));
}

TEST_F(Completion, TakesTheFirstOfSeveralCatalogueLines) {
  EXPECT_EQ(productOf("1", product("2", "two") + product("1", "first") + product("1", "second")),
            "first");
}

TEST_F(Completion, ComparesEansAsNumbers) {
  EXPECT_EQ(productOf("0123", product("123", "found")), "found");
  EXPECT_EQ(productOf("123", product("00123", "found")), "found");
  EXPECT_EQ(productOf("123", product("123.0", "found")), "found");
  EXPECT_EQ(productOf("123", product("123.", "found")), "found");
  EXPECT_EQ(productOf("123", product("\n 123\t", "found")), "found");
  EXPECT_EQ(productOf(" 123 ", product("123", "found")), "found");
  EXPECT_EQ(productOf("0", product("-0", "found")), "found");
}

TEST_F(Completion, FindsNothingInEansThatAreNoNumbers) {
  for (const char* ean : {"", ".", "+123", "1 23", "123A", "12-3", "1.2.3", "- 123", "1e2", "x"}) {
    EXPECT_EQ(productOf("123", product(ean, "found")), "") << ean;
  }
  for (const char* ean : {"1e2", "1E2", "10e1", "1e+2", "1.0e2", "1000e-1"}) {
    EXPECT_EQ(productOf("100", product(ean, "found")), "") << ean;
    EXPECT_EQ(productOf("100.0", product(ean, "found")), "") << ean;
    EXPECT_EQ(productOf("100", product(ean, "none") + product("100", "found")), "found") << ean;
  }
  EXPECT_EQ(productOf("123", product("-123", "found")), "");
  EXPECT_EQ(productOf("123", product("123.5", "found")), "");
}

TEST_F(Completion, AnyEanOfACatalogueLineFindsIt) {
  const std::string line =
      "<Line><Line-Item><EAN>1</EAN><EAN>2</EAN><ItemDescription>two eans</ItemDescription>"
      "</Line-Item><Line-Item><EAN>3</EAN></Line-Item></Line>";
  for (const char* ean : {"1", "2", "3"}) EXPECT_EQ(productOf(ean, line), "two eans") << ean;
  EXPECT_EQ(productOf("3", line + product("3", "later")), "two eans");
}

TEST_F(Completion, LooksOnlyAtLinesOfTheCatalogue) {
  const std::string named = "<Line-Item><ItemDescription>found</ItemDescription>";
  for (const std::string& other :
       {"<Other>" + named + "<EAN>1</EAN></Line-Item></Other>",
        "<Line>" + named + "</Line-Item><Other><EAN>1</EAN></Other></Line>",
        "<Line>" + named + "</Line-Item><EAN>1</EAN></Line>",
        "<Line>" + named + "<Other>1</Other></Line-Item></Line>",
        "<Line>" + named + "<Other><EAN>1</EAN></Other></Line-Item></Line>",
        "<Line xmlns=\"urn:x\">" + named + "<EAN>1</EAN></Line-Item></Line>"}) {
    EXPECT_EQ(productOf("1", other), "") << other;
    EXPECT_EQ(productOf("1.0", other), "") << other;
  }
  EXPECT_EQ(productOf("1", "<Line>" + named + "<EAN>1</EAN></Line-Item></Line>"), "found");
}

TEST_F(Completion, ComparesEansOfManyDigitsAsFloatingNumbers) {
  EXPECT_EQ(productOf("99999999999999", product("99999999999999", "found")), "found");
  EXPECT_EQ(productOf("99999999999999", product("99999999999998", "found")), "");
  // Beyond sixteen digits neighbours are the same number.
  EXPECT_EQ(productOf("100000000000000001", product("100000000000000000", "found")), "found");
}

TEST_F(Completion, AnEanThatIsAnExpressionIsOne) {
  EXPECT_EQ(productOf("1.5", product("1.50", "found")), "found");
  EXPECT_EQ(productOf("-5", product("-5", "found")), "found");
  EXPECT_EQ(productOf("100+23", product("123", "found")), "found");
  // "ABC" compares with children of that name.
  EXPECT_EQ(productOf("ABC", product("123", "none")), "");
  EXPECT_EQ(productOf("ABC",
                      "<Line><ABC>7</ABC><Line-Item><EAN>7</EAN>"
                      "<ItemDescription>found</ItemDescription></Line-Item></Line>"),
            "found");
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_F(Completion, ALineWithoutEanIsAnError) {
  for (const char* line :
       {"<Line><Line-Item/></Line>", "<Line><Line-Item><EAN/></Line-Item></Line>",
        "<Linie><Line-Item><EAN>1</EAN></Line-Item></Linie>", "<!-- no line -->", "<Line/>"}) {
    complete(line, fullProduct);
    expectError("Invalid XPath expression.");
  }
}

TEST_F(Completion, AnEanThatMakesNoExpressionIsAnError) {
  for (const char* ean : {"5901 234", "5901]", "59+", "A'B", "1e2", "1E2", "-1e2", "1.0e2"}) {
    complete(orderLine(std::string("<EAN>") + ean + "</EAN>"), fullProduct);
    expectError("Invalid XPath expression.");
  }
}

TEST_F(Completion, AnErrorLeavesTheEarlierLinesCompleted) {
  complete(product("1", "") + "<Line/>" + product("1", ""), product("1", "one"));
  expectError("Invalid XPath expression.");
  EXPECT_EQ(order->node().selectAll("//ItemDescription[.='one']").size(), 1U);
}

TEST_F(Completion, AnOrderWithoutLinesElementIsAnError) {
  const auto catalogue = test.document(catalogueOf(fullProduct));
  order = test.document("<Document-Order/>");
  returned = ProductCatalogToOrder(test.editor, *catalogue, *order);
  expectError("Object variable or With block variable not set");
}

TEST_F(Completion, AnOrderWithoutLinesIsReturnedAsItIs) {
  EXPECT_EQ(complete("", fullProduct), "<Document-Order><Order-Lines/></Document-Order>");
  EXPECT_EQ(returned, order.get());
}

TEST_F(Completion, AnEmptyCatalogueCompletesNothing) {
  const auto catalogue = test.xml.createDocument();
  order = test.document(orderOf(orderLine("<EAN>1</EAN>")));
  EXPECT_EQ(ProductCatalogToOrder(test.editor, *catalogue, *order), order.get());
  EXPECT_EQ(order->node().xml(), orderOf(orderLine("<EAN>1</EAN>")));
}

TEST(CopyingACatalogueValue, ReadsThePresentValueFromWhereItIsTold) {
  TestEditor test;
  const auto order = test.document(orderOf("<Line><Line-Item/></Line>" + orderLine("<B/>")));
  const auto copy = test.document(orderLine("<B>kept</B>"));
  const auto product = test.document(orderLine("<A>1</A>"));
  const std::vector<XmlNode> lines = order->node().selectAll("//Line");
  CopyCatalogueValue(*order, lines, copy->root(), product->root(), 1,
                     {"Line-Item/A", "Line-Item/B", "B", Precedence::orderWins});
  EXPECT_EQ(order->node().xml(), orderOf("<Line><Line-Item/></Line>" + orderLine("<B/>")));
}

TEST(CopyingACatalogueValue, WritesToTheLineOfThatIndex) {
  TestEditor test;
  const auto order = test.document(orderOf("<Line><Line-Item/></Line>" + orderLine("<B/>")));
  const auto product = test.document(orderLine("<A>1</A>"));
  const std::vector<XmlNode> lines = order->node().selectAll("//Line");
  CopyCatalogueValue(*order, lines, lines[0], product->root(), 0,
                     {"Line-Item/A", "", "A", Precedence::catalogueIsAppended});
  CopyCatalogueValue(*order, lines, lines[1], product->root(), 1,
                     {"Line-Item/A", "Line-Item/B", "B", Precedence::orderWins});
  EXPECT_EQ(order->node().xml(), orderOf(orderLine("<A>1</A>") + orderLine("<B>1</B>")));
}

// The delivery place.

constexpr const char* places =
    "<dictionary-response><document-content><Document-LocalizationsCatalog><localizations>"
    "<localization><iln>9520002000026</iln><name>no</name><number>Магазин 1</number>"
    "<address>ул. Мира, 1</address></localization>"
    "<localization><iln>09520002000033</iln><number>Магазин 2</number></localization>"
    "<localization><iln>9520002000026</iln><number>again</number></localization>"
    "</localizations></Document-LocalizationsCatalog></document-content></dictionary-response>";

struct DeliveryPlace : ::testing::Test {
  TestEditor test;

  DeliveryPlace() {
    test.session.LocalizationsDom->loadText(places);
    test.session.LocalizationsLoaded = true;
    test.form.lblNazwaMiejscaDostawy.setCaption("old name");
    test.form.lblAdresMiejscaDostawy.setCaption("old address");
  }

  void expectShown(const std::string& name, const std::string& address) {
    EXPECT_EQ(test.form.lblNazwaMiejscaDostawy.caption(), name);
    EXPECT_EQ(test.form.lblAdresMiejscaDostawy.caption(), address);
    EXPECT_THAT(test.face.boxes(), IsEmpty());
  }
};

TEST_F(DeliveryPlace, ShowsNumberAndAddressOfTheFirstPlaceOfThatIln) {
  CompleteFromLocalizationCatalog(test.editor, "9520002000026");
  expectShown("Магазин 1", "ул. Мира, 1");
}

TEST_F(DeliveryPlace, ComparesTheIlnAsANumberAndShowsMissingValuesEmpty) {
  CompleteFromLocalizationCatalog(test.editor, "9520002000033");
  expectShown("Магазин 2", "");
}

TEST_F(DeliveryPlace, KnowsNoNumbersWithExponents) {
  test.session.LocalizationsDom->loadText(
      "<dictionary-response><document-content><Document-LocalizationsCatalog><localizations>"
      "<localization><iln>1e5</iln><number>none</number><address>none</address></localization>"
      "<localization><iln>100000</iln><number>Магазин</number></localization>"
      "</localizations></Document-LocalizationsCatalog></document-content></dictionary-response>");
  CompleteFromLocalizationCatalog(test.editor, "100000");
  expectShown("Магазин", "");
  CompleteFromLocalizationCatalog(test.editor, "1e5");
  expectShown("", "");
}

TEST_F(DeliveryPlace, IsEmptyForAnIlnThatIsUnknownEmptyOrNonsense) {
  for (const char* iln : {"1", "", "A B", "]", "'", "9520002000026e0"}) {
    test.form.lblNazwaMiejscaDostawy.setCaption("old name");
    test.form.lblAdresMiejscaDostawy.setCaption("old address");
    CompleteFromLocalizationCatalog(test.editor, iln);
    expectShown("", "");
  }
}

TEST_F(DeliveryPlace, WithoutACatalogueOnlyTheNameIsEmptied) {
  test.session.LocalizationsLoaded = false;
  openLog(test);
  CompleteFromLocalizationCatalog(test.editor, "9520002000026");
  expectShown("", "old address");
  EXPECT_THAT(loggedMessages(test), IsEmpty());
}

TEST_F(DeliveryPlace, LogsItsStartAndEnd) {
  openLog(test);
  CompleteFromLocalizationCatalog(test.editor, "9520002000026");
  EXPECT_THAT(
      loggedMessages(test),
      ElementsAre("CompleteFromLocalizationCatalog start przetwarzania slownika lokalizacji",
                  "CompleteFromLocalizationCatalog przetworzono slownik lokalizacji"));
}

}  // namespace
}  // namespace awizo::test
