// Who notes a user's acts learns of each once, in dialogs and under boxes too.

#include <gtest/gtest.h>

#include <sstream>

#include "platform/form_fixture.h"
#include "platform/forms/boxes.h"
#include "platform/forms/button.h"
#include "platform/forms/file_lists.h"
#include "platform/forms/keys.h"
#include "platform/forms/pickers.h"
#include "platform/forms/spin_buttons.h"
#include "platform/forms/table.h"
#include "platform/forms/text_field.h"
#include "support/memory_files.h"

namespace awizo::test {
namespace {

class Notes : public ActObserver {
 public:
  void begins(const Act& act) override {
    std::ostringstream line;
    line << (act.control == nullptr ? act.form->name() : act.control->name()) << " "
         << static_cast<int>(act.kind) << " '" << act.text << "'";
    for (const int number : act.numbers) line << " " << number;
    lines.push_back(line.str());
  }
  void refused() override { lines.back() += " refused"; }
  void ends(bool whole) override { lines.push_back(whole ? "end" : "broken off"); }
  void viewHeightSet(const Control& table, int height) override {
    lines.push_back(table.name() + " height " + std::to_string(height));
  }

  std::vector<std::string> take() { return std::exchange(lines, {}); }
  std::vector<std::string> lines;
};

using Lines = std::vector<std::string>;

struct Acts : testing::Test {
  Acts() { screen.actObserver = &notes; }

  ScriptedScreen face;
  Screen screen{face};
  Notes notes;
  Form form{screen, "Main"};
  TextField field{form, "field"};
  TextField second{form, "second"};
  Button button{form, "button"};
};

TEST_F(Acts, AreToldWithWhatTheyNeedToBeDoneAgain) {
  form.showMain();
  field.userType("a");
  second.userFocus();
  button.userClick();
  EXPECT_EQ(notes.take(), (Lines{"field 6 'a' 0 0 0 0", "end", "second 1 '' 0 0 0 0", "end",
                                 "button 3 '' 0 0 0 0", "end"}));
}

TEST_F(Acts, OfPickersHoldTheirValue) {
  DatePicker date(form, "date", makeDate(2026, 11, 21), NoValue::allowed);
  TimePicker time(form, "time", TimeOfDay{});
  form.showMain();
  date.userSet(makeDate(2026, 11, 22));
  date.userSet(std::nullopt);
  time.userSet(TimeOfDay{8, 30, 0});
  time.userSet(std::nullopt);
  EXPECT_EQ(notes.take(), (Lines{"date 10 '' 2026 11 22 0", "end", "date 10 '' 0 0 0 0", "end",
                                 "time 11 '' 8 30 0 0", "end", "time 11 '' -1 0 0 0", "end"}));
}

TEST_F(Acts, OfTablesHoldTheirCells) {
  Table table(form, "table", 3, 9);
  form.showMain();
  table.userCell(2, 1);
  table.userSelect(1, 0, 2, 2);
  table.userScroll(4);
  table.userDoubleClick();
  table.userKey(keys::down, true);
  EXPECT_EQ(notes.take(), (Lines{"table 12 '' 2 1 0 0", "end", "table 13 '' 1 0 2 2", "end",
                                 "table 15 '' 4 0 0 0", "end", "table 5 '' 0 0 0 0", "end",
                                 "table 2 '' 40 1 0 0", "end"}));
}

TEST_F(Acts, ThatArePartsOfAnotherAreNot) {
  form.acceptButton = &button;
  form.showMain();
  field.userKey(keys::enter);
  EXPECT_EQ(notes.take(), (Lines{"field 2 '' 13 0 0 0", "end"}));
}

TEST_F(Acts, ThatAreRefusedAreNot) {
  form.showMain();
  second.setEnabled(false);
  EXPECT_THROW(second.userType("x"), Refused);
  EXPECT_THROW(form.userClose(), Refused);
  EXPECT_EQ(notes.take(), Lines{});
}

TEST_F(Acts, ThatOnlyTheFolderRefusesAreTakenBack) {
  MemoryFiles files;
  FolderList folders(form, "folders", files);
  form.showMain();
  EXPECT_THROW(folders.userOpen("c:\\none"), Refused);
  EXPECT_EQ(notes.take(), (Lines{"folders 9 'c:\\none' 0 0 0 0 refused"}));
}

TEST_F(Acts, InADialogStandWithinTheOneThatOpenedIt) {
  Form dialog(screen, "Dialog");
  TextField inner(dialog, "inner");
  Button close(dialog, "close");
  close.onClick = [&] { dialog.hide(); };
  button.onClick = [&] { dialog.showModal(); };
  form.showMain();
  face.onModal([&] {
    inner.userType("x");
    close.userClick();
  });
  button.userClick();
  EXPECT_EQ(notes.take(), (Lines{"button 3 '' 0 0 0 0", "inner 6 'x' 0 0 0 0", "end",
                                 "close 3 '' 0 0 0 0", "end", "end"}));
}

TEST_F(Acts, RunOnceMoreAfterABox) {
  button.onClick = [&] {
    isConfirmed(screen, "?");
    // What the procedure does itself is no act.
    field.userFocus();
  };
  form.showMain();
  face.answer(Answer::yes);
  button.userClick();
  EXPECT_EQ(notes.take(), (Lines{"button 3 '' 0 0 0 0", "end"}));
  EXPECT_FALSE(screen.actRuns());
}

TEST_F(Acts, AreBrokenOffByTheEndOfTheProgram) {
  struct Ended {};
  button.onClick = [] { throw Ended{}; };
  form.showMain();
  EXPECT_THROW(button.userClick(), Ended);
  EXPECT_EQ(notes.take(), (Lines{"button 3 '' 0 0 0 0", "broken off"}));
}

TEST_F(Acts, AreNotTheViewsHeightWhichIsToldWhenItChanges) {
  Table table(form, "table", 3);
  table.setViewHeight(2400);
  table.setViewHeight(2400);
  EXPECT_EQ(notes.take(), Lines{"table height 2400"});
}

}  // namespace
}  // namespace awizo::test
