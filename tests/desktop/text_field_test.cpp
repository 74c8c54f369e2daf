#include "platform/forms/text_field.h"

#include <QClipboard>
#include <QLineEdit>

#include "form_window.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TextFieldOnDesktop : public FormWindow {
 protected:
  TextField field{form, "field", "Поле:"};
  TextField limited{form, "limited", "", 5, Alignment::right};

  TextFieldOnDesktop() {
    field.onChange = [this] { events.push_back(field.text()); };
    field.onKeyDown = [this](std::int16_t code, bool shift) {
      events.push_back("key " + std::to_string(code) + (shift ? " shift" : ""));
    };
    show();
  }
  QLineEdit* edit(const TextField& shown) { return qobject_cast<QLineEdit*>(widgetOf(shown)); }
};

TEST_F(TextFieldOnDesktop, TakesEachTypedCharacterAsOneChange) {
  click(faceOf(field));
  type("Ёж");
  EXPECT_THAT(events, ElementsAre("Ё", "Ёж"));
  EXPECT_EQ(shownText(faceOf(field)), "Ёж");
}

TEST_F(TextFieldOnDesktop, ShowsWhatCodeSets) {
  field.setText("1,000");
  EXPECT_EQ(shownText(faceOf(field)), "1,000");
}

TEST_F(TextFieldOnDesktop, KeepsTheCaretWhereTheUserTypes) {
  field.setText("abcd");
  click(faceOf(field));
  press(Qt::Key_Home);
  press(Qt::Key_Right);
  takeEvents();
  type("X");
  EXPECT_EQ(field.text(), "aXbcd");
  EXPECT_EQ(edit(field)->cursorPosition(), 2);
}

TEST_F(TextFieldOnDesktop, PutsTheCaretWhereCodePutsIt) {
  field.setText("a𝄞bc");
  EXPECT_EQ(edit(field)->cursorPosition(), 0);
  field.setCaret(2);
  EXPECT_EQ(edit(field)->cursorPosition(), 3) << "a character beyond 16 bits has two units";
  field.setCaret(1000);
  EXPECT_EQ(edit(field)->cursorPosition(), 5);
}

TEST_F(TextFieldOnDesktop, ShowsWhatAnEventMakesOfTheTypedText) {
  field.onChange = [this] {
    if (field.text() == "x") field.setText("7");
  };
  click(faceOf(field));
  type("x");
  EXPECT_EQ(field.text(), "7");
  EXPECT_EQ(shownText(faceOf(field)), "7");
}

TEST_F(TextFieldOnDesktop, TakesNoMoreThanItsLimit) {
  click(faceOf(limited));
  type("1234567");
  EXPECT_EQ(limited.text(), "12345");
  press(Qt::Key_Home);
  type("9");
  EXPECT_EQ(limited.text(), "12345") << "a full field takes nothing at its start either";
  EXPECT_EQ(shownText(faceOf(limited)), "12345");
}

TEST_F(TextFieldOnDesktop, CountsCharactersForItsLimit) {
  limited.setText("𝄞𝄞𝄞𝄞𝄞");
  EXPECT_EQ(shownText(faceOf(limited)), "𝄞𝄞𝄞𝄞𝄞");
}

TEST_F(TextFieldOnDesktop, IsAlignedAsTheModelSays) {
  EXPECT_TRUE(edit(limited)->alignment() & Qt::AlignRight);
  EXPECT_FALSE(edit(field)->alignment() & Qt::AlignRight);
}

TEST_F(TextFieldOnDesktop, DropsLineBreaksAndControlCharactersOfAPastedText) {
  click(faceOf(field));
  paste("one\r\ntwo\tthree\x01");
  EXPECT_EQ(field.text(), "onetwothree");
  EXPECT_EQ(shownText(faceOf(field)), "onetwothree");
}

TEST_F(TextFieldOnDesktop, OutlivesAPastedMegabyte) {
  click(faceOf(field));
  paste(QString(1 << 20, 'm'));
  EXPECT_EQ(shownText(faceOf(field)), field.text());
  EXPECT_FALSE(field.text().empty());
  click(faceOf(limited));
  paste(QString(1 << 20, 'm'));
  EXPECT_EQ(limited.text(), "mmmmm");
}

TEST_F(TextFieldOnDesktop, HandsKeysOnOnce) {
  click(faceOf(field));
  takeEvents();
  press(Qt::Key_Return);
  press(Qt::Key_Escape);
  press(Qt::Key_Up);
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_THAT(events, ElementsAre("key 13", "key 27", "key 38", "key 40 shift"));
  EXPECT_TRUE(focusIsAt(field));
}

TEST_F(TextFieldOnDesktop, LeavesKeysWithControlToTheField) {
  click(faceOf(field));
  type("abc");
  takeEvents();
  press(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_THAT(events, IsEmpty());
  EXPECT_EQ(edit(field)->cursorPosition(), 0);
}

TEST_F(TextFieldOnDesktop, ComesAndGoesWithItsModel) {
  field.setVisible(false);
  EXPECT_FALSE(widgetOf(field)->isVisible());
  field.setVisible(true);
  EXPECT_TRUE(widgetOf(field)->isVisible());
  limited.setEnabled(false);
  EXPECT_FALSE(widgetOf(limited)->isEnabled());
}

TEST_F(TextFieldOnDesktop, SelectsItsTextWhenTheFocusComesByTheKeyboard) {
  limited.setText("12345");
  click(faceOf(field));
  press(Qt::Key_Tab);
  EXPECT_TRUE(focusIsAt(limited));
  type("9");
  EXPECT_EQ(limited.text(), "9");
}

}  // namespace
}  // namespace awizo::test
