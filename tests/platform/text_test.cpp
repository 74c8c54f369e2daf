#include "platform/text.h"

namespace awizo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Text, LengthsCountCharactersNotBytes) {
  EXPECT_EQ(countCharacters(""), 0U);
  EXPECT_EQ(countCharacters("abc"), 3U);
  EXPECT_EQ(countCharacters("Штукa"), 5U);
  EXPECT_EQ(countCharacters("№€𝄞"), 3U);
}

TEST(Text, FirstAndLastCharactersNeverCutACharacterInTwo) {
  EXPECT_EQ(firstCharacters("Паллета", 3), "Пал");
  EXPECT_EQ(firstCharacters("Паллета", 0), "");
  EXPECT_EQ(firstCharacters("Паллета", 7), "Паллета");
  EXPECT_EQ(firstCharacters("Паллета", 99), "Паллета");
  EXPECT_EQ(lastCharacters("Паллета", 2), "та");
  EXPECT_EQ(lastCharacters("Паллета", 0), "");
  EXPECT_EQ(lastCharacters("Паллета", 99), "Паллета");
}

TEST(Text, OnlyBlanksAreTrimmed) {
  EXPECT_EQ(trimmed("  a b  "), "a b");
  EXPECT_EQ(trimmed("   "), "");
  EXPECT_EQ(trimmed(""), "");
  EXPECT_EQ(trimmed("\ta\u00A0"), "\ta\u00A0");
}

TEST(Text, SplittingTheEmptyTextGivesNoPieces) {
  EXPECT_THAT(split("", "$"), IsEmpty());
  EXPECT_THAT(split("$", "$"), ElementsAre("", ""));
  EXPECT_THAT(split("a$$b$", "$"), ElementsAre("a", "", "b", ""));
  EXPECT_THAT(split("a\r\nb\r", "\r\n"), ElementsAre("a", "b\r"));
}

TEST(Text, JoinPutsTheSeparatorBetweenPieces) {
  EXPECT_EQ(join({}, "@"), "");
  EXPECT_EQ(join({"2", "", "1"}, "@"), "2@@1");
}

TEST(Text, ReplaceAllDoesNotLookAtWhatItHasWritten) {
  EXPECT_EQ(replaceAll("a/b/c", "/", "_"), "a_b_c");
  EXPECT_EQ(replaceAll("aa", "a", "aa"), "aaaa");
  EXPECT_EQ(replaceAll("aaa", "aa", ""), "a");
  EXPECT_EQ(replaceAll("abc", "", "x"), "abc");
}

TEST(Text, OneLineTextHasNoLineBreaksAndControlCharacters) {
  EXPECT_EQ(withoutControlCharacters("a\r\nб\t\x7F\u0085\u2028\u2029№\u00A0"), "aб№\u00A0");
  EXPECT_EQ(withoutControlCharacters(""), "");
}

TEST(Text, WellFormedUtf8IsKnown) {
  for (const char* text : {"", "a", "я", "€", "\uFFFD", "😀", "\xF4\x8F\xBF\xBF", "aя€😀"}) {
    EXPECT_TRUE(isUtf8(text)) << text;
  }
}

TEST(Text, BytesThatAreNoUtf8AreKnown) {
  for (const char* bytes :
       {"\x80", "\xFF", "\xC3", "a\xD1", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE2\x82",
        "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF0\x9F\x98", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80",
        "\xD1\x41", "\xE2\x82\x41", "\xE2\x41\x82"}) {
    EXPECT_FALSE(isUtf8(bytes)) << bytes;
  }
}

TEST(Text, CharacterTextWritesEveryLengthOfUtf8) {
  EXPECT_EQ(characterText(U'a'), "a");
  EXPECT_EQ(characterText(U'Ж'), "Ж");
  EXPECT_EQ(characterText(U'€'), "€");
  EXPECT_EQ(characterText(U'𝄞'), "𝄞");
}

}  // namespace
}  // namespace awizo
