#include <QCalendarWidget>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLineEdit>

#include "form_window.h"
#include "platform/forms/pickers.h"
#include "platform/forms/text_field.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Date day = makeDate(2026, 11, 21);

class PickersOnDesktop : public FormWindow {
 protected:
  DatePicker fixed{form, "fixed", day, NoValue::refused};
  DatePicker open{form, "open", day, NoValue::allowed, "", DateForm::longDate};
  TimePicker time{form, "time", TimeOfDay{10, 15, 0}};
  TextField field{form, "field"};

  PickersOnDesktop() {
    fixed.onChange = note("fixed.Change");
    open.onChange = note("open.Change");
    time.onChange = note("time.Change");
    show();
    takeEvents();
  }

  QDateTimeEdit* edit(const Control& picker) {
    return widgetOf(picker)->findChild<QDateTimeEdit*>();
  }
  QCheckBox* box(const Control& picker) { return widgetOf(picker)->findChild<QCheckBox*>(); }
  void clickBox(const Control& picker) { click(box(picker), QPoint(8, box(picker)->height() / 2)); }
  /// Clicks the first section of a picker, which marks it.
  void enter(const Control& picker) { click(edit(picker)->findChild<QLineEdit*>(), QPoint(8, 10)); }
};

TEST_F(PickersOnDesktop, ShowDatesInTheLocalesForms) {
  EXPECT_EQ(shownText(faceOf(fixed)), "21.11.2026");
  EXPECT_EQ(shownText(faceOf(open)), "21 ноября 2026 г.");
  EXPECT_EQ(shownText(faceOf(time)), "10:15");
}

TEST_F(PickersOnDesktop, TypingADayChangesTheDate) {
  enter(fixed);
  type("05");
  EXPECT_EQ(fixed.date(), makeDate(2026, 11, 5));
  EXPECT_THAT(events, ElementsAre("fixed.Change"));
  EXPECT_TRUE(focusIsAt(fixed));
}

TEST_F(PickersOnDesktop, ArrowsStepASection) {
  enter(fixed);
  press(Qt::Key_Up);
  EXPECT_EQ(fixed.date(), makeDate(2026, 11, 22));
  EXPECT_THAT(events, ElementsAre("fixed.Change"));
}

TEST_F(PickersOnDesktop, ShowWhatCodeSetsAndSayNothingOfIt) {
  fixed.setDate(makeDate(2024, 2, 29));
  EXPECT_EQ(shownText(faceOf(fixed)), "29.02.2024");
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(PickersOnDesktop, OfferNoDateOutOfRange) {
  fixed.setDate(DatePicker::max());
  enter(fixed);
  press(Qt::Key_Up);
  EXPECT_EQ(fixed.date(), DatePicker::max());
  fixed.setDate(DatePicker::min());
  press(Qt::Key_Down);
  EXPECT_EQ(fixed.date(), DatePicker::min());
  EXPECT_EQ(shownText(faceOf(fixed)), "01.01.1601");
}

TEST_F(PickersOnDesktop, NeverHoldADayThatTheMonthLacks) {
  fixed.setDate(makeDate(2026, 2, 10));
  enter(fixed);
  type("31");
  press(Qt::Key_Tab);
  EXPECT_TRUE(focusIsAt(open));
  ASSERT_TRUE(fixed.date().has_value());
  EXPECT_TRUE(fixed.date()->ok());
  const auto shownDay = static_cast<unsigned>(std::stoi(shownText(faceOf(fixed))));
  EXPECT_EQ(static_cast<unsigned>(fixed.date()->day()), shownDay);
}

TEST_F(PickersOnDesktop, AlwaysHoldADateWhereNoneIsRefused) {
  EXPECT_EQ(box(fixed), nullptr);
  enter(fixed);
  press(Qt::Key_Delete);
  press(Qt::Key_Tab);
  EXPECT_TRUE(fixed.date().has_value());
}

TEST_F(PickersOnDesktop, TheBoxClearsAndBringsBackTheDate) {
  clickBox(open);
  EXPECT_EQ(open.date(), std::nullopt);
  EXPECT_FALSE(edit(open)->isEnabled());
  EXPECT_TRUE(focusIsAt(open));
  clickBox(open);
  EXPECT_EQ(open.date(), day);
  EXPECT_TRUE(edit(open)->isEnabled());
  EXPECT_TRUE(focusIsAt(open));
  EXPECT_THAT(events, ElementsAre("open.Change", "open.Change"));
}

TEST_F(PickersOnDesktop, TheBlankDoesTheSame) {
  enter(open);
  press(Qt::Key_Space);
  EXPECT_EQ(open.date(), std::nullopt);
  EXPECT_TRUE(focusIsAt(open));
  press(Qt::Key_Space);
  EXPECT_EQ(open.date(), day);
  EXPECT_TRUE(focusIsAt(open));
}

TEST_F(PickersOnDesktop, AnEmptyPickerKeepsTheFocusByItsBox) {
  open.setDate(std::nullopt);
  click(faceOf(fixed));
  press(Qt::Key_Tab);
  EXPECT_TRUE(focusIsAt(open));
  press(Qt::Key_Tab);
  EXPECT_TRUE(focusIsAt(time));
}

TEST_F(PickersOnDesktop, AnEmptyPickerOpensOnTheLastDate) {
  open.setDate(makeDate(2026, 1, 31));
  open.setDate(std::nullopt);
  clickBox(open);
  EXPECT_EQ(open.date(), makeDate(2026, 1, 31));
}

TEST_F(PickersOnDesktop, TypingATimeChangesIt) {
  enter(time);
  type("23");
  EXPECT_EQ(time.time(), (TimeOfDay{23, 15, 0}));
  EXPECT_THAT(events, ::testing::Contains("time.Change"));
}

TEST_F(PickersOnDesktop, WhatIsTypedIsTakenBeforeTheFocusGoes) {
  fixed.onLostFocus = [this] {
    events.push_back("left with " + std::to_string(unsigned(fixed.date()->day())));
  };
  enter(fixed);
  type("7");
  click(faceOf(field));
  EXPECT_TRUE(focusIsAt(field));
  EXPECT_EQ(fixed.date(), makeDate(2026, 11, 7));
  EXPECT_THAT(events, ElementsAre("fixed.Change", "left with 7"));
}

TEST_F(PickersOnDesktop, ARefusedPickShowsTheModelsDateAgain) {
  form.setEnabled(false);
  edit(fixed)->setDate(QDate(2020, 1, 1));
  EXPECT_EQ(fixed.date(), day);
  EXPECT_EQ(shownText(faceOf(fixed)), "21.11.2026");
}

}  // namespace
}  // namespace awizo::test
