#include "desk/line_search.h"

#include <gtest/gtest.h>

#include "desk/find_dialog.h"
#include "platform/forms/keys.h"
#include "support/documents.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

struct LineSearch : ::testing::Test {
  LineSearch() {
    putLines(test.editor, 4);
    const char* names[] = {"Кофе", "Чай зелёный", "Какао", "чай чёрный"};
    for (int row = 1; row <= 4; ++row) {
      lines.setCell(row, GRD_POZ_NAME, names[row - 1]);
      lines.setCell(row, GRD_POZ_EAN, "460700000011" + std::to_string(row));
    }
  }
  TestEditor test;
  Table& lines = test.form.grdPozycje;
};

TEST_F(LineSearch, FindsTheNextLineInWhateverCaseAndGoesOnFromTheFirst) {
  EXPECT_EQ(findLine(test.editor, "ЧАЙ"), 2);
  lines.setRow(2);
  EXPECT_EQ(findLine(test.editor, "ЧАЙ"), 4);
  lines.setRow(4);
  EXPECT_EQ(findLine(test.editor, "ЧАЙ"), 2);
}

TEST_F(LineSearch, FindsTheCurrentLineWhereThereIsNoOther) {
  EXPECT_EQ(findLine(test.editor, "кофе"), 1);
}

TEST_F(LineSearch, LooksAtCodesToo) {
  lines.setCell(3, GRD_POZ_CODE_BY_BUYER, "B-77");
  lines.setCell(4, GRD_POZ_CODE_BY_SELLER, "S-88");
  EXPECT_EQ(findLine(test.editor, "b-7"), 3);
  EXPECT_EQ(findLine(test.editor, "s-88"), 4);
}

TEST_F(LineSearch, FindsNothingInNothing) {
  EXPECT_EQ(findLine(test.editor, ""), std::nullopt);
  EXPECT_EQ(findLine(test.editor, "сок"), std::nullopt);
  test.session.LineCount = 0;
  EXPECT_EQ(findLine(test.editor, "чай"), std::nullopt);
}

TEST_F(LineSearch, AScannedCodeIsAWholeEanButForZerosBeforeIt) {
  EXPECT_EQ(findScanned(test.editor, "4607000000113"), 3);
  EXPECT_EQ(findScanned(test.editor, "04607000000113"), 3);
  EXPECT_EQ(findScanned(test.editor, "460700000011"), std::nullopt);
}

TEST_F(LineSearch, AScannedEanMayStandAfterTheSignsOfItsKind) {
  for (const char* code : {"0104607000000113", "0204607000000113", "10104607000000113"}) {
    EXPECT_EQ(findScanned(test.editor, code), 3) << code;
  }
  lines.setCell(2, GRD_POZ_EAN, "");
  EXPECT_EQ(findScanned(test.editor, "00000000"), std::nullopt);
}

TEST_F(LineSearch, AnEanIsFoundByTheSymbolThatSaysHowManyThereAre) {
  for (const char* code :
       {"02046070000001133724", "102046070000001133724", "02046070000001133712345678"}) {
    EXPECT_EQ(findScanned(test.editor, code), 3) << code;
  }
  for (const char* other : {"020460700000011337", "02046070000001133824",
                            "020460700000011337123456789", "01046070000001133724"}) {
    EXPECT_EQ(findScanned(test.editor, other), std::nullopt) << other;
  }
}

TEST_F(LineSearch, AllLinesOfAScannedEanBeginWithTheCurrentOne) {
  for (int row : {1, 3, 4}) lines.setCell(row, GRD_POZ_EAN, "4607000000116");
  lines.setRow(3);
  EXPECT_EQ(linesScanned(test.editor, "4607000000116"), (std::vector<int>{3, 4, 1}));
}

TEST(PackageNumberIn, IsWhatStandsBehindTheSignsOfItsKind) {
  EXPECT_EQ(packageNumberIn("395200010000000011"), "395200010000000011");
  EXPECT_EQ(packageNumberIn("00395200010000000011"), "395200010000000011");
  EXPECT_EQ(packageNumberIn("100395200010000000011"), "395200010000000011");
  for (const char* other : {"", "9520001010026", "09520001010026", "3952000100000000112",
                            "01395200010000000011", "200395200010000000011"}) {
    EXPECT_EQ(packageNumberIn(other), "") << other;
  }
}

TEST(ScannedCodeTest, EndsByEnterAndHasAsManyDigitsAsAnEan) {
  ScannedCode code;
  for (const char digit : std::string("1234567")) code.add(digit);
  EXPECT_EQ(code.end(), "") << "seven digits are no code";
  EXPECT_EQ(code.digits(), "");
  for (const char digit : std::string("12345670")) code.add(digit);
  EXPECT_EQ(code.digits(), "12345670");
  EXPECT_EQ(code.end(), "12345670");
  EXPECT_EQ(code.end(), "") << "a code is told once";
}

TEST(ScannedCodeTest, AnotherKeyForgetsIt) {
  ScannedCode code;
  for (const char digit : std::string("12345670")) code.add(digit);
  code.forget();
  EXPECT_EQ(code.end(), "");
}

struct FindDialogTest : LineSearch {
  FindDialog dialog{test.screen, test.editor};
};

TEST_F(FindDialogTest, EnterFindsAndCloses) {
  test.face.onModal([&] {
    EXPECT_EQ(dialog.focus(), &dialog.txtWhat);
    dialog.txtWhat.userType("какао");
    dialog.txtWhat.userKey(keys::enter);
  });
  const auto found = dialog.ask();
  ASSERT_TRUE(found);
  EXPECT_EQ(found->table, &lines);
  EXPECT_EQ(found->row, 3);
  EXPECT_EQ(dialog.again()->row, 3);
}

TEST_F(FindDialogTest, FindsByWhateverALabelsSymbolSays) {
  for (const char* scanned : {"02046070000001133724", "]C102046070000001133724"}) {
    dialog.txtWhat.setText(scanned);
    const auto found = dialog.again();
    ASSERT_TRUE(found) << scanned;
    EXPECT_EQ(found->row, 3);
  }
}

TEST_F(FindDialogTest, SaysThatNothingIsFoundAndStays) {
  test.face.onModal([&] {
    dialog.txtWhat.userType("сок");
    dialog.txtWhat.userKey(keys::enter);
    EXPECT_EQ(dialog.lblNothing.caption(), "Такой строки нет.");
    EXPECT_TRUE(dialog.shown());
    dialog.txtWhat.userType("сокол");
    EXPECT_EQ(dialog.lblNothing.caption(), "");
    dialog.txtWhat.userKey(keys::escape);
  });
  EXPECT_FALSE(dialog.ask());
}

}  // namespace
}  // namespace awizo::test
