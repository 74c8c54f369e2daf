#include "formats/header_validation.h"

#include <optional>

#include "support/test_editor.h"

namespace awizo::test {
namespace {

const Date today = makeDate(2026, 11, 21);
const Date yesterday = makeDate(2026, 11, 20);
const Date tomorrow = makeDate(2026, 11, 22);

/// A header that passes every rule, with the focus on the table of lines.
struct HeaderValidation : ::testing::Test {
  TestEditor test;
  AwizoForm& form = test.form;

  explicit HeaderValidation(const char* locale = "ru_RU") : test(locale) {
    form.txtNrAwiza.setText("WZ 1/2026");
    form.txtDataAwiza.setDate(today);
    form.txtEstimatedDeliveryDate.setDate(tomorrow);
    form.txtNrZam.setText("ORD-1");
    form.txtCodeByBuyer.setText("");
    form.grdPozycje.setFocus();
  }

  void expectPassed() {
    EXPECT_TRUE(ValidateHeader(test.editor));
    EXPECT_TRUE(test.face.boxes().empty());
    EXPECT_EQ(form.focus(), &form.grdPozycje);
  }

  /// The focus moves only when the user has read the message.
  void expectRefused(const std::string& message, const Control& focus) {
    const Control* const before = form.focus();
    const Control* atBox = nullptr;
    test.face.whileBoxIsOpen([&](const MessageBox&) { atBox = form.focus(); });
    EXPECT_FALSE(ValidateHeader(test.editor));
    ASSERT_EQ(test.face.boxes().size(), 1U);
    EXPECT_EQ(describe(test.face.lastBox()), "VIRD|exclamation|OK|" + message);
    EXPECT_EQ(atBox, before);
    EXPECT_EQ(form.focus(), &focus);
  }
  void expectCodeRefused(const char* code) {
    form.txtCodeByBuyer.setText(code);
    expectRefused("Неправильно количество в поле 'Код поставщика у покупателя'",
                  form.txtCodeByBuyer);
    test.face.takeBoxes();
    form.grdPozycje.setFocus();
  }
};

struct HeaderValidationInAPointLocale : HeaderValidation {
  HeaderValidationInAPointLocale() : HeaderValidation("en_US") {}
};

TEST_F(HeaderValidation, PassesAFullHeader) { expectPassed(); }

TEST_F(HeaderValidation, NeedsADocumentNumber) {
  form.txtNrAwiza.setText("");
  expectRefused("В поле Номер Документа вводите номер распечатанной товарной накладной",
                form.txtNrAwiza);
}

TEST_F(HeaderValidation, ABlankIsADocumentNumber) {
  form.txtNrAwiza.setText(" ");
  expectPassed();
}

TEST_F(HeaderValidation, NeedsADocumentDate) {
  form.txtDataAwiza.setDate(std::nullopt);
  expectRefused("В поле ‘Дата документа’ не указана величина", form.txtDataAwiza);
}

TEST_F(HeaderValidation, NeedsADeliveryDate) {
  form.txtEstimatedDeliveryDate.setDate(std::nullopt);
  expectRefused("В поле ‘Запланированная дата доставки’ не указана величина",
                form.txtEstimatedDeliveryDate);
}

TEST_F(HeaderValidation, RefusesADeliveryBeforeTodayAndPointsToTheDocumentDate) {
  form.txtDataAwiza.setDate(makeDate(2026, 11, 19));
  form.txtEstimatedDeliveryDate.setDate(yesterday);
  expectRefused("Дата доставки не может быть меньше текущей даты", form.txtDataAwiza);
}

TEST_F(HeaderValidation, PassesDocumentAndDeliveryOfToday) {
  form.txtDataAwiza.setDate(today);
  form.txtEstimatedDeliveryDate.setDate(today);
  expectPassed();
}

TEST_F(HeaderValidation, RefusesADocumentDateAfterTheDelivery) {
  form.txtDataAwiza.setDate(makeDate(2026, 11, 23));
  expectRefused("Дата документа не может быть больше даты доставки", form.txtDataAwiza);
}

TEST_F(HeaderValidation, PassesADocumentDateOfTheDelivery) {
  form.txtDataAwiza.setDate(tomorrow);
  expectPassed();
}

TEST_F(HeaderValidation, NeedsAnOrderNumberAndLeavesTheFocus) {
  for (const char* number : {"", "   "}) {
    form.txtNrZam.setText(number);
    expectRefused("В поле ‘Номер заказа’ не указана величина", form.grdPozycje);
    test.face.takeBoxes();
  }
}

TEST_F(HeaderValidation, TheMarkOfAMissingOrderNumberPasses) {
  form.txtNrZam.setText("-1");
  expectPassed();
}

TEST_F(HeaderValidation, ACodeByBuyerMustBeNumeric) {
  for (const char* code : {"12A", "A", "1 2 x"}) expectCodeRefused(code);
}

TEST_F(HeaderValidation, ACodeByBuyerIsNumericByTheLocale) {
  for (const char* code : {"1 2", "1,5"}) {
    form.txtCodeByBuyer.setText(code);
    expectPassed();
  }
  expectCodeRefused("1.5");
}

TEST_F(HeaderValidationInAPointLocale, ACodeByBuyerIsNumericByTheLocale) {
  for (const char* code : {"1.5", "1,5"}) {
    form.txtCodeByBuyer.setText(code);
    expectPassed();
  }
  expectCodeRefused("1 2");
}

TEST_F(HeaderValidation, BlanksAroundACodeByBuyerDontMatter) {
  for (const char* code : {"", "   ", "123 ", " 123"}) {
    form.txtCodeByBuyer.setText(code);
    expectPassed();
  }
}

TEST_F(HeaderValidation, TimesAndOrderDateMayBeMissing) {
  form.txtDespatchAdviceTime.setTime(std::nullopt);
  form.txtEstimatedDeliveryTime.setTime(std::nullopt);
  form.dpDataZam.setDate(std::nullopt);
  expectPassed();
}

TEST_F(HeaderValidation, ShowsTheFirstRuleThatFailsAlone) {
  form.txtNrAwiza.setText("");
  form.txtDataAwiza.setDate(std::nullopt);
  form.txtEstimatedDeliveryDate.setDate(std::nullopt);
  form.txtNrZam.setText("");
  form.txtCodeByBuyer.setText("x");
  expectRefused("В поле Номер Документа вводите номер распечатанной товарной накладной",
                form.txtNrAwiza);
  test.face.takeBoxes();
  form.txtNrAwiza.setText("1");
  expectRefused("В поле ‘Дата документа’ не указана величина", form.txtDataAwiza);
  test.face.takeBoxes();
  form.txtDataAwiza.setDate(makeDate(2026, 12, 1));
  expectRefused("В поле ‘Запланированная дата доставки’ не указана величина",
                form.txtEstimatedDeliveryDate);
  test.face.takeBoxes();
  form.txtEstimatedDeliveryDate.setDate(yesterday);
  expectRefused("Дата доставки не может быть меньше текущей даты", form.txtDataAwiza);
  test.face.takeBoxes();
  form.txtEstimatedDeliveryDate.setDate(tomorrow);
  expectRefused("Дата документа не может быть больше даты доставки", form.txtDataAwiza);
  test.face.takeBoxes();
  form.txtDataAwiza.setDate(today);
  expectRefused("В поле ‘Номер заказа’ не указана величина", form.txtDataAwiza);
}

}  // namespace
}  // namespace awizo::test
