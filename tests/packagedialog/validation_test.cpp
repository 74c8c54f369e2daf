#include <map>

#include "package_desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* wrongILN =
    "VIRD|critical|OK|Неправильно количество в поле 'ILN места доставки'";
constexpr const char* wrongSerial = "VIRD|critical|OK|Неправильный номер палеты";

std::string wrongDigit(int right) {
  return "VIRD|critical|OK|Неправильный номер палеты. Последней- контрольной цифре должно быть "
         "задано значение " +
         std::to_string(right);
}

/// A package that passes; each test spoils one thing.
class PackageValidation : public ::testing::Test, public PackageDesk {
 protected:
  explicit PackageValidation(const char* localeName = "ru_RU") : PackageDesk(localeName) {
    fillValid();
    offerParents();
  }

  /// The user presses the accepting button from the field of parents; returns what was shown.
  std::vector<std::string> accept() {
    dialog.cboxParentPackage.setEnabled(true);
    face.onModal([&] {
      dialog.cboxParentPackage.setFocus();
      dialog.btnDodaj.userPress();
      accepted_ = !dialog.shown();
      focus_ = dialog.focus();
      if (dialog.shown()) dialog.btnZamknij.userPress();
    });
    dialog.showModal();
    return boxes();
  }
  void expectAccepted() {
    EXPECT_THAT(accept(), IsEmpty());
    EXPECT_TRUE(accepted_);
  }
  void expectRefused(const std::string& box, const Control& focus) {
    EXPECT_THAT(accept(), ElementsAre(box));
    EXPECT_FALSE(accepted_);
    EXPECT_EQ(focus_, &focus) << (focus_ ? focus_->name() : "none");
  }

  bool accepted_ = false;
  const Control* focus_ = nullptr;
};

struct PackageValidationInAPointLocale : PackageValidation {
  PackageValidationInAPointLocale() : PackageValidation("en_US") {}
};

TEST_F(PackageValidation, AWholePackagePasses) { expectAccepted(); }

TEST_F(PackageValidation, WantsAType) {
  dialog.cboxPackageType.setIndex(-1);
  expectRefused("VIRD|critical|OK|В поле 'Тип упаковки' не указана величина",
                dialog.cboxPackageType);
}

TEST_F(PackageValidation, WantsADescriptionThatIsNotBlank) {
  for (const char* blank : {"", "   "}) {
    dialog.txtPackageDesc.setText(blank);
    expectRefused("VIRD|critical|OK|В поле 'Описание упаковки' не указана величина",
                  dialog.txtPackageDesc);
  }
}

TEST_F(PackageValidation, ADisabledDescriptionGetsNoFocus) {
  dialog.txtPackageDesc.setText("");
  dialog.txtPackageDesc.setEnabled(false);
  expectRefused("VIRD|critical|OK|В поле 'Описание упаковки' не указана величина",
                dialog.cboxParentPackage);
}

TEST_F(PackageValidation, AddingRefusesADescriptionInUseWithoutRegardToCase) {
  for (const char* used : {"Поддон", "ПОДДОН", "  коробка "}) {
    dialog.txtPackageDesc.setText(used);
    expectRefused(
        "VIRD|critical|OK|Данное значение поля 'Описание упаковки' уже используется в системе",
        dialog.txtPackageDesc);
  }
}

TEST_F(PackageValidation, EditingAcceptsADescriptionInUse) {
  dialog.AddMode = false;
  dialog.txtPackageDesc.setText("поддон");
  expectAccepted();
}

TEST_F(PackageValidation, TheILNHasAtLeastThirteenDigits) {
  dialog.cboxILNLokalizacji.setText("952000200002");
  expectRefused(wrongILN, dialog.cboxILNLokalizacji);
  dialog.cboxILNLokalizacji.setText(" 952000200002  ");
  expectRefused(wrongILN, dialog.cboxILNLokalizacji);
  dialog.cboxILNLokalizacji.setText("952000200002X");
  expectRefused(wrongILN, dialog.cboxILNLokalizacji);
}

TEST_F(PackageValidation, TheLengthOfTheILNIsALowerBoundOnly) {
  for (const char* iln : {"9520002000026", "95200020000263", "952000200002600000000001",
                          " 9520002000026 ", "952000200002,5"}) {
    dialog.cboxILNLokalizacji.setText(iln);
    expectAccepted();
  }
}

TEST_F(PackageValidation, AMissingILNMovesNoFocus) {
  dialog.cboxILNLokalizacji.setText("");
  expectRefused("VIRD|critical|OK|Не заполнено поле 'место доставки'", dialog.cboxParentPackage);
}

TEST_F(PackageValidation, AnILNOfBlanksPasses) {
  dialog.cboxILNLokalizacji.setText("  ");
  expectAccepted();
}

TEST_F(PackageValidation, EmptyMeasuresPass) {
  expectAccepted();
  EXPECT_EQ(dialog.txtPackageWeight.text(), "");
  EXPECT_EQ(dialog.txtPackageHeight.text(), "");
}

TEST_F(PackageValidation, EachMeasureIsANumber) {
  const std::map<TextField*, std::string> messages{
      {&dialog.txtPackageWeight, "Неправильно количество в поле 'Вес упаковки кг (килограммы)'"},
      {&dialog.txtPackageLength, "Неправильно количество в поле 'Длина упаковки м (метры)'"},
      {&dialog.txtPackageWidth, "Неправильно количество в поле 'Ширина упаковки м (метры)'"},
      {&dialog.txtPackageHeight, "Неправильно количество в поле 'Высота упаковки м (метры)'"}};
  for (const auto& [field, message] : messages) {
    for (const char* wrong : {"много", "1.2.3", "1,2.3"}) {
      field->setText(wrong);
      expectRefused("VIRD|critical|OK|" + message, *field);
    }
    field->setText("");
  }
}

TEST_F(PackageValidation, MeasuresAreNormalisedBeforeTheyAreChecked) {
  dialog.txtPackageWeight.setText("  2.0005 ");
  dialog.txtPackageLength.setText("1,5");
  dialog.txtPackageWidth.setText("-3");
  dialog.txtPackageHeight.setText("  ");
  expectAccepted();
  EXPECT_EQ(dialog.txtPackageWeight.text(), "2,001");
  EXPECT_EQ(dialog.txtPackageLength.text(), "1,500");
  EXPECT_EQ(dialog.txtPackageWidth.text(), "-3,000");
  EXPECT_EQ(dialog.txtPackageHeight.text(), "");
}

TEST_F(PackageValidationInAPointLocale, MeasuresAreNormalisedWithAPoint) {
  dialog.txtPackageLength.setText("1,5");
  dialog.txtPackageWeight.setText("12.3456");
  expectAccepted();
  EXPECT_EQ(dialog.txtPackageLength.text(), "1.500");
  EXPECT_EQ(dialog.txtPackageWeight.text(), "12.346");
}

TEST_F(PackageValidation, MeasuresBehindAFaultStayAsTyped) {
  dialog.txtPackageLength.setText("x");
  dialog.txtPackageWidth.setText("1.5");
  accept();
  EXPECT_EQ(dialog.txtPackageWidth.text(), "1.5");
}

TEST_F(PackageValidation, LeavingAMeasureTidiesIt) {
  show([&] {
    for (TextField* field : {&dialog.txtPackageWeight, &dialog.txtPackageLength,
                             &dialog.txtPackageWidth, &dialog.txtPackageHeight}) {
      field->userType(" 1.25 ");
      EXPECT_EQ(field->text(), " 1.25 ");
      dialog.txtPackageDesc.userFocus();
      EXPECT_EQ(field->text(), "1,250") << field->name();
      field->userType("x");
      dialog.txtPackageDesc.userFocus();
      EXPECT_EQ(field->text(), "x") << field->name();
    }
  });
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(PackageValidation, AMissingSerialNumberMovesNoFocus) {
  dialog.txtSerialNumberN.setText("");
  expectRefused("VIRD|critical|OK|Не заполнено поле 'серийный номер'", dialog.cboxParentPackage);
}

TEST_F(PackageValidation, TheSerialNumberHasEighteenCharacters) {
  for (const char* wrong : {"10614141234567890", "1061414123456789080", " "}) {
    dialog.txtSerialNumberN.setText(wrong);
    expectRefused(wrongSerial, dialog.txtSerialNumberN);
  }
}

TEST_F(PackageValidation, TheSerialNumberIsOfDigits) {
  for (const char* wrong : {"10614141234567890A", "A06141412345678908", "1061414123456789 8",
                            "1061414123456789-8", "ё06141412345678908", "ёёёёёёёёёёёёёёёёёё"}) {
    dialog.txtSerialNumberN.setText(wrong);
    expectRefused(wrongSerial, dialog.txtSerialNumberN);
  }
}

TEST_F(PackageValidation, AWrongCheckDigitIsToldWithTheRightOne) {
  dialog.txtSerialNumberN.setText("100000000000000003");
  expectRefused(wrongDigit(7), dialog.txtSerialNumberN);
  dialog.txtSerialNumberN.setText("106141412345678900");
  expectRefused(wrongDigit(8), dialog.txtSerialNumberN);
}

TEST_F(PackageValidation, ASumDivisibleByTenCallsForZero) {
  dialog.txtSerialNumberN.setText("000000000000000001");
  expectRefused(wrongDigit(0), dialog.txtSerialNumberN);
  dialog.txtSerialNumberN.setText("000000000000000000");
  expectAccepted();
}

TEST_F(PackageValidation, RightCheckDigitsPass) {
  for (const char* right : {"100000000000000007", "010000000000000009", "000000000000000017",
                            "999999999999999995", "106141412345678908"}) {
    dialog.txtSerialNumberN.setText(right);
    expectAccepted();
  }
}

/// Every field is wrong at first; as the user mends one fault after the other, the next is shown.
TEST_F(PackageValidation, TellsOneFaultAtATimeInAFixedOrder) {
  dialog.cboxPackageType.setIndex(-1);
  dialog.txtPackageDesc.setText("");
  dialog.cboxILNLokalizacji.setText("1");
  for (TextField* field : {&dialog.txtPackageWeight, &dialog.txtPackageLength,
                           &dialog.txtPackageWidth, &dialog.txtPackageHeight}) {
    field->setText("x");
  }
  dialog.txtSerialNumberN.setText("");
  std::vector<std::string> told;
  const auto thenMend = [&](const std::function<void()>& mend) {
    for (const std::string& box : accept()) told.push_back(box.substr(box.rfind('|') + 1));
    mend();
  };
  thenMend([&] { dialog.cboxPackageType.setIndex(1); });
  thenMend([&] { dialog.txtPackageDesc.setText("Поддон"); });
  thenMend([&] { dialog.txtPackageDesc.setText("Новая"); });
  thenMend([&] { dialog.cboxILNLokalizacji.setText(""); });
  thenMend([&] { dialog.cboxILNLokalizacji.setText("9520002000026"); });
  thenMend([&] { dialog.txtPackageWeight.setText("1"); });
  thenMend([&] { dialog.txtPackageLength.setText("1"); });
  thenMend([&] { dialog.txtPackageWidth.setText("1"); });
  thenMend([&] { dialog.txtPackageHeight.setText("1"); });
  thenMend([&] { dialog.txtSerialNumberN.setText("1"); });
  thenMend([&] { dialog.txtSerialNumberN.setText("100000000000000000"); });
  thenMend([&] { dialog.txtSerialNumberN.setText("100000000000000007"); });
  EXPECT_THAT(told,
              ElementsAre("В поле 'Тип упаковки' не указана величина",
                          "В поле 'Описание упаковки' не указана величина",
                          "Данное значение поля 'Описание упаковки' уже используется в системе",
                          "Неправильно количество в поле 'ILN места доставки'",
                          "Не заполнено поле 'место доставки'",
                          "Неправильно количество в поле 'Вес упаковки кг (килограммы)'",
                          "Неправильно количество в поле 'Длина упаковки м (метры)'",
                          "Неправильно количество в поле 'Ширина упаковки м (метры)'",
                          "Неправильно количество в поле 'Высота упаковки м (метры)'",
                          "Не заполнено поле 'серийный номер'", "Неправильный номер палеты",
                          "Неправильный номер палеты. Последней- контрольной цифре должно быть "
                          "задано значение 7"));
  expectAccepted();
}

TEST_F(PackageValidation, CheckMandatoryTellsAnEmptyRequiredField) {
  for (const char* tag : {"Mandatory", "MANDATORY"}) {
    dialog.txtPackageDesc.tag = tag;
    dialog.txtPackageDesc.setText("");
    show([&] {
      EXPECT_FALSE(dialog.CheckMandatory("Описание: упаковки:", dialog.txtPackageDesc));
      EXPECT_EQ(dialog.focus(), &dialog.txtPackageDesc);
    });
    EXPECT_THAT(boxes(), ElementsAre("VIRD|critical|OK|XXX 'Описание упаковки'"));
  }
}

TEST_F(PackageValidation, CheckMandatoryPassesFilledAndUnmarkedFields) {
  dialog.txtPackageDesc.tag = "Mandatory";
  dialog.txtPackageDesc.setText(" ");
  EXPECT_TRUE(dialog.CheckMandatory("Описание:", dialog.txtPackageDesc));
  dialog.txtPackageDesc.tag = "Optional";
  dialog.txtPackageDesc.setText("");
  EXPECT_TRUE(dialog.CheckMandatory("Описание:", dialog.txtPackageDesc));
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(PackageValidation, CheckMandatoryGivesADisabledFieldNoFocus) {
  dialog.txtPackageDesc.tag = "Mandatory";
  dialog.txtPackageDesc.setText("");
  dialog.txtPackageDesc.setEnabled(false);
  show([&] {
    dialog.txtPackageWeight.userFocus();
    EXPECT_FALSE(dialog.CheckMandatory("Описание:", dialog.txtPackageDesc));
    EXPECT_EQ(dialog.focus(), &dialog.txtPackageWeight);
  });
  EXPECT_THAT(boxes(), ElementsAre("VIRD|critical|OK|XXX 'Описание'"));
}

}  // namespace
}  // namespace awizo::test
