#include "linedialog/ranks.h"

#include <algorithm>
#include <random>

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Ranks ranksOf(const std::vector<std::string>& keys) {
  KeyStore store;
  for (const std::string& key : keys) store.add(key);
  return store.ranks();
}

TEST(RanksOfKeys, AreTheirPlacesInOrder) {
  const Ranks ranks = ranksOf({"c", "a", "b"});
  EXPECT_THAT(ranks.rankOf, ElementsAre(2, 0, 1));
  EXPECT_THAT(ranks.lastPlace, ElementsAre(0, 1, 2));
}

TEST(RanksOfKeys, AreEqualForEqualKeys) {
  const Ranks ranks = ranksOf({"b", "a", "b", "b", "c"});
  EXPECT_THAT(ranks.rankOf, ElementsAre(1, 0, 1, 1, 2));
  EXPECT_THAT(ranks.lastPlace, ElementsAre(0, 3, 4));
}

TEST(RanksOfKeys, OfNoKeysAreNone) { EXPECT_THAT(ranksOf({}).rankOf, IsEmpty()); }

TEST(RanksOfKeys, OfEmptyKeysAreOne) {
  const Ranks ranks = ranksOf({"", "a", ""});
  EXPECT_THAT(ranks.rankOf, ElementsAre(0, 1, 0));
  EXPECT_THAT(ranks.lastPlace, ElementsAre(1, 2));
}

TEST(RanksOfKeys, BytesCountWithoutSign) {
  EXPECT_THAT(ranksOf({"\xD0", "z", "\x7F"}).rankOf, ElementsAre(2, 0, 1));
}

TEST(RanksOfKeys, AKeyComesBeforeItsContinuation) {
  const std::string eight = "12345678";
  EXPECT_THAT(ranksOf({eight + "\x01", eight, eight + eight, "1234567"}).rankOf,
              ElementsAre(2, 1, 3, 0));
}

TEST(RanksOfKeys, OfVeryLongEqualKeysAreFoundWithoutRecursion) {
  const std::string lengthy(4'000'000, 'x');
  EXPECT_THAT(ranksOf({lengthy + "b", lengthy, lengthy + "a", lengthy}).rankOf,
              ElementsAre(2, 0, 1, 0));
}

TEST(RanksOfKeys, AgreeWithAPlainSort) {
  std::mt19937 random(3);
  for (int round = 0; round < 200; ++round) {
    std::vector<std::string> keys(1 + random() % 200);
    for (std::string& key : keys) {
      key.assign(random() % 25, 'a');
      if (!key.empty()) key[random() % key.size()] = static_cast<char>('a' + random() % 3);
    }
    std::vector<std::string> different = keys;
    std::sort(different.begin(), different.end());
    different.erase(std::unique(different.begin(), different.end()), different.end());
    const Ranks ranks = ranksOf(keys);
    for (std::size_t i = 0; i < keys.size(); ++i) {
      EXPECT_EQ(different[static_cast<std::size_t>(ranks.rankOf[i])], keys[i]);
    }
  }
}

}  // namespace
}  // namespace awizo::test
