#include "form_fixture.h"
#include "platform/forms/button.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/keys.h"
#include "platform/forms/label.h"
#include "platform/forms/pickers.h"
#include "platform/forms/spin_buttons.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Focus : public FormTest {
 protected:
  TextField first{form, "first"};
  TextField second{form, "second"};
  Button button{form, "button"};
  PictureButton picture{form, "picture"};
  Label label{form, "label"};

  Focus() {
    form.showMain();
    for (Control* control : form.controls()) noteFocus(*control);
    button.onClick = note("button.Click");
    picture.onClick = note("picture.Click");
  }
};

TEST_F(Focus, GoesToTheFirstControlThatCanTakeItWhenTheFormIsShown) {
  EXPECT_EQ(form.focus(), &first);

  Form other(screen, "Other");
  Label caption(other, "caption");
  TextField hidden(other, "hidden");
  hidden.setVisible(false);
  TextField disabled(other, "disabled");
  disabled.setEnabled(false);
  TextField free(other, "free");
  noteFocus(free);
  other.onActivate = note("Activate");
  face.onModal([](Form& shown) { shown.hide(); });
  other.showModal();
  EXPECT_EQ(other.focus(), &free);
  EXPECT_THAT(events, ElementsAre("Activate", "free.GotFocus"));
}

TEST_F(Focus, LeavingByTheUserValidatesThenLosesThenGets) {
  second.userFocus();
  EXPECT_THAT(events, ElementsAre("first.Validate", "first.LostFocus", "second.GotFocus"));
  EXPECT_EQ(form.focus(), &second);
}

TEST_F(Focus, ComesBeforeTheClickOfAButton) {
  button.userClick();
  EXPECT_THAT(events,
              ElementsAre("first.Validate", "first.LostFocus", "button.GotFocus", "button.Click"));
}

TEST_F(Focus, IsNotMovedByAPictureButton) {
  picture.userClick();
  EXPECT_THAT(events, ElementsAre("picture.Click"));
  EXPECT_EQ(form.focus(), &first);
  EXPECT_EQ(refusal([&] { picture.userFocus(); }), "picture takes no focus");
}

TEST_F(Focus, IsNotTakenByLabelsAndSpinButtons) {
  SpinButtons spin(form, "spin", first);
  EXPECT_FALSE(label.isFocusable());
  EXPECT_FALSE(spin.isFocusable());
  label.setFocus();
  EXPECT_EQ(form.focus(), &first);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Focus, CallByCodeRunsNoValidation) {
  second.setFocus();
  EXPECT_THAT(events, ElementsAre("first.LostFocus", "second.GotFocus"));
}

TEST_F(Focus, CallOnTheControlThatHasItRaisesNothing) {
  first.setFocus();
  first.userFocus();
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Focus, CallOnAHiddenOrDisabledControlDoesNothing) {
  second.setVisible(false);
  second.setFocus();
  second.setVisible(true);
  second.setEnabled(false);
  second.setFocus();
  EXPECT_THAT(events, IsEmpty());
  EXPECT_EQ(form.focus(), &first);
}

TEST_F(Focus, CallOnAFormThatIsNotShownDoesNothing) {
  Form other(screen, "Other");
  TextField field(other, "field");
  noteFocus(field);
  field.setFocus();
  EXPECT_EQ(other.focus(), nullptr);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Focus, IsLostByHidingTheControlWithoutValidation) {
  first.setVisible(false);
  EXPECT_THAT(takeEvents(), ElementsAre("first.LostFocus"));
  EXPECT_EQ(form.focus(), nullptr);
  second.userFocus();
  EXPECT_THAT(events, ElementsAre("second.GotFocus"));
}

TEST_F(Focus, IsLostByDisablingTheControlWithoutValidation) {
  first.setEnabled(false);
  EXPECT_THAT(events, ElementsAre("first.LostFocus"));
  EXPECT_EQ(form.focus(), nullptr);
}

TEST_F(Focus, IsKeptWhenTheWholeFormIsDisabled) {
  form.setEnabled(false);
  EXPECT_EQ(form.focus(), &first);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Focus, ValidationThatHidesItsControlLosesTheFocusOnce) {
  first.onValidate = [&] {
    events.push_back("first.Validate");
    first.setVisible(false);
  };
  second.userFocus();
  EXPECT_THAT(events, ElementsAre("first.Validate", "first.LostFocus", "second.GotFocus"));
}

TEST_F(Focus, ClickEndsQuietlyWhenValidationDisablesTheButton) {
  first.onValidate = [&] { button.setEnabled(false); };
  button.userClick();
  EXPECT_THAT(events, IsEmpty());
  EXPECT_EQ(form.focus(), &first);
}

TEST_F(Focus, ClickEndsQuietlyWhenLosingTheFocusHidesTheButton) {
  first.onLostFocus = [&] { button.setVisible(false); };
  button.userClick();
  EXPECT_THAT(events, ElementsAre("first.Validate"));
  EXPECT_EQ(form.focus(), nullptr);
}

TEST_F(Focus, ClickEndsQuietlyWhenGettingTheFocusDisablesTheForm) {
  button.onGotFocus = [&] { form.setEnabled(false); };
  button.userClick();
  EXPECT_THAT(events, ElementsAre("first.Validate", "first.LostFocus"));
}

TEST_F(Focus, ClickEndsQuietlyWhenAnEventSendsTheFocusElsewhere) {
  first.onLostFocus = [&] { second.setFocus(); };
  button.userClick();
  EXPECT_THAT(events, ElementsAre("first.Validate", "second.GotFocus"));
  EXPECT_EQ(form.focus(), &second);
}

TEST_F(Focus, ValidationThatMovesItThereItselfRaisesNothingTwice) {
  first.onValidate = [&] { second.setFocus(); };
  second.userFocus();
  EXPECT_THAT(events, ElementsAre("first.LostFocus", "second.GotFocus"));
}

TEST_F(Focus, StaysWithItsControlWhileAModalFormIsShown) {
  Form dialog(screen, "Dialog");
  TextField field(dialog, "field");
  noteFocus(field);
  face.onModal([&] {
    EXPECT_EQ(form.focus(), &first);
    dialog.hide();
  });
  dialog.showModal();
  EXPECT_THAT(events, ElementsAre("field.GotFocus"));
  EXPECT_EQ(form.focus(), &first);
}

TEST_F(Focus, StaysWithItsControlWhileABoxIsOpen) {
  screen.showExclamation("text", "VIRD");
  EXPECT_THAT(events, IsEmpty());
  EXPECT_EQ(form.focus(), &first);
}

TEST_F(Focus, OfADialogIsKeptForItsNextShowing) {
  Form dialog(screen, "Dialog");
  TextField one(dialog, "one");
  TextField two(dialog, "two");
  noteFocus(one);
  noteFocus(two);
  face.onModal([&] {
    two.userFocus();
    dialog.hide();
  });
  dialog.showModal();
  EXPECT_THAT(takeEvents(),
              ElementsAre("one.GotFocus", "one.Validate", "one.LostFocus", "two.GotFocus"));

  face.onModal([&] {
    EXPECT_EQ(dialog.focus(), &two);
    dialog.hide();
  });
  dialog.showModal();
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Focus, FallsBackToTheFirstControlWhenItsOwnWasHiddenMeanwhile) {
  Form dialog(screen, "Dialog");
  TextField one(dialog, "one");
  TextField two(dialog, "two");
  face.onModal([&] {
    two.userFocus();
    dialog.hide();
  });
  dialog.showModal();
  noteFocus(one);
  noteFocus(two);
  two.setVisible(false);
  EXPECT_THAT(events, IsEmpty());
  face.onModal([&] { dialog.hide(); });
  dialog.showModal();
  EXPECT_THAT(events, ElementsAre("one.GotFocus"));
}

TEST_F(Focus, TabPassesOverAControlWhileItsCoverIsVisible) {
  second.cover = &button;
  first.userKey(keys::tab);
  EXPECT_EQ(form.focus(), &button);
  second.setFocus();
  EXPECT_EQ(form.focus(), &second) << "code may still put the focus there";
  first.setFocus();
  button.setVisible(false);
  first.userKey(keys::tab);
  EXPECT_EQ(form.focus(), &second);
}

TEST_F(Focus, TabGoesOnInTheOrderOfTheControlsAndShiftGoesBack) {
  first.userKey(keys::tab);
  EXPECT_THAT(takeEvents(), ElementsAre("first.Validate", "first.LostFocus", "second.GotFocus"));
  second.setEnabled(false);
  takeEvents();
  first.userKey(keys::tab);
  EXPECT_EQ(form.focus(), &button);
  button.userKey(keys::tab);
  EXPECT_EQ(form.focus(), &first);
  first.userKey(keys::tab, true);
  EXPECT_EQ(form.focus(), &button);
}

TEST_F(Focus, ObserversOfControlAndFormAreToldOfIt) {
  second.observers.add([&](const Change& change) {
    if (change.aspect == Aspect::focus) events.push_back("second observed");
  });
  form.observers.add([&](const Change& change) {
    if (change.aspect == Aspect::focus) events.push_back("form observed");
  });
  second.setFocus();
  EXPECT_THAT(events, ElementsAre("form observed", "first.LostFocus", "second observed",
                                  "form observed", "second.GotFocus"));
}

TEST_F(Focus, KeysOfTheFormGoToTheControlThatHasIt) {
  form.userKey(keys::tab);
  EXPECT_EQ(form.focus(), &second);
}

TEST_F(Focus, WithoutItEnterAndEscapePressTheFormsButtonsAndTabLeadsBack) {
  TextField cover(form, "cover");
  form.acceptButton = &button;
  form.closeButton = &picture;
  first.setEnabled(false);
  takeEvents();
  ASSERT_EQ(form.focus(), nullptr);
  EXPECT_TRUE(form.userKey(keys::enter));
  EXPECT_TRUE(form.userKey(keys::escape));
  EXPECT_THAT(takeEvents(), ElementsAre("button.Click", "picture.Click"));
  EXPECT_FALSE(form.userKey(keys::down)) << "that key means nothing to a form";
  second.cover = &cover;
  EXPECT_TRUE(form.userKey(keys::tab));
  EXPECT_EQ(form.focus(), &button) << "the first that is neither disabled nor covered";
}

TEST_F(Focus, WithoutItAndWithoutButtonsEnterDoesNothing) {
  first.setEnabled(false);
  EXPECT_TRUE(form.userKey(keys::enter));
  EXPECT_EQ(form.focus(), nullptr);
  form.setEnabled(false);
  EXPECT_THROW(form.userKey(keys::tab), Refused);
}

}  // namespace
}  // namespace awizo::test
