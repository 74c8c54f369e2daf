#include "platform/forms/drop_down_list.h"

#include "form_fixture.h"
#include "platform/forms/text_field.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DropDownListTest : public FormTest {
 protected:
  DropDownList list{form, "list", "Единица измерения:"};
  TextField other{form, "other"};

  DropDownListTest() {
    list.setRows({"Штукa", "Килограмм", "Метр", "Килограмм"});
    form.showMain();
    noteFocus(list);
    noteFocus(other);
    list.onChange = [this] {
      events.push_back("Change " + std::to_string(list.index()) + " " + list.text());
    };
    list.onClick = note("Click");
  }
};

TEST_F(DropDownListTest, AddingRowsRaisesNothingAndSelectsNothing) {
  list.addRow("Литр");
  EXPECT_EQ(list.count(), 5);
  EXPECT_EQ(list.index(), -1);
  EXPECT_EQ(list.text(), "");
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(DropDownListTest, TextOfARowSetsTheIndexOfTheFirstOne) {
  list.setText("Килограмм");
  EXPECT_EQ(list.index(), 1);
  EXPECT_THAT(events, ElementsAre("Change 1 Килограмм"));
}

TEST_F(DropDownListTest, TextMatchesExactly) {
  list.setText("килограмм");
  EXPECT_EQ(list.index(), -1);
  EXPECT_EQ(list.text(), "килограмм");
}

TEST_F(DropDownListTest, EqualTextByCodeMovesToItsFirstRowWithoutAChange) {
  list.setIndex(3);
  takeEvents();
  list.observers.add([&](const Change& change) {
    if (change.aspect == Aspect::selection) events.push_back("selection");
    if (change.aspect == Aspect::content) events.push_back("content");
  });
  list.setText("Килограмм");
  EXPECT_EQ(list.index(), 1);
  EXPECT_THAT(events, ElementsAre("selection"));
}

TEST_F(DropDownListTest, TypingAnEqualTextKeepsItsRow) {
  list.setIndex(3);
  takeEvents();
  list.userType("Килограмм");
  EXPECT_EQ(list.index(), 3);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(DropDownListTest, EqualTextFindsARowThatCameMeanwhile) {
  list.setText("Литр");
  list.addRow("Литр");
  EXPECT_EQ(list.index(), -1);
  takeEvents();
  list.setText("Литр");
  EXPECT_EQ(list.index(), 4);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(DropDownListTest, EmptyTextSelectsNothing) {
  list.setIndex(0);
  takeEvents();
  list.setText("");
  EXPECT_EQ(list.index(), -1);
  EXPECT_THAT(events, ElementsAre("Change -1 "));
}

TEST_F(DropDownListTest, EmptyTextByCodeSelectsAnEmptyRowLikeAnyOther) {
  list.addRow("");
  list.setIndex(0);
  list.setText("");
  EXPECT_EQ(list.index(), 4);
  EXPECT_EQ(list.text(), "");
}

TEST_F(DropDownListTest, WhoEmptiesTheTextByHandSelectsNothing) {
  list.addRow("");
  list.userChoose(0);
  list.userType("");
  EXPECT_EQ(list.index(), -1);
}

TEST_F(DropDownListTest, IndexByCodeRaisesChangeThenClick) {
  list.setIndex(2);
  EXPECT_THAT(events, ElementsAre("Change 2 Метр", "Click"));
}

TEST_F(DropDownListTest, IndexThatIsSetAlreadyRaisesClickAlone) {
  list.setIndex(2);
  takeEvents();
  list.setIndex(2);
  EXPECT_THAT(events, ElementsAre("Click"));
}

TEST_F(DropDownListTest, IndexOfAnEqualTextRaisesClickAlone) {
  list.setIndex(1);
  takeEvents();
  list.setIndex(3);
  EXPECT_EQ(list.index(), 3);
  EXPECT_THAT(events, ElementsAre("Click"));
}

TEST_F(DropDownListTest, IndexOfNoneEmptiesTheTextWithoutAClick) {
  list.setIndex(2);
  takeEvents();
  list.setIndex(-1);
  EXPECT_EQ(list.text(), "");
  EXPECT_THAT(events, ElementsAre("Change -1 "));
}

TEST_F(DropDownListTest, IndexOfNoneLeavesATypedTextWhereThereIsNoRowAlready) {
  list.setText("своё");
  takeEvents();
  list.setIndex(-1);
  EXPECT_EQ(list.text(), "своё");
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(DropDownListTest, IndexOutOfRangeIsAnError) {
  const std::string error = "380 Could not set the ListIndex property. Invalid property value.";
  EXPECT_EQ(errorOf([&] { list.setIndex(4); }), error);
  EXPECT_EQ(errorOf([&] { list.setIndex(-2); }), error);
  EXPECT_EQ(list.index(), -1);
}

TEST_F(DropDownListTest, ClearSelectionTakesTheTypedTextToo) {
  list.setText("своё");
  takeEvents();
  list.clearSelection();
  EXPECT_EQ(list.text(), "");
  EXPECT_THAT(events, ElementsAre("Change -1 "));
}

TEST_F(DropDownListTest, ClearEmptiesRowsAndText) {
  list.setIndex(0);
  takeEvents();
  list.clear();
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(list.index(), -1);
  EXPECT_EQ(list.text(), "");
  EXPECT_THAT(events, ElementsAre("Change -1 "));
}

TEST_F(DropDownListTest, NewRowsKeepTheTextAndItsRowWhereItStillFits) {
  list.setIndex(1);
  takeEvents();
  list.setRows({"Метр", "Килограмм"});
  EXPECT_EQ(list.index(), 1);
  list.setRows({"Килограмм", "Метр"});
  EXPECT_EQ(list.index(), -1);
  EXPECT_EQ(list.text(), "Килограмм");
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(DropDownListTest, ListOfValuesOnlyRefusesAnUnknownTextByCode) {
  list.setStyle(ListStyle::listOnly);
  EXPECT_EQ(errorOf([&] { list.setText("Литр"); }),
            "380 Could not set the Value property. Invalid property value.");
  EXPECT_EQ(list.text(), "");
  EXPECT_THAT(events, IsEmpty());
  list.setText("Метр");
  EXPECT_EQ(list.index(), 2);
  list.setText("");
  EXPECT_EQ(list.index(), -1);
}

TEST_F(DropDownListTest, ListOfValuesOnlyRefusesTyping) {
  list.setStyle(ListStyle::listOnly);
  EXPECT_EQ(refusal([&] { list.userType("Метр"); }), "list takes only its rows");
  EXPECT_EQ(list.text(), "");
}

TEST_F(DropDownListTest, PickingARowTakesTheFocusThenRaisesChangeThenClick) {
  other.setFocus();
  takeEvents();
  list.userChoose(1);
  EXPECT_THAT(events, ElementsAre("other.Validate", "other.LostFocus", "list.GotFocus",
                                  "Change 1 Килограмм", "Click"));
}

TEST_F(DropDownListTest, PickingTheSameRowRaisesClickAlone) {
  list.userChoose(1);
  takeEvents();
  list.userChoose(1);
  EXPECT_THAT(events, ElementsAre("Click"));
}

TEST_F(DropDownListTest, PickingNoneTakesRowAndTextWithoutAClick) {
  list.userChoose(1);
  takeEvents();
  list.userChoose(-1);
  EXPECT_EQ(list.index(), -1);
  list.userType("своё");
  list.userChoose(-1);
  EXPECT_THAT(events, ElementsAre("Change -1 ", "Change -1 своё", "Change -1 "));
}

TEST_F(DropDownListTest, PickingARowThatIsNotThereIsRefused) {
  EXPECT_EQ(refusal([&] { list.userChoose(4); }), "list has no such row");
  EXPECT_EQ(refusal([&] { list.userChoose(-2); }), "list has no such row");
}

TEST_F(DropDownListTest, PickingEndsQuietlyWhenTheFocusTookTheRowAway) {
  other.setFocus();
  other.onValidate = [&] { list.setRows({"Метр"}); };
  takeEvents();
  list.userChoose(1);
  EXPECT_EQ(list.index(), -1);
  EXPECT_THAT(events, ElementsAre("other.LostFocus", "list.GotFocus"));
}

TEST_F(DropDownListTest, TypingSetsTheIndexOfAMatchingRowWithoutAClick) {
  list.userType("Ме");
  list.userType("Ме\r\nтр");
  EXPECT_THAT(events, ElementsAre("Change -1 Ме", "Change 2 Метр"));
}

TEST_F(DropDownListTest, ListsThatSetEachOtherComeToRest) {
  DropDownList twin(form, "twin");
  twin.setRows({"1", "2", "3", "4"});
  twin.onChange = [&] {
    events.push_back("twin " + twin.text());
    list.setIndex(twin.index());
  };
  list.onChange = [&] {
    events.push_back("list " + list.text());
    twin.setIndex(list.index());
  };
  list.userChoose(2);
  EXPECT_EQ(twin.index(), 2);
  EXPECT_THAT(takeEvents(), ElementsAre("list Метр", "twin 3", "Click", "Click"));
  list.userType("своё");
  EXPECT_EQ(twin.index(), -1);
  EXPECT_EQ(twin.text(), "");
  EXPECT_EQ(list.text(), "своё");
  EXPECT_THAT(events, ElementsAre("list своё", "twin "));
}

TEST_F(DropDownListTest, RequiredMatchHoldsTheUserBackWithABox) {
  list.setStyle(ListStyle::matchRequired);
  list.userType("Литр");
  EXPECT_EQ(list.text(), "Литр");
  takeEvents();
  other.userType("x");
  EXPECT_THAT(describe(face.boxes()),
              ElementsAre("VIRDDesAdv|exclamation|OK|Invalid property value."));
  EXPECT_EQ(form.focus(), &list);
  EXPECT_EQ(other.text(), "");
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(DropDownListTest, RequiredMatchLetsARowAndTheEmptyTextGo) {
  list.setStyle(ListStyle::matchRequired);
  list.userType("Метр");
  other.userFocus();
  EXPECT_EQ(form.focus(), &other);
  list.userType("");
  other.userFocus();
  EXPECT_EQ(form.focus(), &other);
  EXPECT_THAT(face.boxes(), IsEmpty());
}

TEST_F(DropDownListTest, RequiredMatchDoesNotHoldCodeBack) {
  list.setStyle(ListStyle::matchRequired);
  list.userType("Литр");
  other.setFocus();
  EXPECT_EQ(form.focus(), &other);
  list.setText("Тонна");
  EXPECT_EQ(list.text(), "Тонна");
  EXPECT_EQ(list.index(), -1);
  EXPECT_THAT(face.boxes(), IsEmpty());
}

TEST_F(DropDownListTest, KeyPressGetsTheCharacter) {
  list.onKeyPress = [&](std::int16_t& code) { events.push_back(std::to_string(code)); };
  list.userKey(0x416);
  list.userKey('B');
  list.userKey(40);
  EXPECT_THAT(events, ElementsAre("1046", "98"));
}

TEST_F(DropDownListTest, ObserverIsToldOfRowsSelectionAndText) {
  list.observers.add([&](const Change& change) {
    if (change.aspect == Aspect::rows) events.push_back("rows");
    if (change.aspect == Aspect::selection) events.push_back("selection");
    if (change.aspect == Aspect::content) events.push_back("content");
  });
  list.onChange = note("Change");
  list.addRow("Литр");
  list.setText("Литр");
  EXPECT_THAT(events, ElementsAre("rows", "selection", "content", "Change"));
}

}  // namespace
}  // namespace awizo::test
