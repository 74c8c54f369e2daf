#include "desk/choose_path.h"

#include <gtest/gtest.h>

#include "support/control/desk.h"

namespace awizo::test {
namespace {

struct ChoosePath : ::testing::Test {
  /// The path that the reading dialog gives after the choice.
  std::string chosen(const std::string& path) {
    DlgWczytajZapisz& dialog = desk.control.dlgWczytajZapisz;
    desk.face.onModal([&] { choosePath(dialog, path); });
    dialog.setUpForReading();
    dialog.showModal();
    EXPECT_FALSE(dialog.shown());
    return desk.session.LastFilePath;
  }
  Desk desk;
};

TEST_F(ChoosePath, FindsTheFileInTheListsAsAUserDoes) {
  desk.files.put("c:\\docs\\a.xml", "<a/>");
  desk.files.put("c:\\docs\\b.xml", "<b/>");
  EXPECT_EQ(chosen("c:\\docs\\b.xml"), "c:\\docs\\b.xml");
}

TEST_F(ChoosePath, ChoosesNothingThatTheListsDoNotShow) {
  desk.files.put("c:\\docs\\a.txt", "a");
  for (const char* path : {"c:\\docs\\a.txt", "c:\\docs\\b.xml", "c:\\none\\a.xml", "a.xml"}) {
    EXPECT_EQ(chosen(path), "") << path;
  }
}

}  // namespace
}  // namespace awizo::test
