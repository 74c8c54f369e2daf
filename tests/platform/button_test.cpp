#include "platform/forms/button.h"

#include "form_fixture.h"
#include "platform/forms/keys.h"
#include "platform/forms/text_field.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ButtonTest : public FormTest {
 protected:
  TextField field{form, "field"};
  Button accept{form, "accept", "&Добавить"};
  Button close{form, "close", "&Назад"};
  PictureButton picture{form, "picture", "ISO коды стран."};

  ButtonTest() {
    form.showMain();
    for (Button* button : {&accept, &close, static_cast<Button*>(&picture)}) {
      button->onClick = note(button->name() + ".Click");
      button->onDoubleClick = note(button->name() + ".DoubleClick");
    }
  }
};

TEST_F(ButtonTest, DoubleClickRaisesTheClickFirst) {
  accept.userDoubleClick();
  EXPECT_THAT(events, ElementsAre("accept.Click", "accept.DoubleClick"));
  EXPECT_EQ(form.focus(), &accept);
}

TEST_F(ButtonTest, DoubleClickThatStandsAloneRaisesNoClick) {
  picture.doubleClickAlone = true;
  picture.userDoubleClick();
  EXPECT_THAT(events, ElementsAre("picture.DoubleClick"));
  EXPECT_EQ(form.focus(), &field);
}

TEST_F(ButtonTest, DoubleClickEndsWhenTheClickDisablesTheButton) {
  accept.onClick = [&] { accept.setEnabled(false); };
  accept.userDoubleClick();
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ButtonTest, PressingRaisesTheClickAndLeavesTheFocus) {
  field.onValidate = note("Validate");
  accept.userPress();
  EXPECT_THAT(events, ElementsAre("accept.Click"));
  EXPECT_EQ(form.focus(), &field);
}

TEST_F(ButtonTest, EnterAndEscapePressTheFormsButtonsFromAnyField) {
  form.acceptButton = &accept;
  form.closeButton = &close;
  field.onKeyDown = [&](std::int16_t, bool) { events.push_back("KeyDown"); };
  field.onValidate = note("Validate");
  field.userKey(keys::enter);
  field.userKey(keys::escape);
  EXPECT_THAT(events, ElementsAre("accept.Click", "close.Click"));
  EXPECT_EQ(form.focus(), &field);
}

TEST_F(ButtonTest, EnterIsTheFieldsOwnWhereTheAcceptingButtonCanNotBePressed) {
  form.acceptButton = &accept;
  accept.setEnabled(false);
  field.onKeyDown = [&](std::int16_t code, bool) { events.push_back(std::to_string(code)); };
  field.userKey(keys::enter);
  EXPECT_THAT(events, ElementsAre("13"));
}

TEST_F(ButtonTest, EnterAndTheBlankPressTheButtonThatHasTheFocus) {
  form.acceptButton = &accept;
  form.closeButton = &accept;
  close.userKey(keys::enter);
  close.userKey(keys::blank);
  EXPECT_THAT(takeEvents(), ElementsAre("close.Click", "close.Click"));
  EXPECT_EQ(form.focus(), &close);
  close.userKey(keys::escape);
  EXPECT_THAT(events, ElementsAre("accept.Click"));
}

TEST_F(ButtonTest, PictureTakesNoKey) {
  EXPECT_EQ(refusal([&] { picture.userKey(keys::enter); }), "picture takes no focus");
}

TEST_F(ButtonTest, CaptionIsToldWhenItChanges) {
  accept.observers.add([&](const Change& change) {
    if (change.aspect == Aspect::content) events.push_back(accept.caption());
  });
  accept.setCaption("&Подтвердить");
  accept.setCaption("&Подтвердить");
  EXPECT_THAT(events, ElementsAre("&Подтвердить"));
}

}  // namespace
}  // namespace awizo::test
