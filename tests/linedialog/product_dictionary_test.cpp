#include "line_dialog.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The dictionary alone, without the dialog that shows it.
struct Dictionary : ::testing::TestWithParam<std::string> {
  TestEditor test{GetParam()};
  Sorter sorter{test.screen, test.editor.conversions};
  ProductDictionary products;

  void readDocument(std::string_view text) {
    const auto catalogue = test.document(text);
    products.read(catalogue->node().selectSingle("Document-ProductCatalogue"),
                  test.editor.conversions, sorter, test.screen,
                  "Произошла ошибка в Form_Load() (Dodaj)");
  }
  void readProducts(const std::vector<Product>& all) {
    std::string lines;
    for (const Product& product : all) lines += catalogueLine(product);
    readDocument(catalogueOf(lines));
  }
  /// A catalogue of one line with these elements in it.
  void readItem(const std::string& elements) {
    readDocument(catalogueOf("<Line><Line-Item>" + elements + "</Line-Item></Line>"));
  }
};
INSTANTIATE_TEST_SUITE_P(InBothLocales, Dictionary, ::testing::Values("ru_RU", "en_US"));

TEST_P(Dictionary, GivesTwelveValuesOfALine) {
  readItem(
      "<EAN>4601</EAN><ItemDescription> Чай\n чёрный </ItemDescription>"
      "<SupplierItemCode>s1</SupplierItemCode><BuyerItemCode>b1</BuyerItemCode>"
      "<UnitOfMeasure>KGM</UnitOfMeasure><TaxRate>18</TaxRate><UnitNetPrice>12.345</UnitNetPrice>"
      "<TaxCategoryCode>S</TaxCategoryCode><PackDetails><UnitPacksize>24</UnitPacksize>"
      "<Weight>0.5</Weight></PackDetails><ProductLifespan><Period>6</Period>"
      "<PeriodFormat>802</PeriodFormat></ProductLifespan>");
  EXPECT_THAT(products.ProdEAN, ElementsAre("4601"));
  EXPECT_THAT(products.ProdName, ElementsAre("Чай\n чёрный"));
  EXPECT_THAT(products.ProdSupplierCode, ElementsAre("s1"));
  EXPECT_THAT(products.ProdBuyerCode, ElementsAre("b1"));
  EXPECT_THAT(products.ProdUnit, ElementsAre("KGM"));
  EXPECT_THAT(products.ProdTaxRate, ElementsAre("18"));
  EXPECT_THAT(products.ProdPrice, ElementsAre(localNumber(test, "12,35")));
  EXPECT_THAT(products.ProdTaxCategory, ElementsAre("S"));
  EXPECT_THAT(products.ProdPackSize, ElementsAre("24"));
  EXPECT_THAT(products.ProdWeight, ElementsAre("0.5"));
  EXPECT_THAT(products.ProdPeriod, ElementsAre("6"));
  EXPECT_THAT(products.ProdPeriodFormat, ElementsAre("802"));
}

TEST_P(Dictionary, MarksAMissingEANAndNameAndLeavesTheRestEmpty) {
  readItem("");
  EXPECT_THAT(products.ProdEAN, ElementsAre("-1"));
  EXPECT_THAT(products.ProdName, ElementsAre("-1"));
  EXPECT_THAT(products.ProdPackSize, ElementsAre("1"));
  for (const auto* texts :
       {&products.ProdSupplierCode, &products.ProdBuyerCode, &products.ProdUnit,
        &products.ProdTaxRate, &products.ProdPrice, &products.ProdTaxCategory, &products.ProdPeriod,
        &products.ProdPeriodFormat, &products.ProdWeight}) {
    EXPECT_THAT(*texts, ElementsAre(""));
  }
}

TEST_P(Dictionary, TakesEmptyElementsAsEmpty) {
  readItem(
      "<EAN/><ItemDescription></ItemDescription><UnitOfMeasure/><UnitNetPrice/>"
      "<PackDetails><UnitPacksize/></PackDetails>");
  EXPECT_THAT(products.ProdEAN, ElementsAre(""));
  EXPECT_THAT(products.ProdName, ElementsAre(""));
  EXPECT_THAT(products.ProdUnit, ElementsAre(""));
  EXPECT_THAT(products.ProdPrice, ElementsAre(""));
  EXPECT_THAT(products.ProdPackSize, ElementsAre("1"));
}

TEST_P(Dictionary, TakesAUnitOfMinusOneAsNone) {
  readItem("<UnitOfMeasure>-1</UnitOfMeasure>");
  EXPECT_THAT(products.ProdUnit, ElementsAre(""));
}

TEST_P(Dictionary, PricesAndCategoriesAreNumbersOfTwoDecimals) {
  readItem("<UnitNetPrice>7,5</UnitNetPrice><TaxCategoryCode>3</TaxCategoryCode>");
  EXPECT_THAT(products.ProdPrice, ElementsAre(localNumber(test, "7,50")));
  EXPECT_THAT(products.ProdTaxCategory, ElementsAre(localNumber(test, "3,00")));
}

TEST_P(Dictionary, APriceThatIsNoNumberStaysAsItIs) {
  readItem("<UnitNetPrice>дорого</UnitNetPrice>");
  EXPECT_THAT(products.ProdPrice, ElementsAre("дорого"));
}

TEST_P(Dictionary, ChildrenThatAreNoLinesCountAsLinesWithoutValues) {
  readDocument(catalogueOf(
      "<!-- чай -->" + catalogueLine({"4601", "Чай", "s1", "b1"}) +
      "<Row><Line-Item><EAN>4602</EAN></Line-Item></Row>"
      "<Line xmlns=\"urn:other\"><Line-Item xmlns=\"\"><EAN>4603</EAN></Line-Item></Line>"));
  EXPECT_THAT(products.ProdEAN, ElementsAre("-1", "4601", "-1", "-1"));
  EXPECT_THAT(products.ProdSupplierCode, ElementsAre("", "s1", "", ""));
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_P(Dictionary, OfSeveralItemsTheFirstThatHasAValueGivesIt) {
  readDocument(
      catalogueOf("<Line><!-- первый --><Line-Item><ItemDescription>Чай</ItemDescription>"
                  "</Line-Item><Line-Item><EAN>4601</EAN><ItemDescription>Сок</ItemDescription>"
                  "</Line-Item></Line>"
                  "<Line><Line-Item><EAN>4602</EAN><EAN>4603</EAN></Line-Item><Other/></Line>"
                  "<Line><Line-Item/><Line-Item><EAN>4605</EAN></Line-Item></Line>"
                  "<Line><Item><EAN>4604</EAN></Item></Line>"));
  EXPECT_THAT(products.ProdEAN, ElementsAre("4601", "4602", "4605", "-1"));
  EXPECT_THAT(products.ProdName, ElementsAre("Чай", "-1", "-1", "-1"));
}

TEST_P(Dictionary, OnlyTheFirstListOfLinesIsRead) {
  readDocument(
      "<Document-ProductCatalogue><ProductCatalogue-Lines>" + catalogueLine({"4601", "Чай"}) +
      "</ProductCatalogue-Lines><ProductCatalogue-Lines>" + catalogueLine({"4602", "Сок"}) +
      "</ProductCatalogue-Lines></Document-ProductCatalogue>");
  EXPECT_THAT(products.ProdEAN, ElementsAre("4601"));
}

TEST_P(Dictionary, ListsAreSortedBlindToCaseAndTheTextsStayInTheirOrder) {
  readProducts({{"4603", "яблоко", "c", "Z"},
                {"4601", "Ёлка", "B", "y"},
                {"4602", "ЕЖЕВИКА", "a", "X"},
                {"4604", "apple", "D", "w"}});
  EXPECT_THAT(products.ProdName, ElementsAre("яблоко", "Ёлка", "ЕЖЕВИКА", "apple"));
  EXPECT_THAT(products.rowsByEAN(), ElementsAre("4601", "4602", "4603", "4604"));
  EXPECT_THAT(products.rowsBySupplierCode(), ElementsAre("a", "B", "c", "D"));
  EXPECT_THAT(products.rowsByBuyerCode(), ElementsAre("w", "X", "y", "Z"));
  const std::vector<std::string> cyrillic{"ЕЖЕВИКА", "Ёлка", "яблоко"};
  // Where the letters of another alphabet go is the locale's.
  std::vector<std::string> names = products.rowsByName();
  EXPECT_EQ(names[GetParam() == "ru_RU" ? 3 : 0], "apple");
  std::erase(names, "apple");
  EXPECT_EQ(names, cyrillic);
}

TEST_P(Dictionary, AListsRowIsAPlaceInItsIndex) {
  readProducts({{"4603", "в"}, {"4601", "б", "s1"}, {"4602", "а", "s0", "b0"}});
  EXPECT_THAT(products.IdxEAN, ElementsAre(1, 2, 0));
  EXPECT_THAT(products.IdxName, ElementsAre(2, 1, 0));
  // Empty texts have rows too.
  EXPECT_THAT(products.rowsBySupplierCode(), ElementsAre("", "s0", "s1"));
  EXPECT_THAT(products.IdxSupplierCode, ElementsAre(0, 2, 1));
  EXPECT_THAT(products.rowsByBuyerCode(), ElementsAre("", "", "b0"));
  EXPECT_EQ(products.IdxBuyerCode.back(), 2);
}

TEST_P(Dictionary, OfNoLinesHasOneEmptyElement) {
  readDocument(catalogueOf(""));
  EXPECT_THAT(products.ProdEAN, ElementsAre(""));
  EXPECT_THAT(products.rowsByEAN(), ElementsAre(""));
  EXPECT_THAT(products.rowsByName(), ElementsAre(""));
  EXPECT_THAT(test.face.boxes(), IsEmpty());
}

TEST_P(Dictionary, OfACatalogueWithoutItsListIsReportedAndHasOneEmptyElement) {
  readDocument("<Document-ProductCatalogue/>");
  EXPECT_THAT(describe(test.face.takeBoxes()),
              ElementsAre("Произошла ошибка в Form_Load() (Dodaj)|critical|OK|"
                          "Object variable or With block variable not set"));
  EXPECT_THAT(products.ProdPackSize, ElementsAre(""));
  EXPECT_THAT(products.IdxBuyerCode, ElementsAre(0));
}

TEST_P(Dictionary, ReadAgainForgetsTheEarlierCatalogue) {
  readProducts({{"4603", "в"}, {"4601", "б"}});
  readProducts({{"4602", "а"}});
  EXPECT_THAT(products.rowsByEAN(), ElementsAre("4602"));
  EXPECT_THAT(products.IdxName, ElementsAre(0));
}

TEST_P(Dictionary, GivesTheSortAStackOfItsSize) {
  readProducts({{"4603", "в"}, {"4601", "б"}, {"4602", "а"}});
  EXPECT_EQ(sorter.SplitLeft.size(), 5U);
}

TEST_P(Dictionary, LongAndStrangeValuesAreKept) {
  const std::string longName(100000, 'x');
  readProducts({{"&lt;&amp;\"", longName, "$@", "\xF0\x9F\x8D\x8E"}, {longName, "б"}});
  EXPECT_THAT(products.ProdEAN, ElementsAre("<&\"", longName));
  EXPECT_THAT(products.ProdName, ElementsAre(longName, "б"));
  EXPECT_THAT(products.ProdBuyerCode, ElementsAre("\xF0\x9F\x8D\x8E", ""));
}

}  // namespace
}  // namespace awizo::test
