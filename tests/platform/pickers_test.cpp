#include "platform/forms/pickers.h"

#include "form_fixture.h"
#include "platform/forms/text_field.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* outside =
    "35773 A date was specified that does not fall within the MinDate and MaxDate properties";

class PickersTest : public FormTest {
 protected:
  const Date today = makeDate(2026, 11, 21);
  TextField other{form, "other"};
  DatePicker must{form, "must", today, NoValue::refused};
  DatePicker may{form, "may", today, NoValue::allowed, "Срок годности:", DateForm::longDate};
  TimePicker time{form, "time", TimeOfDay{10, 15, 0}};

  PickersTest() {
    form.showMain();
    noteFocus(other);
    must.onChange = note("must.Change");
    may.onChange = note("may.Change");
    time.onChange = note("time.Change");
  }
};

TEST_F(PickersTest, StandAtTodayUntilSomethingSetsThem) {
  EXPECT_EQ(must.date(), today);
  EXPECT_EQ(may.date(), today);
  EXPECT_EQ(time.time(), (TimeOfDay{10, 15, 0}));
}

TEST_F(PickersTest, AssignmentByCodeRaisesNoChange) {
  must.setDate(makeDate(2026, 1, 2));
  may.setDate(std::nullopt);
  time.setTime(std::nullopt);
  EXPECT_EQ(must.date(), makeDate(2026, 1, 2));
  EXPECT_EQ(may.date(), std::nullopt);
  EXPECT_EQ(time.time(), std::nullopt);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(PickersTest, UserTakesTheFocusAndRaisesChange) {
  must.userSet(makeDate(2026, 11, 30));
  EXPECT_EQ(must.date(), makeDate(2026, 11, 30));
  EXPECT_THAT(takeEvents(), ElementsAre("other.Validate", "other.LostFocus", "must.Change"));
  EXPECT_EQ(form.focus(), &must);
  may.userSet(std::nullopt);
  time.userSet(std::nullopt);
  time.userSet(TimeOfDay{10, 30, 0});
  EXPECT_EQ(time.time(), (TimeOfDay{10, 30, 0}));
  EXPECT_THAT(events, ElementsAre("may.Change", "time.Change", "time.Change"));
}

TEST_F(PickersTest, UserWhoSetsTheSameValueChangesNothing) {
  must.userSet(today);
  time.userSet(TimeOfDay{10, 15, 0});
  EXPECT_THAT(events, ElementsAre("other.Validate", "other.LostFocus"));
}

TEST_F(PickersTest, RunFrom1601To9999) {
  must.setDate(makeDate(1601, 1, 1));
  must.setDate(makeDate(9999, 12, 31));
  EXPECT_EQ(errorOf([&] { must.setDate(makeDate(1600, 12, 31)); }), outside);
  EXPECT_EQ(errorOf([&] { must.setDate(makeDate(10000, 1, 1)); }), outside);
  EXPECT_EQ(errorOf([&] { must.setDate(makeDate(2026, 2, 30)); }), outside);
  EXPECT_EQ(must.date(), makeDate(9999, 12, 31));
  EXPECT_EQ(refusal([&] { must.userSet(makeDate(1600, 12, 31)); }), "must doesn't offer this date");
}

TEST_F(PickersTest, NoDateWhereNoneIsAllowedIsAnError) {
  EXPECT_EQ(errorOf([&] { must.setDate(std::nullopt); }),
            "35787 Can't set Value to NULL when CheckBox property = FALSE");
  EXPECT_EQ(refusal([&] { must.userSet(std::nullopt); }), "must always holds a date");
  EXPECT_EQ(must.date(), today);
}

TEST_F(PickersTest, RememberTheLastDateWhileTheyHoldNone) {
  may.setDate(makeDate(2026, 3, 4));
  may.setDate(std::nullopt);
  EXPECT_EQ(may.lastDate(), makeDate(2026, 3, 4));
}

TEST_F(PickersTest, TimesRunFromMidnightToTheLastSecondOfTheDay) {
  for (const TimeOfDay shown : {TimeOfDay{0, 0, 0}, TimeOfDay{8, 0, 30}, TimeOfDay{23, 59, 59}}) {
    time.userSet(shown);
    EXPECT_EQ(time.time(), shown);
  }
  for (const TimeOfDay none : {TimeOfDay{-1, 0, 0}, TimeOfDay{24, 0, 0}, TimeOfDay{8, -1, 0},
                               TimeOfDay{8, 60, 0}, TimeOfDay{8, 0, -1}, TimeOfDay{8, 0, 60}}) {
    EXPECT_EQ(errorOf([&] { time.setTime(none); }), "380 Invalid property value");
  }
  EXPECT_EQ(time.time(), (TimeOfDay{23, 59, 59}));
}

TEST_F(PickersTest, TimeThatNoClockShowsIsRefused) {
  EXPECT_EQ(errorOf([&] { time.setTime(TimeOfDay{24, 0, 0}); }), "380 Invalid property value");
  EXPECT_EQ(refusal([&] { time.userSet(TimeOfDay{10, 60, 0}); }), "time doesn't offer this time");
  EXPECT_EQ(time.time(), (TimeOfDay{10, 15, 0}));
}

}  // namespace
}  // namespace awizo::test
