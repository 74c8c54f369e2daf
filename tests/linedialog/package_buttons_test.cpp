#include "packed_line.h"
#include "support/logged.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;

struct LinePackageButtons : PackedLine {};
INSTANTIATE_TEST_SUITE_P(InBothLocales, LinePackageButtons, ::testing::Values("ru_RU", "en_US"));

// Which buttons can be pressed.

TEST_P(LinePackageButtons, WithoutPackagesInTheDocumentNothingCanBePressed) {
  test.offer({});
  despatch("5");
  EXPECT_EQ(enabledButtons(), "");
  dialog.lblPackedQuantityValue.setCaption(local("2,000"));
  dialog.SetButtons();
  EXPECT_EQ(enabledButtons(), "");
}

TEST_P(LinePackageButtons, BeforeAnyListOfPackagesNothingCanBePressed) {
  test.session.ParentSerials.clear();
  despatch("5");
  EXPECT_EQ(enabledButtons(), "");
}

TEST_P(LinePackageButtons, WithNothingPackedOnlyAddingIsOffered) {
  despatch("5");
  EXPECT_EQ(enabledButtons(), "+");
}

TEST_P(LinePackageButtons, WithSomethingPackedAllIsOffered) {
  dialog.lblPackedQuantityValue.setCaption(local("2,000"));
  despatch("5");
  EXPECT_EQ(enabledButtons(), "+-•");
}

TEST_P(LinePackageButtons, WithAllPackedTheAssignmentsCanStillChange) {
  dialog.lblPackedQuantityValue.setCaption(local("5,000"));
  despatch("7");
  EXPECT_EQ(enabledButtons(), "+-•");
  despatch("5");
  EXPECT_EQ(enabledButtons(), "-•");
  despatch("4");
  EXPECT_EQ(enabledButtons(), "-•");
}

TEST_P(LinePackageButtons, WithoutAQuantityNothingIsOffered) {
  despatch("5");
  despatch("");
  EXPECT_EQ(enabledButtons(), "");
  despatch("0");
  EXPECT_EQ(enabledButtons(), "");
  despatch("много");
  EXPECT_EQ(enabledButtons(), "");
}

TEST_P(LinePackageButtons, TheButtonsFollowTheQuantityAsItIsTyped) {
  test.show([&] {
    dialog.txtIloscPotw.userType("5");
    EXPECT_EQ(enabledButtons(), "+");
    dialog.txtIloscPotw.userType("");
    EXPECT_EQ(enabledButtons(), "");
  });
}

TEST_P(LinePackageButtons, TheButtonsAreLogged) {
  dialog.lblPackedQuantityValue.setCaption(local("2,000"));
  dialog.txtIloscPotw.setText(local("4,5"));
  openLog(test);
  dialog.SetButtons();
  std::vector<std::string> lines;
  for (const std::string& line : split(test.files.bytes(logPath), "\r\n")) {
    if (const std::size_t at = line.find("GetMax"); at != line.npos)
      lines.push_back(line.substr(at));
    if (const std::size_t at = line.find("SetBut"); at != line.npos)
      lines.push_back(line.substr(at));
  }
  EXPECT_THAT(lines,
              ElementsAre("GetMaxQuantity lblPackedQuantityValue = " + local("2,000"),
                          "GetMaxQuantity txtIloscPotw = " + local("4,5"),
                          "SetButtons k = " + local("2,5"), "SetButtons x = " + local("4,5")));
}

TEST_P(LinePackageButtons, WhatIsFreeIsDespatchedLessPacked) {
  dialog.lblPackedQuantityValue.setCaption(local("2,500"));
  despatch(" 4 ");
  EXPECT_EQ(dialog.GetMaxQuantity(), 1.5);
  despatch("1");
  EXPECT_EQ(dialog.GetMaxQuantity(), -1.5);
  despatch("");
  EXPECT_EQ(dialog.GetMaxQuantity(), -2.5);
}

}  // namespace
}  // namespace awizo::test
