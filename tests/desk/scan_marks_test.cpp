#include "desk/scan_marks.h"

#include <gtest/gtest.h>

namespace awizo::test {
namespace {

TEST(ScanMarks, OfAPackageNumberAreCutOff) {
  for (const char* scanned : {"395200010000000011", "(00)395200010000000011",
                              "]C100395200010000000011", "]C1(00)395200010000000011",
                              "\x1d"
                              "00395200010000000011",
                              "]d2"
                              "00395200010000000011",
                              "(00)395200010000000011\x1d"}) {
    EXPECT_EQ(withoutScanMarks(scanned), "395200010000000011") << scanned;
  }
}

TEST(ScanMarks, OfAnEanAreCutOffWithTheZeroThatFillsItUp) {
  for (const char* scanned : {"4607000000116", "]E04607000000116", "(01)04607000000116",
                              "]C10104607000000116", "(02)04607000000116"}) {
    EXPECT_EQ(withoutScanMarks(scanned), "4607000000116") << scanned;
  }
  EXPECT_EQ(withoutScanMarks("(01)14607000000113"), "14607000000113");
}

TEST(ScanMarks, LeaveWhatIsTypedByHand) {
  for (const char* typed :
       {"", "0", "00", "003520001000000001", "04607000000116", "12(3)", "1]2", "(4607000000116",
        "(12", "(", "(1)", "]4607000000116", "]C", "(12345)6"}) {
    EXPECT_EQ(withoutScanMarks(typed), typed);
  }
}

TEST(ScanMarks, ThatWereOnlyBegunAreGivenBack) {
  ScanMarks marks;
  EXPECT_EQ(marks.given('(', true), "");
  EXPECT_EQ(marks.given('0', true), "");
  EXPECT_EQ(marks.giveBack(), "(0");
  EXPECT_EQ(marks.given('0', true), "0");
  EXPECT_EQ(marks.given('(', true), "");
  EXPECT_EQ(marks.given('a', true), "(a");
}

TEST(ScanMarks, AreLookedForBeforeANumberOnly) {
  ScanMarks marks;
  EXPECT_EQ(marks.given('4', true), "4");
  EXPECT_EQ(marks.given('(', false), "(");
  EXPECT_EQ(marks.given('0', false), "0");
  EXPECT_EQ(marks.given('\x1d', false), "") << "a function character is no part of any number";
}

}  // namespace
}  // namespace awizo::test
