#include <set>

#include "formats/advice_of_document.h"
#include "formats/advice_of_tables.h"
#include "formats/despatch_advice_elements.h"
#include "formats/despatch_advice_writer.h"
#include "support/cells.h"
#include "support/files/files.h"
#include "support/test_editor.h"
#include "tables/columns/columns.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A document that has every value.
struct FullAdvice {
  explicit FullAdvice(const char* localeName) : test(localeName) {
    AwizoForm& form = test.form;
    form.txtNrAwiza.setText("WZ/7 & <8>");
    form.txtDataAwiza.setDate(makeDate(2026, 11, 21));
    form.txtDespatchAdviceTime.setTime(TimeOfDay{9, 5, 0});
    form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 11, 22));
    form.txtEstimatedDeliveryTime.setTime(TimeOfDay{14, 30, 0});
    form.txtNrZam.setText("ЗК-7");
    form.dpDataZam.setDate(makeDate(2026, 11, 2));
    form.txtCodeByBuyer.setText("77");
    form.lblCurrencyWart.setCaption("EUR");
    form.lblILNKupWart.setCaption("9520002000019");
    form.lblILNSprzedWart.setCaption("9520001000010");
    form.DeliveryILN = "9520002000026";
    fillPackages();
    fillLines();
  }

  std::string decimal(const char* whole, const char* part) const {
    return whole + test.session.DecimalSeparator + part;
  }

  void fillPackages() {
    const auto package = [&](const char* serial, const char* parent) {
      return packageCells({{GRD_OPAK_SERIAL, serial},
                           {GRD_OPAK_PARENT_SERIAL, parent},
                           {GRD_OPAK_TYPE, "201"},
                           {GRD_OPAK_SERIAL_NUMBER, "354107380000001051"},
                           {GRD_OPAK_LOCATION_ILN, "9520002000026"},
                           {GRD_OPAK_WEIGHT, decimal("12", "500")},
                           {GRD_OPAK_HEIGHT, decimal("1", "200")},
                           {GRD_OPAK_LENGTH, decimal("0", "800")},
                           {GRD_OPAK_WIDTH, decimal("0", "600")}});
    };
    TestEditor::fill(test.form.grdOpakowania,
                     {package("2", "9"), package("3", "2"), package("4", "1")});
    test.session.IloscPozycjiOpak = 3;
  }

  void fillLines() {
    const std::string references = "2@Короб@1@" + decimal("5", "000") + "$3@Короб$4@@@";
    const auto line = [&](const char* number, const std::string& packages) {
      return lineCells({{GRD_POZ_LP, number},
                        {GRD_POZ_EAN, "5901234123457"},
                        {GRD_POZ_NAME, "Чай <чёрный> & зелёный"},
                        {GRD_POZ_QTY_ORDERED, decimal("10", "000")},
                        {GRD_POZ_QTY_DESPATCHED, decimal("7", "500")},
                        {GRD_POZ_PRICE, decimal("12", "50")},
                        {GRD_POZ_CODE_BY_BUYER, "B-1"},
                        {GRD_POZ_CODE_BY_SELLER, "S-1"},
                        {GRD_POZ_UNIT, "PCE"},
                        {GRD_POZ_ORDER_LINE, "3"},
                        {GRD_POZ_NET_AMOUNT, decimal("93", "75")},
                        {GRD_POZ_TAX_RATE, "18"},
                        {GRD_POZ_COUNTRY, "RU"},
                        {GRD_POZ_CDN, "12345678/010108/1234567"},
                        {GRD_POZ_PACK_REFS, packages}});
    };
    TestEditor::fill(test.form.grdPozycje, {line("1", references), line("2", ""), lineCells()});
    test.session.LineCount = 3;
    test.form.grdSuma.setCell(1, GRD_SUMA_QTY_DESPATCHED, decimal("15", "000"));
    test.form.grdSuma.setCell(1, GRD_SUMA_NET_AMOUNT, decimal("187", "50"));
  }

  std::unique_ptr<XmlDocument> written() {
    auto document = MakeDesAdv(test.editor);
    EXPECT_THAT(describe(test.face.boxes()), IsEmpty());
    return document;
  }

  TestEditor test;
};

struct Advice : ::testing::TestWithParam<const char*>, FullAdvice {
  Advice() : FullAdvice(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(Locales, Advice, ::testing::Values("ru_RU", "en_US"),
                         [](const auto& parameter) { return std::string(parameter.param); });

template <class Part, class Elements>
std::vector<std::string> emptyValues(const Part& part, const Elements& elements) {
  std::vector<std::string> found;
  for (const auto& element : elements) {
    if ((part.*element.value).empty()) found.emplace_back(element.path);
  }
  return found;
}

TEST_P(Advice, OfTheTablesHasEveryValueThatADocumentCanHave) {
  const DespatchAdvice advice = adviceOf(test.editor);
  EXPECT_THAT(emptyValues(advice.header, headerElements), IsEmpty());
  EXPECT_THAT(emptyValues(advice.packages.at(0), packageElements), IsEmpty());
  EXPECT_THAT(emptyValues(advice.lines.at(0), lineElements), IsEmpty());
  EXPECT_THAT(emptyValues(advice.totals, totalElements), IsEmpty());
}

TEST_P(Advice, WrittenAndReadBackIsTheSame) {
  const DespatchAdvice advice = adviceOf(test.editor);
  EXPECT_EQ(adviceOf(*written()), advice);
  EXPECT_EQ(adviceOf(*xmlOf(test.xml, advice)), advice);
}

TEST_P(Advice, IsWrittenAsTheFormWritesIt) {
  EXPECT_EQ(xmlOf(test.xml, adviceOf(test.editor))->fileBytes(), written()->fileBytes());
}

TEST_P(Advice, HasItsValuesAsADocumentHasThem) {
  const DespatchAdvice advice = adviceOf(test.editor);
  EXPECT_EQ(advice.header.time, "09:05");
  EXPECT_EQ(advice.header.orderDate, "2026-11-02");
  EXPECT_EQ(advice.packages[0].parentId, "1") << "the first package lies in the consignment";
  EXPECT_EQ(advice.packages[1].parentId, "2");
  EXPECT_EQ(advice.packages[1].weight, "12.500");
  EXPECT_EQ(advice.lines[0].price, "12.50");
  EXPECT_EQ(advice.lines[0].description, "Чай <чёрный> & зелёный");
  EXPECT_THAT(advice.lines[0].packages,
              ElementsAre(PackageReference{"2", "5.000"}, PackageReference{"3", std::nullopt},
                          PackageReference{"4", ""}));
  EXPECT_THAT(advice.lines[1].packages, IsEmpty());
  EXPECT_EQ(advice.lines[2], AdviceLine());
  EXPECT_EQ(advice.totals, (AdviceTotals{"187.50", "15.00"}));
}

TEST(AdviceOfTables, WithoutLinesHasNoTotals) {
  FullAdvice full("ru_RU");
  full.test.session.LineCount = 0;
  EXPECT_EQ(adviceOf(full.test.editor).totals, AdviceTotals());
  EXPECT_EQ(adviceOf(*full.written()), adviceOf(full.test.editor));
}

TEST(AdviceOfTables, OfAMissingRateKnowsNothing) {
  FullAdvice full("ru_RU");
  full.test.form.grdPozycje.setCell(1, GRD_POZ_TAX_RATE, "-1");
  full.test.form.grdPozycje.setCell(1, GRD_POZ_ORDER_LINE, "-1");
  const DespatchAdvice advice = adviceOf(full.test.editor);
  EXPECT_EQ(advice.lines[0].taxRate, "");
  EXPECT_EQ(advice.lines[0].orderLine, "-1");
  EXPECT_EQ(adviceOf(*full.written()), advice);
}

TEST(AdviceOfDocument, HasAllThatTheSampleSays) {
  for (const char* name : {"despatch-advice.xml", "despatch-advice-windows-1251.xml"}) {
    const Libxml2 xml;
    const auto sample = xml.createDocument();
    ASSERT_TRUE(sample->loadBytes(projectFile(std::string("samples/") + name)));
    const DespatchAdvice advice = adviceOf(*sample);
    EXPECT_EQ(advice.header.number, "ОТГ-0318") << name;
    ASSERT_EQ(advice.packages.size(), 3U) << "the consignment is none of them";
    EXPECT_EQ(advice.packages[2].serialNumber, "395200010000000035");
    ASSERT_EQ(advice.lines.size(), 3U);
    EXPECT_EQ(advice.lines[2].customsNumber, "10130070/201126/П001234/2");
    EXPECT_THAT(advice.lines[1].packages,
                ElementsAre(PackageReference{"4", "5.000"}, PackageReference{"2", "2.500"}));
    EXPECT_EQ(xmlOf(xml, advice)->root().xml(), sample->root().xml()) << name;
  }
}

std::vector<std::string> packageIds(const DespatchAdvice& advice) {
  std::vector<std::string> ids;
  for (const AdvicePackage& package : advice.packages) ids.push_back(package.id);
  return ids;
}

DespatchAdvice adviceOfText(const std::string& text) {
  const auto document = Libxml2().createDocument();
  EXPECT_TRUE(document->loadText(text)) << text;
  return adviceOf(*document);
}

TEST(AdviceOfDocument, LeavesOutThePackageThatOnlyStandsForTheConsignment) {
  const auto ids = [](const std::string& packages) {
    return packageIds(adviceOfText("<Document-DespatchAdvice><DespatchAdvice-Consignment>" +
                                   packages +
                                   "</DespatchAdvice-Consignment></Document-DespatchAdvice>"));
  };
  const std::string root = "<Packing-Sequence><PackageId>1</PackageId></Packing-Sequence>";
  EXPECT_THAT(ids(root), IsEmpty());
  EXPECT_THAT(ids(root + root), ElementsAre("1"));
  EXPECT_THAT(ids("<Packing-Sequence><PackageId>1</PackageId><PackageWeight>3</PackageWeight>"
                  "</Packing-Sequence>"),
              ElementsAre("1"));
  EXPECT_THAT(ids("<Packing-Sequence><PackageId>2</PackageId></Packing-Sequence>" + root),
              ElementsAre("2", "1"));
}

TEST(AdviceOfDocument, OfRepeatedElementsHasTheFirstThatIsNotEmpty) {
  const DespatchAdvice advice = adviceOfText(
      "<Document-DespatchAdvice><DespatchAdvice-Lines><Line><Line-Item><EAN/><EAN>1</EAN>"
      "<EAN>2</EAN></Line-Item><Package-Reference><PackageId/><PackageId>3</PackageId>"
      "<PackageId>4</PackageId><Quantity/><Quantity>5</Quantity><Quantity>6</Quantity>"
      "</Package-Reference></Line></DespatchAdvice-Lines></Document-DespatchAdvice>");
  ASSERT_EQ(advice.lines.size(), 1U);
  EXPECT_EQ(advice.lines[0].ean, "1");
  EXPECT_THAT(advice.lines[0].packages, ElementsAre(PackageReference{"3", "5"}));
}

TEST(AdviceOfDocument, OfAnotherKindIsEmpty) {
  EXPECT_EQ(adviceOfText("<Document-Order/>"), DespatchAdvice());
  EXPECT_EQ(adviceOfText("<Document-DespatchAdvice/>"), DespatchAdvice());
}

void addKinds(const XmlNode& element, const std::string& kind, std::set<std::string>& kinds) {
  kinds.insert(kind);
  for (const XmlNode& child : element.children()) {
    if (!child.name().starts_with('#')) addKinds(child, kind + "/" + child.name(), kinds);
  }
}

TEST(WrittenKinds, AreThoseOfAFullDocument) {
  const auto document = FullAdvice("ru_RU").written();
  std::set<std::string> kinds;
  addKinds(document->root(), document->root().name(), kinds);
  EXPECT_EQ(writtenKinds(), kinds);
}

}  // namespace
}  // namespace awizo::test
