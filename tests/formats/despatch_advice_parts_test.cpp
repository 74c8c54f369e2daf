#include "formats/despatch_advice_skeleton.h"
#include "support/cells.h"
#include "support/error_of.h"
#include "written_despatch_advice.h"

namespace awizo::test {
namespace {

TEST(DespatchAdviceInAPointLocale, WritesTheSameNumbersDatesAndTimes) {
  TestEditor test("en_US");
  AwizoForm& form = test.form;
  form.txtDataAwiza.setDate(makeDate(2026, 2, 1));
  form.txtEstimatedDeliveryDate.setDate(makeDate(2026, 3, 4));
  form.txtDespatchAdviceTime.setTime(TimeOfDay{15, 4, 0});
  std::vector<std::string> cells = lineCells();
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
  EXPECT_EQ(CreateDesAdvSkeleton(xml, {})->fileBytes(),
            std::string("<Document-DespatchAdvice><DespatchAdvice-Header>"
                        "<DespatchAdviceNumber/><DespatchAdviceDate/><EstimatedDeliveryDate/>"
                        "<BuyerOrderNumber/><Currency>RUR</Currency></DespatchAdvice-Header>"
                        "<DespatchAdvice-Parties><Buyer><ILN/></Buyer><Seller><ILN/></Seller>"
                        "</DespatchAdvice-Parties>") +
                emptyConsignment + "</Document-DespatchAdvice>");
}

TEST(DespatchAdviceSkeleton, HoldsPlacesForOptionalValuesWithoutTheValues) {
  const Libxml2 xml;
  DespatchAdvice advice;
  advice.header.time = "10:00";
  advice.header.deliveryTime = "11:00";
  advice.header.orderDate = "2026-01-01";
  advice.header.codeByBuyer = "77";
  advice.header.deliveryILN = "952";
  advice.lines.resize(1);
  EXPECT_EQ(CreateDesAdvSkeleton(xml, advice)->fileBytes(),
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

DespatchAdvice withOneLine() {
  DespatchAdvice advice;
  advice.lines.resize(1);
  return advice;
}

TEST(DespatchAdviceParts, CanBeAddedOneByOne) {
  const Libxml2 xml;
  const auto document = CreateDesAdvSkeleton(xml, withOneLine());
  AdvicePackage box;
  box.id = "2";
  box.weight = "1.5";
  AddPackingSequence(xml, *document, box);
  AdviceLine line;
  line.ean = "5";
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
  const auto document = CreateDesAdvSkeleton(xml, withOneLine());
  AdvicePackage box;
  box.id = "<";
  EXPECT_EQ(errorNumberOf([&] { AddPackingSequence(xml, *document, box); }), 5);
  AdviceLine line;
  line.description = "]]>";
  EXPECT_EQ(errorNumberOf([&] { AddDesAdvLine(xml, *document, line); }), 5);
}

}  // namespace
}  // namespace awizo::test
