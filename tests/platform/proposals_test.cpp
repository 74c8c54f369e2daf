#include "platform/forms/proposals.h"

#include "form_fixture.h"
#include "platform/text.h"

namespace awizo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Folds "ß" too, so that a folded row is longer than the row.
std::string folded(std::string_view text) {
  std::string all = replaceAll(text, "ß", "ss");
  for (char& letter : all) letter = lowerLatin(letter);
  return all;
}

class ProposalsOfRows : public FormTest {
 protected:
  DropDownList list{form, "list"};
  Proposals proposals{list, folded};

  std::vector<std::string> proposed(std::string_view typed) {
    proposals.propose(typed);
    std::vector<std::string> rows;
    for (const int row : proposals.rows()) {
      rows.push_back(list.rows()[static_cast<std::size_t>(row)]);
    }
    return rows;
  }
};

TEST_F(ProposalsOfRows, ThatBeginWithTheTypedTextComeFirst) {
  list.setRows({"One cheese", "Cheese", "Milk", "CHEESECAKE"});
  EXPECT_THAT(proposed("cHeese"), ElementsAre("Cheese", "CHEESECAKE", "One cheese"));
}

TEST_F(ProposalsOfRows, HoldEachWordAnywhere) {
  list.setRows({"Milk 3.2", "Milk 2.5", "Kefir 3.2"});
  EXPECT_THAT(proposed("3.2  mi"), ElementsAre("Milk 3.2"));
  EXPECT_THAT(proposed("3.2 "), ElementsAre("Milk 3.2", "Kefir 3.2"));
}

TEST_F(ProposalsOfRows, AreFoldedAsTheTypedTextIs) {
  list.setRows({"Groß 1", "Gross 2", "Gro 3"});
  EXPECT_THAT(proposed("GROSS"), ElementsAre("Groß 1", "Gross 2"));
  EXPECT_THAT(proposed("roß 2"), ElementsAre("Gross 2"));
}

TEST_F(ProposalsOfRows, IgnoreSpacesOfAllKindsAroundTheTypedText) {
  list.setRows({"a b", "x"});
  EXPECT_THAT(proposed(" \u00a0\u2003a\u3000 "), ElementsAre("a b"));
  EXPECT_THAT(proposed("\u00a0 "), IsEmpty());
  EXPECT_THAT(proposed("a\u00a0b"), IsEmpty()) << "only the space parts words";
}

TEST_F(ProposalsOfRows, DontReachOverTheEndOfARow) {
  list.setRows({"ab", "cd", "e\nf"});
  EXPECT_THAT(proposed("bc"), IsEmpty());
  EXPECT_THAT(proposed("f"), ElementsAre("e\nf"));
}

TEST_F(ProposalsOfRows, AreAtMostAsManyAsAUserReads) {
  std::vector<std::string> rows(150, "within it");
  rows.insert(rows.end(), 60, "it");
  list.setRows(rows);
  proposals.propose("it");
  ASSERT_EQ(proposals.rows().size(), Proposals::most);
  EXPECT_EQ(proposals.rows()[59], 209);
  EXPECT_EQ(proposals.rows()[60], 0);
}

TEST_F(ProposalsOfRows, AreNoneBetweenAChangeAndTheNextTyping) {
  list.setRows({"a"});
  EXPECT_THAT(proposed("a"), ElementsAre("a"));
  list.setRows({"b", "a"});
  proposals.rowsChanged();
  EXPECT_THAT(proposals.rows(), IsEmpty());
  EXPECT_THAT(proposed("a"), ElementsAre("a"));
}

}  // namespace
}  // namespace awizo::test
