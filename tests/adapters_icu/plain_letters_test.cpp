#include "adapters/icu/plain_letters.h"

#include <unicode/unistr.h>

#include <memory>
#include <random>

namespace awizo::icu_locale {
namespace {

class PlainLettersTest : public testing::TestWithParam<const char*> {
 protected:
  PlainLettersTest() {
    UErrorCode status = U_ZERO_ERROR;
    collator.reset(icu::Collator::createInstance(GetParam(), status));
    collator->setStrength(icu::Collator::SECONDARY);
    collator->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
    letters = std::make_unique<PlainLetters>(*collator);
  }

  std::string collatorsKey(const std::string& text) const {
    std::array<std::uint8_t, 4096> bytes{};
    const int32_t length = collator->getSortKey(icu::UnicodeString::fromUTF8(text), bytes.data(),
                                                static_cast<int32_t>(bytes.size()));
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(length - 1)};
  }

  std::unique_ptr<icu::Collator> collator;
  std::unique_ptr<PlainLetters> letters;
};

TEST_P(PlainLettersTest, EveryKeyIsTheCollatorsOwn) {
  std::mt19937 random(1);
  const auto below = [&](std::size_t limit) { return random() % limit; };
  const std::u16string alphabets[] = {
      u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ",
      u"абвгдежзийклмнопрстуфхцчшщъыьэюяАБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ",
      u"0123456789",
      u" .,-_/()%&+*\"'!?:;«»№§°@#$",
      u"іїєґўћђљњџѓќѕјäöüßåéñçøæ",
      u"\u0301\u0306\u0308\t\u0487"};
  int taken = 0;
  for (int round = 0; round < 20'000; ++round) {
    icu::UnicodeString text;
    // Few alphabets at a time, so that runs of one and changes to another both come up.
    const std::size_t kinds = 1 + below(std::size(alphabets));
    for (std::size_t length = below(90); length > 0; --length) {
      const std::u16string& alphabet = alphabets[below(kinds)];
      text.append(alphabet[below(alphabet.size())]);
    }
    std::string utf8;
    text.toUTF8String(utf8);
    const auto key = letters->key(utf8);
    if (!key) continue;
    ++taken;
    ASSERT_EQ(*key, collatorsKey(utf8)) << utf8;
  }
  EXPECT_GT(taken, 1'000);
}

TEST_P(PlainLettersTest, EveryPairOfLettersHasTheCollatorsKey) {
  for (char16_t first = 0x20; first < 0x500; ++first) {
    for (const char16_t second : std::u16string(u"ahjz019 .-ajяийЖ\u0301\u0306")) {
      std::string utf8;
      icu::UnicodeString(first).append(second).toUTF8String(utf8);
      if (const auto key = letters->key(utf8)) {
        ASSERT_EQ(*key, collatorsKey(utf8)) << utf8;
      }
    }
  }
}

TEST_P(PlainLettersTest, LongRunsHaveTheCollatorsKey) {
  for (std::size_t length = 0; length <= 200; ++length) {
    const std::string text(length, '7');
    const auto key = letters->key(text);
    ASSERT_TRUE(key.has_value());
    ASSERT_EQ(*key, collatorsKey(text)) << length;
  }
}

TEST_P(PlainLettersTest, OthersAreLeftToTheCollator) {
  for (const char* text : {"ёж", "и\u0306", "\xFF", "a\xD0", "日", "😀", "\t", "№"}) {
    EXPECT_FALSE(letters->key(text).has_value()) << text;
  }
  EXPECT_FALSE(letters->key(std::string(201, 'a')).has_value());
}

INSTANTIATE_TEST_SUITE_P(Locales, PlainLettersTest,
                         testing::Values("ru_RU", "en_US", "de_DE", "cs_CZ", "hr_HR", "uk_UA",
                                         "sr_RS", "da_DK", "fr_CA", "hu_HU", "es__TRADITIONAL",
                                         "bg_BG"));

TEST(PlainLettersOfRussian, TakeTheNamesOfGoods) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance("ru_RU", status));
  collator->setStrength(icu::Collator::SECONDARY);
  const PlainLetters letters(*collator);
  for (const char* text :
       {"", "4607001234567", "Молоко пастеризованное 3,2% (1 l)", "Сыр «Российский»"}) {
    EXPECT_TRUE(letters.key(text).has_value()) << text;
  }
}

}  // namespace
}  // namespace awizo::icu_locale
