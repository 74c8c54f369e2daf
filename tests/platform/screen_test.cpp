#include <new>

#include "form_fixture.h"
#include "platform/forms/button.h"
#include "platform/forms/label.h"
#include "platform/forms/text_field.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScreenTest : public FormTest {
 protected:
  Button button{form, "button"};
  ScreenTest() { form.showMain(); }
};

TEST_F(ScreenTest, BoxWithoutATitleBearsTheProgramsName) {
  screen.messageBox({"Отгруженный товар упакован не полностью", ""});
  screen.messageBox({"text", "VIRD"});
  EXPECT_THAT(describe(face.boxes()),
              ElementsAre("VIRDDesAdv|none|OK|Отгруженный товар упакован не полностью",
                          "VIRD|none|OK|text"));
}

TEST_F(ScreenTest, BoxAnswersWhatTheUserPressed) {
  face.answer(Answer::yes);
  face.answer(Answer::no);
  const MessageBox question{"Продолжить?", "VIRD", BoxIcon::question, BoxButtons::yesNo};
  EXPECT_EQ(screen.messageBox(question), Answer::yes);
  EXPECT_EQ(screen.messageBox(question), Answer::no);
}

TEST_F(ScreenTest, CriticalAndExclamationBoxesHaveOneButton) {
  screen.showCritical("a", "b");
  screen.showExclamation("c", "d");
  EXPECT_THAT(describe(face.boxes()), ElementsAre("b|critical|OK|a", "d|exclamation|OK|c"));
}

TEST_F(ScreenTest, OnlyTheOpenBoxTakesInput) {
  face.whileBoxIsOpen([&](const MessageBox& box) {
    EXPECT_EQ(screen.openBox()->text, box.text);
    EXPECT_FALSE(form.takesInput());
    EXPECT_EQ(refusal([&] { button.userClick(); }), "a message box is open");
    EXPECT_EQ(refusal([&] { form.userClose(); }), "a message box is open");
  });
  button.onClick = note("Click");
  screen.showCritical("text", "title");
  EXPECT_EQ(screen.openBox(), nullptr);
  EXPECT_THAT(events, IsEmpty());
  button.userClick();
  EXPECT_THAT(events, ElementsAre("Click"));
}

TEST_F(ScreenTest, OnlyTheTopFormTakesInput) {
  Form dialog(screen, "Dialog");
  Button inner(dialog, "inner");
  EXPECT_EQ(refusal([&] { inner.userClick(); }), "Dialog isn't shown");
  face.onModal([&] {
    EXPECT_EQ(screen.top(), &dialog);
    EXPECT_EQ(refusal([&] { button.userClick(); }), "Main lies behind Dialog");
    EXPECT_TRUE(dialog.takesInput());
    dialog.hide();
    EXPECT_EQ(refusal([&] { inner.userClick(); }), "Dialog isn't shown");
  });
  dialog.showModal();
  EXPECT_EQ(screen.top(), &form);
}

TEST_F(ScreenTest, LastOpenedFormClosesFirst) {
  Form lower(screen, "Lower");
  Form upper(screen, "Upper");
  face.onModal([&] {
    face.onModal([&] {
      lower.hide();
      EXPECT_EQ(screen.top(), &upper);
      EXPECT_TRUE(upper.takesInput());
      upper.hide();
    });
    upper.showModal();
    EXPECT_EQ(screen.top(), &lower);
    EXPECT_FALSE(lower.takesInput());
  });
  lower.showModal();
  EXPECT_EQ(screen.top(), &form);
  EXPECT_THAT(face.modalForms(), ElementsAre("Lower", "Upper"));
}

TEST_F(ScreenTest, FormHiddenByItsOwnActivateIsNotWaitedFor) {
  Form dialog(screen, "Dialog");
  dialog.onActivate = [&] { dialog.hide(); };
  dialog.showModal();
  EXPECT_THAT(face.modalForms(), IsEmpty());
  EXPECT_EQ(screen.top(), &form);
}

TEST_F(ScreenTest, ActivateComesAtEveryShowing) {
  Form dialog(screen, "Dialog");
  dialog.onActivate = note("Activate");
  for (int showing = 0; showing < 2; ++showing) {
    face.onModal([&] { dialog.hide(); });
    dialog.showModal();
  }
  EXPECT_THAT(events, ElementsAre("Activate", "Activate"));
}

TEST_F(ScreenTest, FormThatIsShownIsNotShownAgain) {
  Form dialog(screen, "Dialog");
  face.onModal([&] {
    dialog.showModal();
    dialog.hide();
  });
  dialog.showModal();
  form.showMain();
  EXPECT_THAT(face.modalForms(), ElementsAre("Dialog"));
}

TEST_F(ScreenTest, FaceThatFailsLeavesNoFormBehind) {
  Form dialog(screen, "Dialog");
  face.onModal([] { throw std::logic_error("the host gives up"); });
  EXPECT_THROW(dialog.showModal(), std::logic_error);
  EXPECT_FALSE(dialog.shown());
  EXPECT_EQ(screen.top(), &form);
}

TEST_F(ScreenTest, FormObserverSeesItShownAndHidden) {
  Form dialog(screen, "Dialog");
  dialog.observers.add([&](const Change& change) {
    if (change.aspect == Aspect::visible) events.push_back(dialog.shown() ? "shown" : "hidden");
    if (change.aspect == Aspect::enabled) events.push_back("enabled");
    if (change.aspect == Aspect::content) events.push_back(dialog.caption());
  });
  dialog.setCaption("Добавь продукт");
  dialog.setCaption("Добавь продукт");
  dialog.setEnabled(false);
  dialog.setEnabled(true);
  face.onModal([&] { dialog.hide(); });
  dialog.showModal();
  EXPECT_THAT(events, ElementsAre("Добавь продукт", "enabled", "enabled", "shown", "hidden"));
}

TEST_F(ScreenTest, DisabledFormRefusesItsUser) {
  form.setEnabled(false);
  EXPECT_EQ(refusal([&] { button.userClick(); }), "Main is disabled");
}

TEST_F(ScreenTest, HiddenOrDisabledControlRefusesItsUser) {
  button.setVisible(false);
  EXPECT_EQ(refusal([&] { button.userClick(); }), "button is hidden");
  button.setVisible(true);
  button.setEnabled(false);
  EXPECT_EQ(refusal([&] { button.userPress(); }), "button is disabled");
  EXPECT_EQ(refusal([&] { button.userDoubleClick(); }), "button is disabled");
}

TEST_F(ScreenTest, FrameCloseRunsTheFormsClosingProcedure) {
  Form dialog(screen, "Dialog");
  TextField field(dialog, "field");
  Button close(dialog, "close");
  field.onValidate = note("Validate");
  close.onClick = [&] {
    events.push_back("close.Click");
    dialog.hide();
  };
  EXPECT_EQ(refusal([&] { dialog.userClose(); }), "Dialog isn't shown");
  face.onModal([&] {
    EXPECT_EQ(refusal([&] { dialog.userClose(); }), "Dialog can't be closed");
    dialog.closeButton = &close;
    dialog.userClose();
  });
  dialog.showModal();
  EXPECT_THAT(takeEvents(), ElementsAre("close.Click"));
  EXPECT_EQ(dialog.focus(), &field);

  dialog.onClose = [&] {
    events.push_back("Close");
    dialog.hide();
  };
  face.onModal([&] { dialog.userClose(); });
  dialog.showModal();
  EXPECT_THAT(events, ElementsAre("Close"));
}

TEST_F(ScreenTest, CursorIsRememberedAndToldOnlyWhenItChanges) {
  EXPECT_EQ(screen.setCursor(Cursor::wait), Cursor::normal);
  EXPECT_EQ(screen.setCursor(Cursor::wait), Cursor::wait);
  EXPECT_EQ(screen.cursor(), Cursor::wait);
  EXPECT_EQ(screen.setCursor(Cursor::normal), Cursor::wait);
  EXPECT_THAT(face.cursors(), ElementsAre(Cursor::wait, Cursor::normal));
}

TEST_F(ScreenTest, WaitingEventsAndTheEndGoToTheHost) {
  screen.letEventsRun();
  EXPECT_EQ(face.lettingEventsRun, 1);
  screen.endProgram();
  EXPECT_TRUE(face.programEnded);
}

TEST_F(ScreenTest, RunTimeErrorThatLeavesAnEventShowsABoxAndEndsIt) {
  button.onClick = [&] {
    events.push_back("before");
    throw errors::listIndexRefused();
  };
  button.userClick();
  EXPECT_THAT(events, ElementsAre("before"));
  EXPECT_THAT(
      describe(face.boxes()),
      ElementsAre(
          "VIRD|critical|OK|Could not set the ListIndex property. Invalid property value."));
}

TEST_F(ScreenTest, WantOfMemoryInAnEventIsARunTimeErrorToo) {
  button.onClick = [] { throw std::bad_alloc(); };
  button.userClick();
  EXPECT_THAT(describe(face.boxes()), ElementsAre("VIRD|critical|OK|Out of memory"));
}

TEST_F(ScreenTest, ErrorInANestedEventEndsThatEventAlone) {
  TextField field(form, "field");
  field.onChange = [] { throw errors::typeMismatch(); };
  button.onClick = [&] {
    field.setText("abc");
    events.push_back("after");
  };
  button.userClick();
  EXPECT_THAT(events, ElementsAre("after"));
  EXPECT_THAT(face.texts(), ElementsAre("Type mismatch"));
}

TEST_F(ScreenTest, EndlessEventsEndAsOutOfStackSpace) {
  TextField field(form, "field");
  int depth = 0;
  field.onChange = [&] {
    ++depth;
    field.setText(std::to_string(depth));
  };
  field.setText("0");
  EXPECT_THAT(describe(face.boxes()), ElementsAre("VIRD|critical|OK|Out of stack space"));
  EXPECT_GT(depth, 100);

  face.takeBoxes();
  field.onChange = note("Change");
  field.setText("again");
  EXPECT_THAT(events, ElementsAre("Change"));
  EXPECT_THAT(face.boxes(), IsEmpty());
}

TEST_F(ScreenTest, ControlIsFoundByItsName) {
  EXPECT_EQ(form.find("button"), &button);
  EXPECT_EQ(form.find("Button"), nullptr);
  EXPECT_THAT(form.controls(), ElementsAre(&button));
}

TEST_F(ScreenTest, LabelTellsANewCaptionOnce) {
  Label label(form, "label", "caption");
  label.observers.add([&](const Change&) { events.push_back(label.caption()); });
  label.setCaption("caption");
  label.setCaption("0,000");
  label.setCaption("0,000");
  EXPECT_THAT(events, ElementsAre("0,000"));
}

TEST_F(ScreenTest, PlaceIsTheHostsUntilTheLogicSetsOne) {
  button.observers.add([&](const Change& change) {
    if (change.aspect == Aspect::place) events.push_back("place");
  });
  EXPECT_FALSE(button.place().has_value());
  button.move({10, 20, 300, 240});
  button.move({10, 20, 300, 240});
  ASSERT_TRUE(button.place().has_value());
  EXPECT_EQ(button.place()->width, 300);
  EXPECT_THAT(events, ElementsAre("place"));
}

}  // namespace
}  // namespace awizo::test
