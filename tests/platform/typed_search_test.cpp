#include "platform/forms/typed_search.h"

#include <gtest/gtest.h>

namespace awizo::test {
namespace {

struct TypedSearchTest : ::testing::Test {
  std::optional<int> type(std::string_view character) {
    const std::optional<int> found = search.add(character, rows, current);
    if (found) current = *found;
    return found;
  }
  std::vector<std::string> rows{"ПОЛЬША", "РОССИЯ", "РУМЫНИЯ", "   РУАНДА", "ЧИЛИ"};
  int current = 0;
  TypedSearch search;
};

TEST_F(TypedSearchTest, EachCharacterNarrowsTheBeginning) {
  EXPECT_EQ(type("Р"), 1);
  EXPECT_EQ(type("У"), 2);
  EXPECT_EQ(type("А"), 3) << "blanks before the text don't count";
}

TEST_F(TypedSearchTest, OneLetterGoesThroughItsRows) {
  EXPECT_EQ(type("Р"), 1);
  EXPECT_EQ(type("Р"), 2);
  EXPECT_EQ(type("Р"), 3);
  EXPECT_EQ(type("Р"), 1);
}

TEST_F(TypedSearchTest, ACharacterThatNoRowGoesOnWithBeginsAnew) {
  EXPECT_EQ(type("Р"), 1);
  EXPECT_EQ(type("Ч"), 4);
  EXPECT_EQ(type("И"), 4);
}

TEST_F(TypedSearchTest, FindsNothingInNothing) {
  EXPECT_EQ(type("Ж"), std::nullopt);
  EXPECT_EQ(current, 0);
  rows.clear();
  EXPECT_EQ(type("Р"), std::nullopt);
}

TEST_F(TypedSearchTest, WhatIsForgottenIsBegunAnew) {
  EXPECT_EQ(type("Р"), 1);
  search.forget();
  EXPECT_EQ(type("У"), std::nullopt);
}

}  // namespace
}  // namespace awizo::test
