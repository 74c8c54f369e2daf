#include "filling_desk.h"

namespace awizo::test {
namespace {

using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr const char* australia = "(AU)Австралия";

/// The picture beside the main form's list of countries.
class CountryPicker : public ::testing::Test, public FillingDesk {
 protected:
  DropDownList& countries = form.comboCountry;

  void pickRow(int row) {
    face.onModal([this, row] {
      isoCodes.grdISO.userCell(row, 0);
      isoCodes.btnAccept.userClick();
    });
    form.Image2.userClick();
  }
  void cancel() {
    face.onModal([this] { isoCodes.btnCancel.userClick(); });
    form.Image2.userClick();
  }
};

TEST_F(CountryPicker, ACountryThatIsNewJoinsBothLists) {
  pickRow(1);
  EXPECT_EQ(countries.text(), australia);
  EXPECT_EQ(countries.index(), 10);
  EXPECT_EQ(countries.rows().back(), australia);
  EXPECT_EQ(lineDialog.comboCountry.rows().back(), australia);
  EXPECT_EQ(countries.count(), 11);
}

TEST_F(CountryPicker, ACountryThatIsThereIsNotAddedAgain) {
  pickRow(1);
  pickRow(1);
  EXPECT_EQ(countries.count(), 11);
  EXPECT_EQ(lineDialog.comboCountry.count(), 11);
}

TEST_F(CountryPicker, TheListBecomesThatOfTheLineDialog) {
  lineDialog.touch().comboCountry.addRow("(QQ)Нигде");
  countries.addRow("only here");
  pickRow(1);
  EXPECT_THAT(countries.rows(), Contains("(QQ)Нигде"));
  EXPECT_THAT(countries.rows(), Not(Contains("only here")));
}

TEST_F(CountryPicker, ARowThatDiffersInCaseIsAnotherRow) {
  countries.userType("(ru)россия");
  pickRow(1);
  cancel();
  EXPECT_EQ(countries.count(), 11);
  countries.userType("(ru)россия");
  cancel();
  EXPECT_EQ(countries.count(), 12);
  EXPECT_EQ(countries.text(), "(ru)россия");
}

TEST_F(CountryPicker, CancellingTheVeryFirstUseEmptiesTheField) {
  countries.userType("PL");
  cancel();
  EXPECT_EQ(countries.text(), "");
  EXPECT_EQ(countries.count(), 10);
}

TEST_F(CountryPicker, CancellingLaterKeepsWhatWasTypedAndAddsIt) {
  pickRow(1);
  countries.userType("PL");
  cancel();
  EXPECT_EQ(countries.text(), "PL");
  EXPECT_EQ(countries.rows().back(), "PL");
  EXPECT_EQ(lineDialog.comboCountry.rows().back(), "PL");
}

TEST_F(CountryPicker, CancellingWithAnEmptyFieldAddsNothing) {
  pickRow(1);
  countries.userType("");
  cancel();
  EXPECT_EQ(countries.text(), "");
  EXPECT_EQ(countries.index(), -1);
  EXPECT_EQ(countries.count(), 11);
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

}  // namespace
}  // namespace awizo::test
