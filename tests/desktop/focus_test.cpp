#include <QLineEdit>

#include "form_window.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FocusOnDesktop : public FormWindow {
 protected:
  TextField first{form, "first"};
  TextField second{form, "second"};
  PictureButton picture{form, "picture", "Картинка"};
  DropDownList list{form, "list", "", ListStyle::matchRequired};
  Button button{form, "button", "&Добавить"};
  Button closing{form, "closing", "&Назад"};

  FocusOnDesktop() {
    for (Control* control : form.controls()) noteFocus(*control);
    button.onClick = note("button.Click");
    closing.onClick = note("closing.Click");
    picture.onClick = note("picture.Click");
    list.setRows({"RU", "BY"});
    show();
    takeEvents();
  }
};

TEST_F(FocusOnDesktop, IsAtTheFirstControlWhenTheFormComes) { EXPECT_TRUE(focusIsAt(first)); }

TEST_F(FocusOnDesktop, TabValidatesThenLeavesThenEnters) {
  press(Qt::Key_Tab);
  EXPECT_THAT(events, ElementsAre("first.Validate", "first.LostFocus", "second.GotFocus"));
  EXPECT_TRUE(focusIsAt(second));
}

TEST_F(FocusOnDesktop, TabGoesInTheOrderOfTheModelAndShiftGoesBack) {
  for (const Control* next : {static_cast<Control*>(&second), static_cast<Control*>(&list),
                              static_cast<Control*>(&button), static_cast<Control*>(&closing),
                              static_cast<Control*>(&first)}) {
    press(Qt::Key_Tab);
    EXPECT_TRUE(focusIsAt(*next));
  }
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(focusIsAt(closing));
}

TEST_F(FocusOnDesktop, AClickMovesItBeforeTheClickTakesPlace) {
  click(faceOf(button));
  EXPECT_THAT(events,
              ElementsAre("first.Validate", "first.LostFocus", "button.GotFocus", "button.Click"));
  EXPECT_TRUE(focusIsAt(button));
}

TEST_F(FocusOnDesktop, APictureTakesNone) {
  click(faceOf(picture));
  EXPECT_THAT(events, ElementsAre("picture.Click"));
  EXPECT_TRUE(focusIsAt(first));
}

TEST_F(FocusOnDesktop, StaysWhereARefusalKeepsIt) {
  click(faceOf(list));
  list.setText("XX");
  takeEvents();
  press(Qt::Key_Tab);
  EXPECT_TRUE(focusIsAt(list));
  EXPECT_THAT(screenFace.texts(), ElementsAre("Invalid property value."));
  click(faceOf(first));
  EXPECT_TRUE(focusIsAt(list));
  click(faceOf(button));
  EXPECT_TRUE(focusIsAt(list));
  EXPECT_EQ(screenFace.texts().size(), 3U) << "one box for each try";
  EXPECT_THAT(events, IsEmpty()) << "the refused click didn't take place";
}

TEST_F(FocusOnDesktop, GoesWhereAnEventSendsIt) {
  first.onLostFocus = [this] { closing.setFocus(); };
  press(Qt::Key_Tab);
  EXPECT_TRUE(focusIsAt(closing));
  second.onGotFocus = [this] { button.setFocus(); };
  click(faceOf(second));
  EXPECT_TRUE(focusIsAt(button));
}

TEST_F(FocusOnDesktop, FollowsACallByCodeAtOnce) {
  second.setFocus();
  EXPECT_EQ(QApplication::focusWidget(), widgetOf(second));
}

TEST_F(FocusOnDesktop, IsNowhereWhenItsControlHidesAndComesBackByTab) {
  first.setVisible(false);
  settle();
  EXPECT_EQ(form.focus(), nullptr);
  EXPECT_THAT(takeEvents(), ElementsAre("first.LostFocus")) << "no other control was entered";
  press(Qt::Key_Tab);
  EXPECT_TRUE(focusIsAt(second));
}

TEST_F(FocusOnDesktop, ADisabledControlLosesItToNobody) {
  first.setEnabled(false);
  settle();
  EXPECT_EQ(form.focus(), nullptr);
  EXPECT_THAT(events, ElementsAre("first.LostFocus"));
}

TEST_F(FocusOnDesktop, EnterAndEscapePressTheFormsButtonsWithoutMovingIt) {
  form.acceptButton = &button;
  form.closeButton = &closing;
  press(Qt::Key_Return);
  press(Qt::Key_Escape);
  press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_THAT(events, ElementsAre("button.Click", "closing.Click", "button.Click"));
  EXPECT_TRUE(focusIsAt(first));
}

TEST_F(FocusOnDesktop, EnterAndEscapePressThemWithoutAFocusToo) {
  form.acceptButton = &button;
  form.closeButton = &closing;
  first.setVisible(false);
  settle();
  takeEvents();
  press(Qt::Key_Return);
  press(Qt::Key_Escape);
  EXPECT_THAT(events, ElementsAre("button.Click", "closing.Click"));
}

TEST_F(FocusOnDesktop, EnterAndTheBlankPressTheButtonThatHasIt) {
  form.acceptButton = &closing;
  click(faceOf(button));
  takeEvents();
  press(Qt::Key_Return);
  press(Qt::Key_Space);
  EXPECT_THAT(events, ElementsAre("button.Click", "button.Click"));
}

TEST_F(FocusOnDesktop, ArrowsDontMoveItFromAButton) {
  click(faceOf(button));
  press(Qt::Key_Right);
  press(Qt::Key_Up);
  EXPECT_TRUE(focusIsAt(button));
}

TEST_F(FocusOnDesktop, AMnemonicClicksItsButtonOnce) {
  press(static_cast<Qt::Key>(0x414), Qt::AltModifier);  // Д
  EXPECT_THAT(events,
              ElementsAre("first.Validate", "first.LostFocus", "button.GotFocus", "button.Click"));
  EXPECT_TRUE(focusIsAt(button));
  takeEvents();
  press(static_cast<Qt::Key>(0x41D), Qt::AltModifier);  // Н
  EXPECT_EQ(events.back(), "closing.Click");
}

TEST_F(FocusOnDesktop, ACoveredControlsFocusShowsAtItsCover) {
  second.cover = &list;
  faces->showAll();
  EXPECT_FALSE(widgetOf(second)->isVisible());
  second.setFocus();
  EXPECT_EQ(form.focus(), &second);
  EXPECT_EQ(QApplication::focusWidget(), faceOf(list).focusWidget());
  list.setVisible(false);
  EXPECT_TRUE(widgetOf(second)->isVisible());
  second.setFocus();
  EXPECT_TRUE(focusIsAt(second));
}

TEST_F(FocusOnDesktop, ADisabledFormTakesNoInputAndKeepsIt) {
  form.setEnabled(false);
  EXPECT_FALSE(window->isEnabled());
  click(faceOf(button));
  EXPECT_THAT(events, IsEmpty());
  form.setEnabled(true);
  EXPECT_TRUE(focusIsAt(first));
}

TEST_F(FocusOnDesktop, ComesBackToItsControlWithTheWindow) {
  QWidget other;
  other.show();
  other.activateWindow();
  settle();
  takeEvents();
  window->activateWindow();
  settle();
  EXPECT_TRUE(focusIsAt(first));
  EXPECT_THAT(events, IsEmpty()) << "a window's coming and going is no move of the focus";
}

}  // namespace
}  // namespace awizo::test
