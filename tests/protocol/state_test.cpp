// What a "get" returns of controls of each kind and of forms.

#include <gtest/gtest.h>

#include <string>

#include "protocol/sample_forms.h"

namespace awizo::protocol::test {
namespace {

class StateTest : public testing::Test {
 protected:
  Json get(const std::string& name) {
    const Json closing = client.closingOf(R"({"get":")" + name + R"("})");
    EXPECT_EQ(closing["ok"], true) << closing;
    return closing["value"];
  }
  std::string text(const std::string& name) { return get(name).dump(); }

  SampleClient client;
};

TEST_F(StateTest, OfALabelAndAFrame) {
  EXPECT_EQ(
      text("label"),
      R"({"kind":"label","visible":true,"enabled":true,"caption":"Caption","heading":"Heading:"})");
  EXPECT_EQ(text("frame"), R"({"kind":"frame","visible":true,"enabled":true,"caption":"Around"})");
}

TEST_F(StateTest, OfATextField) {
  client.form.field.setText("abc");
  EXPECT_EQ(
      text("field"),
      R"({"kind":"textField","visible":true,"enabled":true,"caption":"Number:","text":"abc","limit":5})");
}

TEST_F(StateTest, PlaceIsToldOfAVisibleControlThatTheLogicHasMoved) {
  client.form.field.move({10, 20, 300, 40});
  const Json state = get("field");
  EXPECT_EQ(state["x"], 10);
  EXPECT_EQ(state["y"], 20);
  EXPECT_EQ(state["width"], 300);
  EXPECT_EQ(state["height"], 40);
  client.form.field.setVisible(false);
  EXPECT_FALSE(get("field").contains("x"));
  EXPECT_EQ(get("field")["visible"], false);
}

TEST_F(StateTest, OfButtons) {
  client.form.button.setEnabled(false);
  EXPECT_EQ(text("button"),
            R"({"kind":"button","visible":true,"enabled":false,"caption":"&Press"})");
  EXPECT_EQ(text("picture"),
            R"({"kind":"pictureButton","visible":true,"enabled":true,"caption":"Tip"})");
}

TEST_F(StateTest, OfADropDownList) {
  client.form.list.setRows({"a", "b"});
  client.form.list.setIndex(1);
  EXPECT_EQ(
      text("list"),
      R"({"kind":"dropDownList","visible":true,"enabled":true,"caption":"Choice:","text":"b","rows":["a","b"],"index":1})");
}

TEST_F(StateTest, OfPickers) {
  EXPECT_EQ(
      text("date"),
      R"({"kind":"datePicker","visible":true,"enabled":true,"caption":"Day:","date":"2026-11-21","checked":true,"min":"1601-01-01","max":"9999-12-31"})");
  EXPECT_EQ(
      text("time"),
      R"({"kind":"timePicker","visible":true,"enabled":true,"caption":"Time:","time":"10:15","checked":true})");
  client.form.date.setDate(std::nullopt);
  client.form.time.setTime(std::nullopt);
  EXPECT_EQ(get("date")["date"], nullptr);
  EXPECT_EQ(get("date")["checked"], false);
  EXPECT_EQ(get("time")["time"], nullptr);
}

TEST_F(StateTest, OfSpinButtons) {
  client.form.spin.setMin(1);
  client.form.spin.setMax(9);
  EXPECT_EQ(text("spin"),
            R"({"kind":"spinButtons","visible":true,"enabled":true,"min":1,"max":9})");
}

TEST_F(StateTest, OfATable) {
  Table& table = client.form.table;
  table.setCell(0, 1, "Heading");
  table.setCell(2, 2, "Текст");
  table.setBackground(2, 2, pink);
  table.setAlignment(0, 1, Alignment::centre);
  table.setAlignment(1, 0, Alignment::right);
  CellLook look = table.look(0, 1);
  look.bold = look.wrap = true;
  table.setLook(0, 1, look);
  table.setColumnWidth(1, 0);
  table.setRowHeight(3, 480);
  table.setRow(2);
  table.setColumn(2);
  table.setTopRow(2);
  table.setRedraw(false);
  EXPECT_EQ(
      text("table"),
      R"({"kind":"table","visible":true,"enabled":true,"rows":4,"cols":3,"row":2,"col":2,"rowSel":2,"colSel":2,)"
      R"("cells":[["","Heading",""],["","",""],["","","Текст"],["","",""]],"colours":[[2,2,"#ffc0c0"]],)"
      R"("alignments":[[0,1,"centre"],[1,0,"right"]],"widths":[960,0,960],"heights":[240,240,240,480],)"
      R"("bold":[[0,1]],"wrap":[[0,1]],"top":2,"redraw":false})");
}

TEST_F(StateTest, OfTheListsOfFiles) {
  client.sample.files.put("c:\\a\\one.xml", "<a/>");
  client.sample.files.put("c:\\a\\two.XML", "<a/>");
  client.sample.files.put("c:\\a\\three.txt", "");
  client.dialog.drives.setDrive("c:\\");
  client.dialog.folders.setPath("c:\\");
  client.dialog.fileNames.setPath("c:\\a");
  EXPECT_EQ(get("Dialog.drives")["text"], "c:");
  EXPECT_EQ(get("Dialog.drives")["rows"], Json::array({"c:"}));
  EXPECT_EQ(get("Dialog.folders")["path"], "c:\\");
  EXPECT_EQ(get("Dialog.folders")["rows"], Json::array({"a", "b"}));
  EXPECT_EQ(get("Dialog.files")["path"], "c:\\a");
  EXPECT_EQ(get("Dialog.files")["rows"], Json::array({"one.xml", "two.XML"}));
  EXPECT_EQ(get("Dialog.files")["index"], -1);
  EXPECT_EQ(get("Dialog.files")["text"], "");
}

TEST_F(StateTest, OfAFormIsItsOwnAndItsMembers) {
  EXPECT_EQ(
      text("Dialog"),
      R"({"shown":false,"caption":"A dialog","focus":"","controls":["Dialog.drives","Dialog.folders","Dialog.files","Dialog.close"],"Result":7})");
  EXPECT_EQ(get("Main")["shown"], true);
  EXPECT_EQ(get("Main")["controls"][1], "field");
}

TEST_F(StateTest, FocusIsNamedAsLinesNameIt) {
  EXPECT_EQ(get("focus"), "field");
  client.form.button.onClick = [&] { client.dialog.showModal(); };
  const auto lines =
      client.play({R"({"do":"click","on":"button"})", R"({"get":"focus"})", R"({"get":"Main"})",
                   R"({"do":"close","on":"Dialog"})", R"({"get":"focus"})"});
  EXPECT_EQ(lines[1]["value"], "Dialog.drives");
  EXPECT_EQ(lines[2]["value"]["focus"], "button");
  EXPECT_EQ(lines.back()["value"], "button");
}

TEST_F(StateTest, NoFormOnTheScreenMeansNoFocus) {
  client.showFirst = false;
  EXPECT_EQ(get("focus"), "");
}

TEST_F(StateTest, TextThatIsNoUtf8ComesOutMended) {
  client.form.label.setCaption(
      "a\xFF"
      "b");
  EXPECT_EQ(get("label")["caption"], "a\uFFFDb");
}

}  // namespace
}  // namespace awizo::protocol::test
