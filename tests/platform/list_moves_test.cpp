#include "platform/forms/list_moves.h"

#include <gtest/gtest.h>

#include "platform/forms/keys.h"
#include "platform/text.h"
#include "support/scripted_screen.h"

namespace awizo::test {
namespace {

/// A table of cities, the names in column 1.
struct ListMovesTest : ::testing::Test {
  ListMovesTest() {
    const char* names[] = {"Name", "Lima", "Oslo", "Osaka"};
    for (int row = 0; row < 4; ++row) table.setCell(row, 1, names[row]);
  }
  static std::string upper(std::string_view text) {
    std::string all;
    for (const char c : text) all += c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
    return all;
  }

  ScriptedScreen face;
  Screen screen{face};
  Form form{screen, "Main"};
  Table table{form, "table", 2, 4};
  ListMoves moves{table, 1, upper};
};

TEST_F(ListMovesTest, HomeAndEndLeadToTheFirstAndTheLastRow) {
  EXPECT_EQ(moves.rowOfKey(keys::home), 1);
  EXPECT_EQ(moves.rowOfKey(keys::end), 3);
  EXPECT_EQ(moves.rowOfKey(keys::down), std::nullopt);
}

TEST_F(ListMovesTest, CharactersFindARowInWhateverCase) {
  EXPECT_EQ(moves.rowTyped("o"), 2);
  EXPECT_EQ(moves.rowTyped("S"), 2);
  EXPECT_EQ(moves.rowTyped("a"), 3);
  EXPECT_EQ(moves.rowTyped("x"), std::nullopt);
  EXPECT_EQ(moves.rowTyped("n"), std::nullopt) << "a heading is no row";
}

TEST_F(ListMovesTest, AnotherKeyBeginsAnew) {
  EXPECT_EQ(moves.rowTyped("o"), 2);
  moves.rowOfKey(keys::down);
  EXPECT_EQ(moves.rowTyped("l"), 1);
}

}  // namespace
}  // namespace awizo::test
