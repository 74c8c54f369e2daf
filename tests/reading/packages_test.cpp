#include "reading_desk.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string package(const std::string& id) {
  return "<Packing-Sequence><PackageId>" + id + "</PackageId><ParentId>1</ParentId>" +
         "<PackageType>09</PackageType></Packing-Sequence>";
}

std::string plainBox(const std::string& text) { return "VIRDDesAdv|none|OK|" + text; }

class ReadingPackages : public ::testing::Test, public ReadingDesk {
 protected:
  explicit ReadingPackages(const char* debugLevel = "") : ReadingDesk("ru_RU", debugLevel) {}

  void readPackages(const std::string& children) {
    AdvicePieces document;
    document.consignment =
        "<DespatchAdvice-Consignment>" + children + "</DespatchAdvice-Consignment>";
    read(document);
  }
};

TEST_F(ReadingPackages, EachElementCostsABoxAndGetsARow) {
  readPackages(package("1") + package("2") + package("17"));
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, plainBox("1"), plainBox("2"), plainBox("17")));
  EXPECT_EQ(packages.rows(), 4);
  EXPECT_THAT(column(packages, GRD_OPAK_LP), ElementsAre("1", "2", "3"));
  EXPECT_THAT(column(packages, GRD_OPAK_ID_LOW), ElementsAre("1", "2", "17"));
  EXPECT_THAT(column(packages, GRD_OPAK_SERIAL), ElementsAre("", "", ""));
  EXPECT_THAT(column(packages, GRD_OPAK_TYPE), ElementsAre("", "", ""));
  EXPECT_EQ(packages.row(), 1);
  EXPECT_EQ(packages.column(), 1);
  EXPECT_TRUE(packages.redraw());
}

TEST_F(ReadingPackages, TheBoxComesBeforeTheCell) {
  face.whileBoxIsOpen([](const MessageBox&) {});
  face.whileBoxIsOpen([&](const MessageBox& box) {
    EXPECT_EQ(box.text, "17");
    EXPECT_EQ(packages.cell(1, GRD_OPAK_LP), "1");
    EXPECT_EQ(packages.cell(1, GRD_OPAK_ID_LOW), "");
    EXPECT_FALSE(packages.redraw());
  });
  readPackages(package("17"));
  EXPECT_EQ(packages.cell(1, GRD_OPAK_ID_LOW), "17");
}

TEST_F(ReadingPackages, AMissingIdIsAnEmptyBox) {
  readPackages("<Packing-Sequence/>");
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, plainBox("")));
  EXPECT_EQ(packages.cell(1, GRD_OPAK_ID_LOW), "");
}

TEST_F(ReadingPackages, OtherElementsAreNoPackages) {
  readPackages("<!-- x --><Other/>" + package("5"));
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, plainBox("5")));
  EXPECT_EQ(packages.rows(), 2);
}

TEST_F(ReadingPackages, AConsignmentWithoutPackagesLeavesOneRow) {
  putPackages(3, [](int) { return 0; });
  readPackages("");
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1));
  EXPECT_EQ(packages.rows(), 2);
}

TEST_F(ReadingPackages, AMissingConsignmentIsToldAndReportedAndTheLinesAreRead) {
  putPackages(3, [](int) { return 0; });
  packages.setRow(3);
  AdvicePieces document;
  document.consignment = "";
  read(document);
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, plainBox("break3"), incomplete));
  EXPECT_EQ(packages.rows(), 4);
  EXPECT_EQ(packages.row(), 3);
  EXPECT_EQ(session.LineCount, 1);
}

TEST_F(ReadingPackages, TheCountAndTheSerialsStayAndSoDoTheOtherColumns) {
  addPackage({.description = "Поддон"});
  addPackage({.description = "Коробка", .parent = 0});
  readPackages(package("1") + package("2") + package("3"));
  EXPECT_EQ(session.IloscPozycjiOpak, 2);
  EXPECT_EQ(form.LastPackageSerial, 3);
  EXPECT_EQ(packages.rows(), 4);
  EXPECT_THAT(column(packages, GRD_OPAK_DESC), ElementsAre("Поддон", "Коробка", ""));
  EXPECT_THAT(column(packages, GRD_OPAK_SERIAL), ElementsAre("2", "3", ""));
  EXPECT_THAT(column(packages, GRD_OPAK_ID_LOW), ElementsAre("1", "2", "3"));
}

TEST_F(ReadingPackages, InASessionWithoutPackagesTheirButtonsDoNothingAfterwards) {
  readPackages(package("1") + package("2"));
  form.btnEdytujOpak.userClick();
  form.btnUsunOpak.userClick();
  EXPECT_THAT(face.modalForms(), ElementsAre("DlgWczytajZapisz"));
  EXPECT_EQ(packages.rows(), 3);
  EXPECT_EQ(session.IloscPozycjiOpak, 0);
}

TEST_F(ReadingPackages, AddingAPackageAfterwardsStartsAgainAtTheFirstRow) {
  readPackages(package("1") + package("2"));
  addPackage({.description = "Поддон"});
  EXPECT_EQ(packages.rows(), 2);
  EXPECT_EQ(session.IloscPozycjiOpak, 1);
  EXPECT_EQ(packages.cell(1, GRD_OPAK_SERIAL), "2");
  EXPECT_EQ(packages.cell(1, GRD_OPAK_ID_LOW), "1");
}

TEST_F(ReadingPackages, RemovingAfterAFileOfFewerPackagesIsAnError) {
  addPackage({.description = "А"});
  addPackage({.description = "Б"});
  readPackages(package("1"));
  takeBoxes();
  packages.userCell(1, GRD_OPAK_DESC);
  form.btnUsunOpak.userClick();
  EXPECT_THAT(
      takeBoxes(),
      ElementsAre("Произошла ошибка в btnUsunOpak_Click()|critical|OK|Subscript out of range"));
}

/// Rows that a file brought have neither serial nor parent, so each lies in itself.
TEST_F(ReadingPackages, RemovingARowThatAFileBroughtEndsWithoutAHang) {
  addPackage({.description = "А"});
  addPackage({.description = "Б"});
  readPackages(package("1"));
  readPackages(package("1") + package("2"));
  takeBoxes();
  packages.userCell(2, GRD_OPAK_DESC);
  form.btnUsunOpak.userClick();
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка в btnUsunOpak_Click()|critical|OK|Out of stack space"));
}

TEST_F(ReadingPackages, TheLastReachableRowIsRead) {
  std::string all;
  for (int i = 1; i <= 2183; ++i) all += package(std::to_string(i));
  readPackages(all);
  EXPECT_EQ(packages.cell(2183, GRD_OPAK_ID_LOW), "2183");
  EXPECT_EQ(takeBoxes().back(), plainBox("2183"));
}

/// Only the columns 0 and 2 are written, which the index reaches one row longer.
TEST_F(ReadingPackages, BehindTheLimitTheReadingEnds) {
  std::string all;
  for (int i = 1; i <= 2185; ++i) all += package(std::to_string(i));
  readPackages(all);
  const auto boxes = takeBoxes();
  ASSERT_EQ(boxes.size(), 1U + 2184U + 1U);
  EXPECT_EQ(boxes[2184], plainBox("2184"));
  EXPECT_EQ(boxes.back(), incomplete);
  EXPECT_EQ(packages.cell(2184, GRD_OPAK_ID_LOW), "2184");
  EXPECT_FALSE(packages.redraw());
  EXPECT_EQ(session.LineCount, 0);
  EXPECT_TRUE(form.enabled());
}

TEST_F(ReadingPackages, MorePackagesThanSixteenBitsCountGetNoRowsAndAreNotShownOneByOne) {
  std::string all;
  for (int i = 1; i <= 32768; ++i) all += "<Packing-Sequence/>";
  readPackages(all);
  EXPECT_THAT(takeBoxes(), ElementsAre(plainBreak1, incomplete));
  EXPECT_EQ(packages.rows(), 2);
  EXPECT_TRUE(packages.redraw());
}

}  // namespace
}  // namespace awizo::test
