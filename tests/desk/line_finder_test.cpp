#include "desk/line_finder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/forms/keys.h"
#include "support/control/taped_control.h"
#include "support/documents.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

struct LineFinderTest : ::testing::Test {
  LineFinderTest() {
    putLines(test.editor, 4);
    const char* names[] = {"Кофе", "Чай зелёный", "Какао", "Чай чёрный"};
    for (int row = 1; row <= 4; ++row) {
      lines.setCell(row, GRD_POZ_NAME, names[row - 1]);
      lines.setCell(row, GRD_POZ_EAN, "460700000011" + std::to_string(row));
    }
    finder.say = [this](std::string_view words) { said.emplace_back(words); };
  }
  void scan(std::string_view digits) {
    for (const char digit : digits) EXPECT_TRUE(finder.takeKey(digit));
  }

  TestEditor test;
  Table& lines = test.form.grdPozycje;
  LineFinder finder{test.editor};
  std::vector<std::string> said;
};

TEST_F(LineFinderTest, GoesToTheLineThatTheUserAsksForAndOnFromThere) {
  test.face.onModal([&] {
    EXPECT_FALSE(test.form.takesInput()) << "the dialog lies over the form";
    finder.findDialog.txtWhat.userType("чай");
    finder.findDialog.txtWhat.userKey(keys::enter);
  });
  finder.find();
  EXPECT_EQ(lines.row(), 2);
  finder.findAgain();
  EXPECT_EQ(lines.row(), 4);
  lines.setCell(2, GRD_POZ_NAME, "");
  lines.setCell(4, GRD_POZ_NAME, "");
  finder.findAgain();
  EXPECT_THAT(said, ElementsAre("Такой строки нет"));
}

TEST_F(LineFinderTest, AsksFirstWhereNothingWasAskedForYet) {
  test.face.onModal([&] { finder.findDialog.userClose(); });
  finder.findAgain();
  EXPECT_THAT(test.face.modalForms(), ElementsAre("FindDialog"));
}

TEST_F(LineFinderTest, ShowsNothingOverAFormThatTakesNoInput) {
  test.form.setEnabled(false);
  finder.find();
  finder.findAgain();
  finder.showFaults();
  EXPECT_TRUE(test.face.modalForms().empty());
}

TEST_F(LineFinderTest, FindsWhatIsScannedIntoTheSearchToo) {
  test.face.onModal([&] {
    finder.findDialog.txtWhat.userType("]C10104607000000113");
    finder.findDialog.txtWhat.userKey(keys::enter);
  });
  finder.find();
  EXPECT_EQ(lines.row(), 3);
}

TEST_F(LineFinderTest, FindsThePackageOfANumberThatIsScannedThere) {
  putPackages(test.editor, 3, [](int) { return 0; });
  test.form.grdOpakowania.setCell(2, GRD_OPAK_SERIAL_NUMBER, "395200010000000011");
  test.face.onModal([&] {
    finder.findDialog.txtWhat.userType("(00)395200010000000011");
    finder.findDialog.txtWhat.userKey(keys::enter);
  });
  finder.find();
  EXPECT_EQ(test.form.grdOpakowania.row(), 2);
  EXPECT_EQ(test.form.focus(), &test.form.grdOpakowania);
}

TEST_F(LineFinderTest, AScannedProductCanBeAnothers) {
  std::string taken;
  finder.takeProduct = [&](std::string_view ean) {
    taken = ean;
    return "взято";
  };
  scan("4607000000113");
  finder.takeKey(keys::enter);
  EXPECT_EQ(taken, "4607000000113");
  EXPECT_EQ(said.back(), "взято");
  EXPECT_EQ(lines.row(), 1);
  scan("395200010000000011");
  finder.takeKey(keys::enter);
  EXPECT_EQ(said.back(), "Нет упаковки с номером 395200010000000011");
}

TEST_F(LineFinderTest, AScannedCodeLeadsToItsLine) {
  scan("4607000000113");
  EXPECT_EQ(said.back(), "Код: 4607000000113");
  EXPECT_TRUE(finder.takeKey(keys::enter));
  EXPECT_EQ(said.back(), "");
  EXPECT_EQ(lines.row(), 3);
  scan("12345670");
  EXPECT_TRUE(finder.takeKey(keys::enter));
  EXPECT_EQ(said.back(), "Нет строки с кодом 12345670");
  EXPECT_EQ(lines.row(), 3);
}

TEST_F(LineFinderTest, AScannedNumberLeadsToItsPackage) {
  putPackages(test.editor, 3, [](int) { return 0; });
  Table& packages = test.form.grdOpakowania;
  packages.setCell(2, GRD_OPAK_SERIAL_NUMBER, "395200010000000011");
  packages.setRow(1);
  for (const char* scanned : {"00395200010000000011", "395200010000000011"}) {
    packages.setRow(1);
    test.form.txtNrAwiza.setFocus();
    scan(scanned);
    EXPECT_TRUE(finder.takeKey(keys::enter));
    EXPECT_EQ(packages.row(), 2) << scanned;
    EXPECT_EQ(test.form.focus(), &packages);
  }
  scan("395200010000000028");
  EXPECT_TRUE(finder.takeKey(keys::enter));
  EXPECT_EQ(said.back(), "Нет упаковки с номером 395200010000000028");
  EXPECT_EQ(packages.row(), 2);
}

TEST_F(LineFinderTest, WhatIsNoCodeIsTheTablesAndForgotten) {
  EXPECT_FALSE(finder.takeKey(keys::enter));
  EXPECT_TRUE(said.empty());
  for (const std::int16_t key : {keys::enter, keys::down, std::int16_t{0}}) {
    scan("123");
    EXPECT_FALSE(finder.takeKey(key));
    EXPECT_EQ(said.back(), "") << "the line's words are back";
  }
  scan("1234");
  finder.forgetCode();
  EXPECT_EQ(said.back(), "");
  scan("5678");
  EXPECT_FALSE(finder.takeKey(keys::enter)) << "too few digits without those before";
}

TEST(LineFinderOnTape, ItsDialogsAreNoPartOfTheRecord) {
  MemoryRecord record;
  TapedControl recorded(&record);
  recorded.desk.prepareFolder();
  recorded.desk.files.put(TestControl::partnerFile, TestControl::partnerInfo("ООО Покупатель"));
  recorded.desk.bag.values["OnLine"] = "Off";
  recorded.recording->start();
  recorded.show();
  LineFinder finder(recorded.desk.editor);
  const std::string before = record.bytes;
  recorded.desk.face.onModal([&] {
    EXPECT_FALSE(recorded.desk.form.takesInput());
    finder.findDialog.txtWhat.userType("чай");
    finder.findDialog.userClose();
  });
  finder.find();
  EXPECT_EQ(record.bytes, before);
  recorded.desk.form.txtNrAwiza.userType("ТН/1");
  TapedControl replayed(nullptr, sessionIn(record).records);
  replayed.recording->start();
  EXPECT_EQ(replayed.desk.form.txtNrAwiza.text(), "ТН/1");
}

}  // namespace
}  // namespace awizo::test
