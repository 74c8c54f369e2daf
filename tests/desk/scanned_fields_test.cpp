#include "desk/scanned_fields.h"

#include <gmock/gmock.h>

#include "support/control/desk.h"

namespace awizo::test {
namespace {

using ::testing::IsEmpty;

/// A scanner in front of the open package dialog.
class ScannedFieldsTest : public ::testing::Test, public Desk {
 protected:
  ScannedFieldsTest() {
    number.observers.add([this](const Change&) { seen += number.text().substr(0, 1); });
  }

  void inPackage(const std::function<void()>& act) {
    face.onModal([&, this] {
      act();
      packageDialog.btnZamknij.userClick();
    });
    form.btnDodajOpak.userClick();
  }
  const ScannedField& fieldOf(const Control& place) const { return *typing.find(&place); }
  /// Over the whole text, all characters before the first is answered.
  void scan(const ScannedField& field, std::string_view text) {
    bool begins = true;
    for (const char character : text) {
      typing.typed(field, std::string(1, character), std::exchange(begins, false));
    }
  }
  /// Each character after the field has become what the last one made of it.
  void scanSlowly(std::string_view text) {
    for (const char character : text) {
      if (number.text().empty()) {
        typing.typed(fieldOf(number), std::string(1, character), true);
      } else {
        number.userType(ScannedTyping::edited(fieldOf(number), number.text() + character));
      }
    }
  }

  TextField& number = packageDialog.txtSerialNumberN;
  ScannedTyping typing{scannedFields(control)};
  std::string seen;  ///< how the number's text began, each time
};

TEST_F(ScannedFieldsTest, AreThePackagesNumberAndTheProductsEan) {
  EXPECT_EQ(typing.find(&number)->control, &number);
  EXPECT_NE(typing.find(&lineDialog.txtlEANProdWart), nullptr);
  EXPECT_NE(typing.find(&lineDialog.cboxEANProd), nullptr);
  EXPECT_EQ(typing.find(&lineDialog.txtNazwaProdWart), nullptr);
  EXPECT_EQ(typing.find(nullptr), nullptr);
}

TEST_F(ScannedFieldsTest, AButtonThatKeepsTheFocusIsScannedOnToo) {
  const std::vector<Button*> buttons = scannedButtons(form);
  EXPECT_THAT(buttons, ::testing::Contains(&form.btnUsun));
  EXPECT_THAT(buttons, ::testing::Contains(&form.btnUsunOpak));
  EXPECT_THAT(buttons, ::testing::Not(::testing::Contains(&form.btnZapisz)))
      << "a picture button takes no focus";
}

TEST_F(ScannedFieldsTest, ThePackagesNumberComesWithoutTheScannersMarks) {
  inPackage([this] {
    for (const char* scanned : {"(00)395200010000000011", "]C100395200010000000011",
                                "\x1d"
                                "00395200010000000011",
                                "00395200010000000011", "395200010000000011"}) {
      scan(fieldOf(number), scanned);
      EXPECT_EQ(number.text(), "395200010000000011") << scanned;
      number.userType("");
      scanSlowly(scanned);
      EXPECT_EQ(number.text(), "395200010000000011") << scanned;
      number.userType("");
    }
    EXPECT_EQ(seen.find_first_of("(]"), std::string::npos) << "no mark was in the field";
  });
}

TEST_F(ScannedFieldsTest, WhatTheFieldHeldStaysUntilTheNumberBegins) {
  inPackage([this] {
    number.userType("106141412345678908");
    EXPECT_EQ(typing.typed(fieldOf(number), "(", true), std::nullopt);
    EXPECT_EQ(typing.typed(fieldOf(number), "0", false), std::nullopt);
    EXPECT_EQ(number.text(), "106141412345678908");
    typing.typed(fieldOf(number), "0", false);
    typing.typed(fieldOf(number), ")", false);
    EXPECT_EQ(typing.typed(fieldOf(number), "3", false), "3");
    EXPECT_EQ(number.text(), "3");
  });
}

TEST_F(ScannedFieldsTest, WhatIsNoMarkIsGivenBack) {
  inPackage([this] {
    EXPECT_EQ(typing.typed(fieldOf(number), "(", true), std::nullopt);
    EXPECT_EQ(typing.typed(fieldOf(number), "1", false), std::nullopt);
    EXPECT_EQ(typing.giveBack(), "(1");
    EXPECT_EQ(number.text(), "(1");
    EXPECT_EQ(typing.giveBack(), std::nullopt);
    typing.typed(fieldOf(number), "(", true);
    EXPECT_EQ(typing.typed(fieldOf(number), "я", false), "(я");
    typing.typed(fieldOf(number), "]", true);
  });
  EXPECT_EQ(typing.giveBack(), std::nullopt) << "the dialog has gone";
}

TEST_F(ScannedFieldsTest, APastedTextBecomesItsNumberAndAnotherStays) {
  inPackage([this] {
    typing.pasted(fieldOf(number), " (00)395200010000000028 ");
    EXPECT_EQ(number.text(), "395200010000000028");
    EXPECT_EQ(typing.pasted(fieldOf(number), "12(3)"), "12(3)");
  });
}

TEST_F(ScannedFieldsTest, AnEanLosesTheZeroThatFillsItUp) {
  face.onModal([this] {
    const TextField& ean = lineDialog.txtlEANProdWart;
    for (const char* scanned : {"]E04607000000116", "(01)04607000000116"}) {
      scan(fieldOf(ean), scanned);
      EXPECT_EQ(ean.text(), "4607000000116") << scanned;
    }
    // The line dialog asks nothing on the way.
    lineDialog.userClose();
  });
  form.btnDodaj.userClick();
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(ScannedFieldsTest, AFullFieldIsNotMadeToLookWhole) {
  ScannedField field = fieldOf(number);
  field.limit = 20;
  EXPECT_EQ(ScannedTyping::edited(field, "00395200010000000011"), "00395200010000000011");
  field.limit = 21;
  EXPECT_EQ(ScannedTyping::edited(field, "00395200010000000011"), "395200010000000011");
}

}  // namespace
}  // namespace awizo::test
