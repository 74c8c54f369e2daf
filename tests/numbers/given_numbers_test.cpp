#include "numbers/given_numbers.h"

#include <gmock/gmock.h>

#include "adapters/memory/fixed_clock.h"
#include "numbers/store_in_memory.h"
#include "platform/run_time_error.h"

namespace awizo {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

std::string refusalOf(const char* extension, const char* prefix, const char* first,
                      const char* last, const char* next = "") {
  std::string refusal;
  const bool isRange = rangeOf(extension, prefix, first, last, next, refusal).has_value();
  EXPECT_EQ(isRange, refusal.empty());
  return refusal;
}

NumberRange range(std::uint64_t first, std::uint64_t last) {
  return {"3", "9520001", first, last, first};
}

TEST(NumberRange, IsWhatTheFirmHasOfGs1) {
  EXPECT_EQ(refusalOf("3", "9520001", "1", "999999999"), "");
  EXPECT_EQ(refusalOf("0", "1234", "0", "0"), "");
  EXPECT_EQ(refusalOf("0", "123456789012", "0", "9999", "10000"), "") << "all are given";
  EXPECT_THAT(refusalOf("", "9520001", "1", "2"), HasSubstr("Первая цифра"));
  EXPECT_THAT(refusalOf("10", "9520001", "1", "2"), HasSubstr("Первая цифра"));
  EXPECT_THAT(refusalOf("3", "952", "1", "2"), HasSubstr("Префикс"));
  EXPECT_THAT(refusalOf("3", "1234567890123", "1", "2"), HasSubstr("Префикс"));
  EXPECT_THAT(refusalOf("3", "95200A1", "1", "2"), HasSubstr("Префикс"));
  EXPECT_THAT(refusalOf("3", "0000000", "1", "2"), HasSubstr("Префикс"));
  EXPECT_THAT(refusalOf("3", "9520001", "2", "1"), HasSubstr("Порядковые"));
  EXPECT_THAT(refusalOf("3", "9520001", "1", "1000000000"), HasSubstr("Порядковые"));
  EXPECT_THAT(refusalOf("3", "9520001", "", "2"), HasSubstr("Порядковые"));
  EXPECT_THAT(refusalOf("3", "9520001", "-1", "2"), HasSubstr("Порядковые"));
  EXPECT_THAT(refusalOf("3", "9520001", "1", "99999999999999999999"), HasSubstr("Порядковые"));
  EXPECT_THAT(refusalOf("3", "9520001", "5", "9", "4"), HasSubstr("Следующий"));
  EXPECT_THAT(refusalOf("3", "9520001", "5", "9", "11"), HasSubstr("Следующий"));
}

TEST(NumberRange, FillsNumbersAndAddsTheCheckDigit) {
  EXPECT_EQ(containerNumber(range(1, 9), 1), "395200010000000011");
  EXPECT_EQ(containerNumber({"0", "123456789012", 7, 9, 7}, 7).substr(0, 17), "01234567890120007");
}

TEST(NumberRange, SaysHowManyAreLeft) {
  NumberRange some = range(1, 100);
  EXPECT_EQ(leftWords(some), "осталось номеров: 100");
  some.next = 90;
  EXPECT_FALSE(isNearlyUsedUp(some));
  some.next = 91;
  EXPECT_EQ(leftWords(some), "Номера кончаются, осталось номеров: 10");
  some.next = 101;
  EXPECT_THAT(leftWords(some), HasSubstr("Номера кончились"));
}

TEST(NumberRange, DoubtsAPrefixThatIsNotTheSellers) {
  EXPECT_EQ(prefixDoubt(range(1, 9), "9520001000010"), "");
  EXPECT_EQ(prefixDoubt(range(1, 9), ""), "");
  EXPECT_THAT(prefixDoubt(range(1, 9), "4600001000010"), HasSubstr("4600001000010"));
}

TEST(NumberRange, ComesBackFromItsStore) {
  const NumberRange some{"3", "9520001", 5, 900, 17};
  EXPECT_EQ(rangeInStore(storedText(some)), some);
  for (const char* text : {"", "range 3 9520001 5 900 17", "range 3 9520001 5 900\n", "\n",
                           "range 3 9520001 5 900 9999\n", "other 3 9520001 5 900 17\n"}) {
    EXPECT_FALSE(rangeInStore(text)) << text;
  }
}

class GivenNumbersTest : public ::testing::Test {
 protected:
  static Moment day(int year, unsigned month, unsigned date) {
    return {makeDate(year, month, date), {10, 0, 0}};
  }
  std::string number(std::uint64_t serial) const { return containerNumber(range(1, 9), serial); }

  test::StoreInMemory store;
  FixedClock clock{day(2026, 11, 22)};
  GivenNumbers numbers{store, clock};
};

TEST_F(GivenNumbersTest, WithoutARangeThereAreNone) {
  EXPECT_FALSE(numbers.range());
  EXPECT_THAT(numbers.take(1, "А"), IsEmpty());
  EXPECT_THAT(store.texts, IsEmpty());
}

TEST_F(GivenNumbersTest, AreTakenOneAfterAnotherToTheEnd) {
  numbers.setRange(range(1, 4));
  EXPECT_THAT(numbers.take(1, "А"), ElementsAre(number(1)));
  GivenNumbers another(store, clock);
  EXPECT_THAT(another.take(2, "Б"), ElementsAre(number(2), number(3)));
  EXPECT_THAT(numbers.take(5, "А"), ElementsAre(number(4)));
  EXPECT_THAT(numbers.take(1, "А"), IsEmpty());
  EXPECT_EQ(numbersLeft(*numbers.range()), 0U);
}

TEST_F(GivenNumbersTest, APartIsHandedToAnotherPlaceAndGivenThereAlone) {
  numbers.setRange(range(1, 10));
  numbers.take(2, "А");
  const auto part = numbers.handOut(3, "Склад 2");
  ASSERT_TRUE(part);
  EXPECT_EQ(*part, (NumberRange{"3", "9520001", 8, 10, 8}));
  EXPECT_EQ(numbersLeft(*numbers.range()), 5U);
  ASSERT_THAT(numbers.handedOut(), SizeIs(1));
  EXPECT_EQ(handedWords(numbers.handedOut().front()), "отданы 8–10: Склад 2, 22.11.2026");
  test::StoreInMemory store2;
  GivenNumbers there(store2, clock);
  there.setRange(*part);
  std::vector<std::string> all = numbers.take(99, "А");
  for (const std::string& number : there.take(99, "Б")) all.push_back(number);
  EXPECT_THAT(all, SizeIs(8));
  EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), 8U) << "none twice";
}

TEST_F(GivenNumbersTest, WhatWasHandedOutIsPassedOverInALongerRangeToo) {
  numbers.setRange(range(1, 4));
  numbers.handOut(2, "Склад");
  numbers.setRange(range(1, 6));
  EXPECT_THAT(numbers.take(9, "А"), ElementsAre(number(1), number(2), number(5), number(6)));
}

TEST_F(GivenNumbersTest, WhatWasHandedOutIsNotHandedOutAgain) {
  numbers.setRange(range(1, 4));
  numbers.handOut(2, "Склад");
  numbers.setRange(range(1, 6));
  EXPECT_EQ(*numbers.handOut(4, "Склад 2"), (NumberRange{"3", "9520001", 5, 6, 5}));
  EXPECT_EQ(*numbers.handOut(4, "Склад 3"), (NumberRange{"3", "9520001", 1, 2, 1}));
  EXPECT_FALSE(numbers.handOut(4, "Склад 4"));
}

TEST_F(GivenNumbersTest, WhatWasGivenIsPassedOverWhereTheUserGoesBack) {
  numbers.setRange(range(1, 20));
  numbers.take(3, "А");
  numbers.setRange(range(1, 20));
  GivenNumbers another(store, clock);
  EXPECT_THAT(another.take(2, "Б"), ElementsAre(number(4), number(5)));
  numbers.setRange(range(1, 20));
  EXPECT_THAT(numbers.take(1, "А"), ElementsAre(number(6))) << "not even to the same document";
}

TEST_F(GivenNumbersTest, WhatWasGivenIsHandedToNoOtherPlace) {
  numbers.setRange(range(1, 10));
  numbers.take(8, "А");
  numbers.setRange(range(1, 10));
  EXPECT_EQ(*numbers.handOut(5, "Склад"), (NumberRange{"3", "9520001", 9, 10, 9}));
  numbers.setRange(range(1, 8));
  EXPECT_FALSE(numbers.handOut(5, "Склад 2")) << "all of it was given";
}

TEST_F(GivenNumbersTest, AYearLaterWhatWasGivenIsFreeAgain) {
  numbers.setRange(range(1, 4));
  numbers.take(2, "А");
  numbers.setRange(range(1, 4));
  const FixedClock later(day(2027, 11, 22));
  EXPECT_THAT(GivenNumbers(store, later).take(1, "Б"), ElementsAre(number(1)));
}

TEST_F(GivenNumbersTest, NoMoreIsHandedOutThanIsLeft) {
  EXPECT_FALSE(numbers.handOut(1, "Склад"));
  numbers.setRange(range(1, 4));
  EXPECT_FALSE(numbers.handOut(0, "Склад"));
  EXPECT_EQ(numbers.handOut(99, "Склад")->first, 1U);
  EXPECT_EQ(numbersLeft(*numbers.range()), 0U);
  EXPECT_THAT(numbers.take(1, "А"), IsEmpty());
  EXPECT_FALSE(numbers.handOut(1, "Склад"));
}

TEST_F(GivenNumbersTest, NothingIsHandedOutThatCanNotBeStored) {
  numbers.setRange(range(1, 4));
  store.isFull = true;
  EXPECT_THROW(numbers.handOut(2, "Склад"), RunTimeError);
  store.isFull = false;
  EXPECT_EQ(numbersLeft(*numbers.range()), 4U);
  EXPECT_THAT(numbers.handedOut(), IsEmpty());
}

TEST_F(GivenNumbersTest, AreOnRecordWithDateAndDocument) {
  numbers.setRange(range(1, 9));
  numbers.take(1, "ТН 6");
  EXPECT_THAT(store.texts["given"], HasSubstr("given " + number(1) + " 2026-11-22 ТН\u00a06\n"));
}

TEST_F(GivenNumbersTest, WhatAnotherDocumentHasIsPassedOver) {
  numbers.setRange(range(1, 9));
  numbers.noteUse({number(1), number(3)}, "Б");
  EXPECT_THAT(numbers.take(2, "А"), ElementsAre(number(2), number(4)));
}

TEST_F(GivenNumbersTest, WhatTheDocumentHasItselfIsPassedOverToo) {
  numbers.setRange(range(1, 9));
  EXPECT_THAT(numbers.take(2, "А", {number(1), number(3)}), ElementsAre(number(2), number(4)));
}

TEST_F(GivenNumbersTest, AfterTwelveMonthsANumberIsFreeAgain) {
  numbers.noteUse({number(1)}, "Б");
  const auto usedOn = [&](Moment today) {
    const FixedClock later(today);
    return GivenNumbers(store, later).useElsewhere(number(1), "А");
  };
  ASSERT_TRUE(usedOn(day(2026, 11, 22)));
  EXPECT_EQ(usedOn(day(2026, 11, 22))->document, "Б");
  EXPECT_EQ(usedOn(day(2026, 11, 22))->date, "2026-11-22");
  EXPECT_TRUE(usedOn(day(2027, 11, 21)));
  EXPECT_FALSE(usedOn(day(2027, 11, 22)));
}

TEST_F(GivenNumbersTest, ADocumentsOwnNumbersAreNoneOfAnother) {
  numbers.noteUse({number(1)}, "А");
  EXPECT_FALSE(numbers.useElsewhere(number(1), "А"));
  EXPECT_FALSE(numbers.useElsewhere(number(2), "А"));
  const std::string once = store.texts["given"];
  numbers.noteUse({number(1)}, "А");
  EXPECT_EQ(store.texts["given"], once) << "it is on record already";
}

TEST_F(GivenNumbersTest, ABrokenLineLosesNoOther) {
  numbers.noteUse({number(1)}, "Б");
  store.texts["given"] += "used 39520001";
  EXPECT_TRUE(numbers.useElsewhere(number(1), "А"));
  numbers.noteUse({number(2)}, "В");
  EXPECT_EQ(numbers.useElsewhere(number(2), "А")->document, "В");
  GivenNumbers another(store, clock);
  EXPECT_TRUE(another.useElsewhere(number(1), "А"));
  EXPECT_EQ(another.useElsewhere(number(2), "А")->document, "В");
}

TEST_F(GivenNumbersTest, WhatCannotBeStoredIsNotGiven) {
  numbers.setRange(range(1, 9));
  store.isFull = true;
  EXPECT_THROW(numbers.take(1, "А"), RunTimeError);
  store.isFull = false;
  EXPECT_THAT(numbers.take(1, "А"), ElementsAre(number(1)));
}

TEST_F(GivenNumbersTest, FiveHundredAreOneStep) {
  numbers.setRange(range(1, 1000));
  EXPECT_THAT(numbers.take(500, "А"), SizeIs(500));
  EXPECT_EQ(numbers.range()->next, 501U);
}

}  // namespace
}  // namespace awizo
