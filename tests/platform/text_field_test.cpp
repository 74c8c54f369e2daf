#include "platform/forms/text_field.h"

#include "form_fixture.h"
#include "platform/forms/keys.h"
#include "platform/forms/spin_buttons.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TextFieldTest : public FormTest {
 protected:
  TextField other{form, "other"};
  TextField field{form, "field", "Наименование товара:", 7};

  TextFieldTest() {
    form.showMain();
    noteFocus(other);
    noteFocus(field);
    field.onChange = [this] { events.push_back("Change " + field.text()); };
  }
};

TEST_F(TextFieldTest, ChangeComesForAnAssignmentButNotForAnEqualText) {
  field.setText("abc");
  field.setText("abc");
  field.setText("");
  EXPECT_THAT(events, ElementsAre("Change abc", "Change "));
}

TEST_F(TextFieldTest, LimitCutsALongerAssignmentByCharacters) {
  field.setText("Паллета 1");
  EXPECT_EQ(field.text(), "Паллета");
  field.setText("Паллета 2");
  EXPECT_THAT(events, ElementsAre("Change Паллета"));
}

TEST_F(TextFieldTest, LimitOfNoneTakesAnyLength) {
  const std::string text(100'000, 'x');
  other.setText(text);
  EXPECT_EQ(other.text(), text);
}

TEST_F(TextFieldTest, TypingTakesTheFocusAndIsOneChange) {
  field.userType("12345");
  EXPECT_THAT(events,
              ElementsAre("other.Validate", "other.LostFocus", "field.GotFocus", "Change 12345"));
}

TEST_F(TextFieldTest, TypingTheSameTextChangesNothing) {
  field.setText("12345");
  field.userFocus();
  takeEvents();
  field.userType("12345");
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(TextFieldTest, TypingDropsLineBreaksAndControlCharactersBeforeItCuts) {
  field.userType("a\r\nб\tв\x7F\u0085г\u2028де\u0001ж\u00A0з");
  EXPECT_EQ(field.text(), "aбвгдеж");
}

TEST_F(TextFieldTest, TypingEndsQuietlyWhenTheFocusCanNotBeTaken) {
  other.onLostFocus = [&] { field.setEnabled(false); };
  field.userType("1");
  EXPECT_EQ(field.text(), "");
}

TEST_F(TextFieldTest, ChangeMayAssignTheTextAgain) {
  field.onChange = [&] {
    events.push_back(field.text());
    if (field.text() == "9") field.setText("2");
  };
  field.userType("9");
  EXPECT_EQ(field.text(), "2");
  EXPECT_THAT(events, ElementsAre("other.Validate", "other.LostFocus", "field.GotFocus", "9", "2"));
}

TEST_F(TextFieldTest, CaretStandsAtTheStartAfterCodeAndAtTheEndAfterTyping) {
  field.setText("Паллета");
  EXPECT_EQ(field.caret(), 0);
  field.setCaret(1000);
  EXPECT_EQ(field.caret(), 7);
  field.setCaret(1);
  EXPECT_EQ(field.caret(), 1);
  field.userType("Ящик");
  EXPECT_EQ(field.caret(), 4);
  EXPECT_EQ(errorOf([&] { field.setCaret(-1); }), "380 Invalid property value");
}

TEST_F(TextFieldTest, KeyDownComesBeforeKeyPress) {
  field.onKeyDown = [&](std::int16_t code, bool shift) {
    events.push_back("KeyDown " + std::to_string(code) + (shift ? " shift" : ""));
  };
  field.onKeyPress = [&](std::int16_t& code) {
    events.push_back("KeyPress " + std::to_string(code));
    code = 0;
  };
  field.userKey(keys::enter);
  field.userKey('A', true);
  field.userKey('A');
  field.userKey(keys::down);
  EXPECT_THAT(events, ElementsAre("other.Validate", "other.LostFocus", "field.GotFocus",
                                  "KeyDown 13", "KeyPress 13", "KeyDown 65 shift", "KeyPress 65",
                                  "KeyDown 65", "KeyPress 97", "KeyDown 40"));
  EXPECT_EQ(field.text(), "");
}

TEST_F(TextFieldTest, CharacterOfAKeyStaysWithTheFieldThatKeyDownHasHidden) {
  field.userFocus();
  takeEvents();
  field.onKeyDown = [&](std::int16_t, bool) {
    field.setVisible(false);
    other.setFocus();
  };
  field.onKeyPress = [&](std::int16_t&) { events.push_back("KeyPress"); };
  field.userKey(keys::enter);
  EXPECT_THAT(events, ElementsAre("field.LostFocus", "other.GotFocus", "KeyPress"));
}

TEST_F(TextFieldTest, NoCharacterFollowsAKeyThatDisabledTheForm) {
  field.onKeyDown = [&](std::int16_t, bool) { form.setEnabled(false); };
  field.onKeyPress = [&](std::int16_t&) { events.push_back("KeyPress"); };
  field.userFocus();
  takeEvents();
  field.userKey(keys::enter);
  EXPECT_THAT(events, IsEmpty());
}

TEST(Keys, StandForTheirCharacters) {
  EXPECT_EQ(keys::characterOf(keys::enter, false), 13);
  EXPECT_EQ(keys::characterOf(keys::escape, false), 27);
  EXPECT_EQ(keys::characterOf(keys::backspace, false), 8);
  EXPECT_EQ(keys::characterOf(keys::blank, false), 32);
  EXPECT_EQ(keys::characterOf('7', false), '7');
  EXPECT_EQ(keys::characterOf('7', true), '&');
  EXPECT_EQ(keys::characterOf('Z', false), 'z');
  EXPECT_EQ(keys::characterOf(96, false), '0');
  EXPECT_EQ(keys::characterOf(107, false), '+');
  EXPECT_EQ(keys::characterOf(109, false), '-');
  EXPECT_EQ(keys::characterOf(111, false), '/');
  EXPECT_EQ(keys::characterOf(0x416, false), 0x416);
}

TEST(Keys, ThatOnlyMoveStandForNoCharacter) {
  for (const std::int16_t code : {keys::shift, keys::tab, keys::pageUp, keys::end, keys::left,
                                  keys::up, keys::right, keys::down, std::int16_t{112}}) {
    EXPECT_EQ(keys::characterOf(code, false), 0) << code;
  }
}

class SpinButtonsTest : public FormTest {
 protected:
  TextField quantity{form, "quantity", "", 35};
  SpinButtons spin{form, "spin", quantity};

  SpinButtonsTest() {
    form.showMain();
    spin.setMin(1);
    spin.setMax(10);
  }
};

TEST_F(SpinButtonsTest, LimitsChangeNoText) {
  quantity.setText("50");
  spin.setMin(60);
  spin.setMax(70);
  EXPECT_EQ(quantity.text(), "50");
  EXPECT_EQ(spin.min(), 60);
  EXPECT_EQ(spin.max(), 70);
}

TEST_F(SpinButtonsTest, PressMovesTheLeadingWholeNumberOfTheField) {
  quantity.setText("3");
  spin.userSpin(1);
  EXPECT_EQ(quantity.text(), "4");
  spin.userSpin(-2);
  EXPECT_EQ(quantity.text(), "2");
  quantity.setText("  7,5");
  spin.userSpin(1);
  EXPECT_EQ(quantity.text(), "8");
}

TEST_F(SpinButtonsTest, PressStaysWithinTheLimits) {
  quantity.setText("9");
  spin.userSpin(5);
  EXPECT_EQ(quantity.text(), "10");
  spin.userSpin(-99);
  EXPECT_EQ(quantity.text(), "1");
  quantity.setText("-20");
  spin.userSpin(1);
  EXPECT_EQ(quantity.text(), "1");
}

TEST_F(SpinButtonsTest, PressOnATextWithoutANumberGoesOnFromTheLastPress) {
  quantity.setText("5");
  spin.userSpin(1);
  quantity.setText("abc");
  spin.userSpin(1);
  EXPECT_EQ(quantity.text(), "7");
  quantity.setText("99999999999999999999");
  spin.userSpin(1);
  EXPECT_EQ(quantity.text(), "8");
}

TEST_F(SpinButtonsTest, LimitsThatFitNoValueGiveTheLowerOne) {
  spin.setMin(1);
  spin.setMax(0);
  quantity.setText("5");
  spin.userSpin(1);
  EXPECT_EQ(quantity.text(), "1");
}

TEST_F(SpinButtonsTest, PressRaisesTheFieldsChangeAndLeavesTheFocus) {
  TextField other(form, "other");
  other.setFocus();
  quantity.onChange = note("Change");
  spin.userSpin(1);
  EXPECT_THAT(events, ElementsAre("Change"));
  EXPECT_EQ(form.focus(), &other);
  spin.setEnabled(false);
  EXPECT_EQ(refusal([&] { spin.userSpin(1); }), "spin is disabled");
}

}  // namespace
}  // namespace awizo::test
