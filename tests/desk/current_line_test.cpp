#include "desk/current_line.h"

#include <gtest/gtest.h>

#include "support/documents.h"
#include "support/test_editor.h"

namespace awizo::test {
namespace {

struct CurrentLineTest : ::testing::Test {
  CurrentLineTest() {
    putLines(test.editor, 2);
    test.form.grdPozycje.setRow(1);
  }

  TestEditor test;
  CurrentLine line{test.editor};
};

TEST_F(CurrentLineTest, TellsTheLineThatIsTheCurrentOne) {
  const std::string first = line.words();
  test.form.grdPozycje.setRow(2);
  EXPECT_NE(line.words(), first);
}

TEST_F(CurrentLineTest, WhatIsSaidStandsUntilAnotherLineIsTheCurrentOne) {
  const std::string first = line.words();
  line.say("Код: 460");
  EXPECT_EQ(line.words(), "Код: 460");
  EXPECT_EQ(line.words(), "Код: 460");
  test.form.grdPozycje.setRow(2);
  EXPECT_NE(line.words(), "Код: 460");
  test.form.grdPozycje.setRow(1);
  EXPECT_EQ(line.words(), first);
}

TEST_F(CurrentLineTest, WhatWasSaidIsTakenBackByNoWords) {
  const std::string first = line.words();
  line.say("Код: 460");
  line.say("");
  EXPECT_EQ(line.words(), first);
}

TEST(CurrentLine, SaysThatThereIsNone) {
  TestEditor test;
  CurrentLine line(test.editor);
  EXPECT_EQ(line.words(), "Строка не выбрана");
}

}  // namespace
}  // namespace awizo::test
