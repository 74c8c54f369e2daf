#include "adapters/icu/key_store.h"

#include <algorithm>
#include <random>

namespace awizo::icu_locale {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::int32_t> ranksOf(const std::vector<std::string>& keys) {
  KeyStore store;
  for (const std::string& key : keys) store.add(key);
  return store.ranks();
}

TEST(RanksOfKeys, AreTheirPlacesInOrder) {
  EXPECT_THAT(ranksOf({"c", "a", "b"}), ElementsAre(2, 0, 1));
}

TEST(RanksOfKeys, AreEqualForEqualKeys) {
  EXPECT_THAT(ranksOf({"b", "a", "b", "b", "c"}), ElementsAre(1, 0, 1, 1, 2));
}

TEST(RanksOfKeys, OfNoKeysAreNone) { EXPECT_THAT(ranksOf({}), IsEmpty()); }

TEST(RanksOfKeys, OfEmptyKeysAreOne) { EXPECT_THAT(ranksOf({"", "a", ""}), ElementsAre(0, 1, 0)); }

TEST(RanksOfKeys, BytesCountWithoutSign) {
  EXPECT_THAT(ranksOf({"\xD0", "z", "\x7F"}), ElementsAre(2, 0, 1));
}

TEST(RanksOfKeys, AKeyComesBeforeItsContinuation) {
  const std::string eight = "12345678";
  EXPECT_THAT(ranksOf({eight + "\x01", eight, eight + eight, "1234567"}), ElementsAre(2, 1, 3, 0));
}

TEST(RanksOfKeys, OfVeryLongEqualKeysAreFoundWithoutRecursion) {
  const std::string lengthy(4'000'000, 'x');
  EXPECT_THAT(ranksOf({lengthy + "b", lengthy, lengthy + "a", lengthy}), ElementsAre(2, 0, 1, 0));
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
    const std::vector<std::int32_t> ranks = ranksOf(keys);
    for (std::size_t i = 0; i < keys.size(); ++i) {
      EXPECT_EQ(different[static_cast<std::size_t>(ranks[i])], keys[i]);
    }
  }
}

}  // namespace
}  // namespace awizo::icu_locale
