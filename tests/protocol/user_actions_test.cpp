// What lines with "do" do to controls, and what they refuse.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "protocol/sample_forms.h"

namespace awizo::protocol::test {
namespace {

class UserActionsTest : public testing::Test {
 protected:
  void does(const std::string& line) {
    const Json closing = client.closingOf(line);
    EXPECT_EQ(closing["ok"], true) << closing;
  }
  void refuses(const std::string& line) {
    const Json closing = client.closingOf(line);
    EXPECT_EQ(closing["ok"], false) << line;
  }
  /// Notes each event of the form's field, list and button by name.
  void note(Control& control, std::vector<std::string>& events) {
    const std::string name = control.name();
    control.onValidate = [&events, name] { events.push_back(name + " validate"); };
    control.onLostFocus = [&events, name] { events.push_back(name + " lost"); };
    control.onGotFocus = [&events, name] { events.push_back(name + " got"); };
  }

  SampleClient client;
};

TEST_F(UserActionsTest, ClickLeavesTheFieldBeforeItIsAClick) {
  std::vector<std::string> events;
  note(client.form.field, events);
  note(client.form.button, events);
  client.form.button.onClick = [&] { events.emplace_back("click"); };
  does(R"({"do":"focus","on":"field"})");
  events.clear();
  does(R"({"do":"click","on":"button"})");
  EXPECT_EQ(events,
            (std::vector<std::string>{"field validate", "field lost", "button got", "click"}));
}

TEST_F(UserActionsTest, PictureIsClickedWithoutTakingTheFocus) {
  bool clicked = false;
  client.form.picture.onClick = [&] { clicked = true; };
  does(R"({"do":"focus","on":"field"})");
  does(R"({"do":"click","on":"picture"})");
  EXPECT_TRUE(clicked);
  EXPECT_TRUE(client.form.field.hasFocus());
}

TEST_F(UserActionsTest, TypeIsOneChangeToTheWholeTextAndKeepsTheLimit) {
  int changes = 0;
  client.form.field.setText("old");
  client.form.field.onChange = [&] { ++changes; };
  does(R"({"do":"type","on":"field","text":"Паллета 1"})");
  EXPECT_EQ(client.form.field.text(), "Палле");
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(client.form.field.hasFocus());
  does(R"({"do":"type","on":"list","text":"free"})");
  EXPECT_EQ(client.form.list.text(), "free");
}

TEST_F(UserActionsTest, ChoosePicksARowOrNone) {
  client.form.list.setRows({"a", "b"});
  does(R"({"do":"choose","on":"list","row":1})");
  EXPECT_EQ(client.form.list.text(), "b");
  does(R"({"do":"choose","on":"list","row":-1})");
  EXPECT_EQ(client.form.list.index(), -1);
  refuses(R"({"do":"choose","on":"list","row":2})");
  refuses(R"({"do":"choose","on":"list","row":-2})");
}

TEST_F(UserActionsTest, PickersTakeValuesAndNone) {
  does(R"({"do":"date","on":"date","value":"2026-11-30"})");
  EXPECT_EQ(client.form.date.date(), makeDate(2026, 11, 30));
  does(R"({"do":"date","on":"date","value":null})");
  EXPECT_FALSE(client.form.date.date());
  refuses(R"({"do":"date","on":"date","value":"1600-12-31"})");
  does(R"({"do":"time","on":"time","value":"10:30"})");
  EXPECT_EQ(client.form.time.time(), (TimeOfDay{10, 30, 0}));
  does(R"({"do":"time","on":"time","value":null})");
  EXPECT_FALSE(client.form.time.time());
}

TEST_F(UserActionsTest, CellIsClickedUnlessItIsAHeadingOrNotShown) {
  client.form.table.setColumnWidth(1, 0);
  does(R"({"do":"cell","on":"table","row":2,"col":2})");
  EXPECT_EQ(client.form.table.row(), 2);
  EXPECT_EQ(client.form.table.column(), 2);
  refuses(R"({"do":"cell","on":"table","row":0,"col":2})");
  refuses(R"({"do":"cell","on":"table","row":1,"col":1})");
  refuses(R"({"do":"cell","on":"table","row":4,"col":0})");
  refuses(R"({"do":"cell","on":"table","row":-1,"col":0})");
  EXPECT_EQ(client.form.table.row(), 2);
}

TEST_F(UserActionsTest, DoubleClickIsTheCurrentCellsOrTheButtons) {
  int clicks = 0;
  client.form.table.onDoubleClick = [&] { ++clicks; };
  client.form.button.onDoubleClick = [&] { ++clicks; };
  does(R"({"do":"cell","on":"table","row":1,"col":1})");
  does(R"({"do":"doubleClick","on":"table"})");
  does(R"({"do":"doubleClick","on":"button"})");
  EXPECT_EQ(clicks, 2);
}

TEST_F(UserActionsTest, KeyReachesTheFieldWithItsShift) {
  std::string keys;
  client.form.field.onKeyDown = [&](std::int16_t code, bool shift) {
    keys += std::to_string(code) + (shift ? "S " : " ");
  };
  does(R"({"do":"key","on":"field","code":40})");
  does(R"({"do":"key","on":"field","code":13,"shift":true})");
  EXPECT_EQ(keys, "40 13S ");
  bool clicked = false;
  client.form.button.onClick = [&] { clicked = true; };
  does(R"({"do":"key","on":"button","code":32})");
  EXPECT_TRUE(clicked);
}

TEST_F(UserActionsTest, SelectMarksARangeOfATable) {
  does(R"({"do":"select","on":"table","row":1,"col":0,"rowSel":3,"colSel":1})");
  EXPECT_EQ(client.form.table.row(), 1);
  EXPECT_EQ(client.form.table.rowSel(), 3);
  EXPECT_EQ(client.form.table.columnSel(), 1);
}

TEST_F(UserActionsTest, SpinMovesTheFieldsNumber) {
  client.form.count.setText("3");
  does(R"({"do":"spin","on":"spin","by":2})");
  EXPECT_EQ(client.form.count.text(), "5");
  does(R"({"do":"spin","on":"spin","by":-1})");
  EXPECT_EQ(client.form.count.text(), "4");
}

TEST_F(UserActionsTest, ScrollMakesTheRowTheFirstShown) {
  does(R"({"do":"scroll","on":"table","top":2})");
  EXPECT_EQ(client.form.table.topRow(), 2);
  refuses(R"({"do":"scroll","on":"table","top":9})");
}

TEST_F(UserActionsTest, PathOpensAFolderAndAFileIsChosen) {
  client.sample.files.put("c:\\a\\one.xml", "<a/>");
  client.dialog.folders.onChange = [&] {
    client.dialog.fileNames.setPath(client.dialog.folders.path());
  };
  client.form.button.onClick = [&] { client.dialog.showModal(); };
  const auto lines = client.play(
      {R"({"do":"click","on":"button"})", R"({"do":"path","on":"Dialog.drives","value":"c:"})",
       R"({"do":"path","on":"Dialog.folders","value":"c:\\a"})",
       R"({"do":"path","on":"Dialog.folders","value":"c:\\nowhere"})",
       R"({"do":"choose","on":"Dialog.files","row":0})", R"({"get":"Dialog.files"})",
       R"({"do":"choose","on":"Dialog.drives","row":0})",
       R"({"do":"choose","on":"Dialog.drives","row":1})", R"({"do":"close","on":"Dialog"})"});
  EXPECT_EQ(lines[1]["ok"], true);
  EXPECT_EQ(lines[2]["ok"], true);
  EXPECT_EQ(lines[3]["ok"], false);
  EXPECT_EQ(lines[4]["ok"], true);
  EXPECT_EQ(lines[5]["value"]["text"], "one.xml");
  EXPECT_EQ(lines[6]["ok"], true);
  EXPECT_EQ(lines[7]["ok"], false);
}

TEST_F(UserActionsTest, HiddenOrDisabledControlsAndFormsAreRefused) {
  client.form.field.setVisible(false);
  refuses(R"({"do":"type","on":"field","text":"a"})");
  client.form.button.setEnabled(false);
  refuses(R"({"do":"click","on":"button"})");
  client.form.setEnabled(false);
  refuses(R"({"do":"type","on":"list","text":"a"})");
  refuses(R"({"do":"close","on":"Dialog"})");
}

TEST_F(UserActionsTest, NothingCanBeDoneOnAFormThatIsNotShown) {
  client.showFirst = false;
  refuses(R"({"do":"click","on":"button"})");
  refuses(R"({"do":"click","on":"Dialog.close"})");
}

TEST_F(UserActionsTest, AfterTheEndNothingButAGetIsAllowed) {
  client.sample.dispatcher.ended = true;
  client.sample.dispatcher.procedures.add("Now", [] { return 1; });
  refuses(R"({"do":"click","on":"button"})");
  refuses(R"({"call":"Now"})");
  EXPECT_EQ(client.closingOf(R"({"get":"field"})")["ok"], true);
}

}  // namespace
}  // namespace awizo::protocol::test
