#include "common/TextHelpers.h"

#include <gtest/gtest.h>

namespace logchecker {
namespace {

TEST(Trim, TakesSpacesAndNothingElse) {
  EXPECT_EQ("a b", Trim("  a b "));
  EXPECT_EQ("\ta", Trim(" \ta"));
  EXPECT_EQ("", Trim("   "));
  EXPECT_EQ("", Trim(""));
}

TEST(Mid, CountsFromOneAndEndsWithTheText) {
  EXPECT_EQ("bc", Mid("abcd", 2, 2));
  EXPECT_EQ("d", Mid("abcd", 4, 9));
  EXPECT_EQ("", Mid("abcd", 5, 1));
  EXPECT_EQ("", Mid("abcd", 9));
  EXPECT_EQ("bcd", Mid("abcd", 2));
}

TEST(GetDelimitedField, TakesTheTextUpToTheDelimiter) {
  struct Case {
    const char* source;
    int32_t start;
    const char* delimiter;
    bool trim;
    bool skipBlanks;
    const char* field;
    int32_t position;
    int32_t startAfter;
  };
  const Case cases[] = {
      {"abc def", 1, " ", false, false, "abc", 4, 1},
      {"abc def", 5, " ", false, false, "def", 0, 5},
      {"abc def", 0, " ", false, false, "abc", 4, 1},
      {"abc def", -7, " ", false, false, "abc", 4, 1},
      {"  abc def", 1, " ", false, false, "", 1, 1},
      {"  abc def", 1, " ", false, true, "abc", 6, 1},
      {" abc ;x", 1, ";", true, false, "abc", 6, 1},
      {" abc ;x", 1, ";", false, false, " abc ", 6, 1},
      {"    ", 1, ";", false, true, "", 0, 1},
      {"  ab ;x", 1, ";", true, true, "ab", 6, 1},
      {"  x a  x b", 1, " x", true, true, "x a", 7, 1},
      {"  x a  x b", 1, " x", true, false, "", 2, 1},
      {"  x a  x b", 1, " x", false, true, "x a ", 7, 1},
      {"  x a  x b", 8, " x", true, true, "x b", 0, 8},
      {"abc", 4, " ", false, false, "", 0, 4},
      {"abc", 9, " ", true, true, "", 0, 9},
      {"", 1, " ", true, true, "", 0, 1},
      {"a--b", 1, "--", false, false, "a", 2, 1},
  };
  for (const Case& row : cases) {
    int32_t start = row.start;
    int32_t position = -1;
    EXPECT_EQ(row.field, GetDelimitedField(row.source, start, row.delimiter, position, row.trim,
                                           row.skipBlanks))
        << row.source;
    EXPECT_EQ(row.position, position) << row.source;
    EXPECT_EQ(row.startAfter, start) << row.source;
  }
}

TEST(IsTextOfKind, EachCharacterBelongsToTheKinds) {
  for (int code = 0; code < 256; ++code) {
    const char c = static_cast<char>(code);
    const bool digit = code >= '0' && code <= '9';
    const bool letter = (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
    const bool blank = code == ' ';
    const std::string_view text(&c, 1);
    EXPECT_EQ(digit, IsTextOfKind(text, 1)) << code;
    EXPECT_EQ(digit || letter, IsTextOfKind(text, 2)) << code;
    EXPECT_EQ(letter, IsTextOfKind(text, 3)) << code;
    EXPECT_EQ(digit || letter || blank, IsTextOfKind(text, 4)) << code;
    EXPECT_EQ(digit || blank, IsTextOfKind(text, 5)) << code;
    EXPECT_TRUE(IsTextOfKind(text, 0));
    EXPECT_TRUE(IsTextOfKind(text, 6));
  }
}

TEST(IsTextOfKind, EveryCharacterCountsAndAnEmptyTextIsOfAllKinds) {
  EXPECT_TRUE(IsTextOfKind("", 1));
  EXPECT_TRUE(IsTextOfKind("1234", 1));
  EXPECT_FALSE(IsTextOfKind("12 4", 1));
}

TEST(TrimAtNull, CutsAtTheFirstOrTheLastNul) {
  const std::string text("a\0b\0c", 5);
  EXPECT_EQ("a", TrimAtNull(text, false));
  EXPECT_EQ(std::string("a\0b", 3), TrimAtNull(text, true));
  EXPECT_EQ("abc", TrimAtNull("abc", false));
  EXPECT_EQ("abc", TrimAtNull("abc", true));
}

TEST(GetMonthName, KnowsTwelveMonths) {
  EXPECT_EQ("", GetMonthName(0));
  EXPECT_EQ("", GetMonthName(13));
  EXPECT_EQ("", GetMonthName(-1));
  for (int16_t month = 1; month <= 12; ++month) {
    EXPECT_FALSE(GetMonthName(month).empty());
    EXPECT_EQ(month == 1, GetMonthName(1) == GetMonthName(month));
  }
}

TEST(IsPointInTolerance, TheEdgesCountAndSumsAreOfSinglePrecision) {
  EXPECT_TRUE(IsPointInTolerance(105, 95, 100, 100, 5));
  EXPECT_FALSE(IsPointInTolerance(105.001F, 100, 100, 100, 5));
  EXPECT_FALSE(IsPointInTolerance(100, 94.999F, 100, 100, 5));
  // 16777216 and 1 is 16777216 in single precision.
  EXPECT_FALSE(IsPointInTolerance(16777218.0F, 0, 16777216.0F, 0, 1));
  EXPECT_TRUE(IsPointInTolerance(16777216.0F, 0, 16777216.0F, 0, 1));
}

}  // namespace
}  // namespace logchecker
