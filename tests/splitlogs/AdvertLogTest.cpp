#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "splitlogs/AdvertLog_FN.h"

namespace logchecker {
namespace {

struct Line {
  const char* line;
  float seconds;
  const char* chain;
  int32_t cart;
  const char* description;
  const char* reference;
};

constexpr char kCurrent[] = "06:00:30|NTH  00012345 MIDTOWN CARPETS SUMMER SALE         REF-7781";
constexpr char kOld[] = "06:00|NTH  2345 MIDTOWN CARPETS SUMMER SALE        REF-7781";

TEST(AdvertLogLine, EachReaderTakesItsColumnsOfEitherForm) {
  const Line cases[] = {
      {kCurrent, 21630, "NTH", 12345, "MIDTOWN CARPETS SUMMER SALE   ", "REF-7781"},
      {kOld, 21600, "NTH", 2345, "MIDTOWN CARPETS SUMMER SALE   ", "REF-7781"},
      {"", -1, "", 0, "", ""},
      {"00:00:00|NTH  00000001 A", 0, "NTH", 1, "A", ""},
      {"00:00|NTH     1 A", 0, "NTH", 1, "A ", ""},
      {"24:30:00|NTH  00000001 A", 88200, "NTH", 1, "A", ""},
      {"99:99:99|", 99 * 3600 + 99 * 60 + 99, "", 0, "", ""},
      {"ab:cd:ef|", 0, "", 0, "", ""},
      {"06-00-30#nth  00000001 A", 21630, "NTH", 1, "A", ""},
      {"06:00:30|n\xE9   00000001 A", 21630, "N\xC9", 1, "A", ""},
      {"06:00:30|NTH      2345 A", 21630, "NTH", 2345, "A", ""},
      {"06:00:30|NTH  00002345 A", 21630, "NTH", 2345, "A", ""},
      {"06:00:30|NTH     12 34 A", 21630, "NTH", 1234, "A", ""},
      {"06:00:30|NTH  ABC      A", 21630, "NTH", 0, "A", ""},
      {"06:00:30|NTH  -0000007 A", 21630, "NTH", -7, "A", ""},
      {"06:00:30|NTH       2.5 A", 21630, "NTH", 2, "A", ""},
      {"06:00:30|NTH       3.5 A", 21630, "NTH", 4, "A", ""},
      {"06:00:30|NTH     2.2E9 A", 21630, "NTH", 0, "A", ""},
      {"06:00:30|NTH  99999999 A", 21630, "NTH", 99999999, "A", ""},
      // A current line whose column 6 holds the bar counts as old.
      {"06:00|30|NTH  00012345 A", 21600, "30|N", 0, "012345 A ", ""},
      {"x", 0, "", 0, "", ""},
      // Digits in all the columns that nobody looks at.
      {"069009309NTH 9000123459MIDTOWN CARPETS SUMMER SALE   999999REF", 21630, "NTH", 12345,
       "MIDTOWN CARPETS SUMMER SALE   ", "REF"},
  };
  for (const Line& row : cases) {
    EXPECT_EQ(row.seconds, GetLineTime(row.line)) << row.line;
    EXPECT_EQ(row.chain, GetLineTXChainCode(row.line)) << row.line;
    EXPECT_EQ(row.cart, GetLineCart(row.line)) << row.line;
    EXPECT_EQ(row.description, GetLineDescription(row.line)) << row.line;
    EXPECT_EQ(row.reference, GetLineReference(row.line)) << row.line;
  }
}

TEST(AdvertLogLine, TheOldFormIsMovedIntoTheColumnsOfTheCurrentOne) {
  EXPECT_EQ("06:00:00|NTH      2345 MIDTOWN CARPETS SUMMER SALE         REF-7781",
            NormaliseLogLine(kOld));
  EXPECT_EQ(kCurrent, NormaliseLogLine(kCurrent));
  EXPECT_EQ("", NormaliseLogLine(""));
  EXPECT_EQ("06:00", NormaliseLogLine("06:00"));
  EXPECT_EQ("06:00:00|     ", NormaliseLogLine("06:00|"));
  EXPECT_EQ("06:00:00|NTH      23 ", NormaliseLogLine("06:00|NTH  23"));
}

TEST(AdvertLogLine, EachColumnOfTheOldFormHasItsPlaceInTheCurrentOne) {
  const std::string old = "abcde|ghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ01234567";
  EXPECT_EQ("abcde:00|ghijk    lmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTU VWXYZ01234567",
            NormaliseLogLine(old));
  EXPECT_EQ("GHIJ", GetLineTXChainCode(old));
  EXPECT_EQ("qrstuvwxyzABCDEFGHIJKLMNOPQRST", GetLineDescription(old));
  EXPECT_EQ("Z01234567", GetLineReference(old));
}

TEST(AdvertLogLine, AnOldLineOf47CharactersEndsWithABlankAtColumn55) {
  const std::string old = std::string(kOld).substr(0, 47);
  const std::string current = NormaliseLogLine(old);
  EXPECT_EQ(55U, current.size());
  EXPECT_EQ(' ', current.back());
  EXPECT_EQ("", GetLineReference(old));
  EXPECT_EQ("", GetLineReference(std::string(kOld).substr(0, 51)));
  EXPECT_EQ("R", GetLineReference(std::string(kOld).substr(0, 52)));
}

// The digits that a line cut behind `length` characters still holds of a number that begins at
// `column`.
int32_t DigitsLeft(const std::string& line, size_t length, size_t column, size_t width) {
  if (length < column) return 0;
  return std::stoi("0" + line.substr(column - 1, std::min(width, length - column + 1)));
}

TEST(AdvertLogLine, ACurrentLineCutAnywhereGivesWhatIsThere) {
  const std::string whole = "06:45:30|NTH  12345678 MIDTOWN CARPETS SUMMER SALE         REF-7781";
  EXPECT_EQ("MIDTOWN", GetLineDescription(whole.substr(0, 30)));
  EXPECT_EQ(-1, GetLineTime(whole.substr(0, 0)));
  for (size_t length = 1; length <= whole.size(); ++length) {
    const std::string line = whole.substr(0, length);
    EXPECT_EQ(DigitsLeft(whole, length, 1, 2) * 3600 + DigitsLeft(whole, length, 4, 2) * 60 +
                  DigitsLeft(whole, length, 7, 2),
              GetLineTime(line))
        << length;
    EXPECT_EQ(length < 10 ? "" : std::string("NTH").substr(0, length - 9), GetLineTXChainCode(line))
        << length;
    EXPECT_EQ(DigitsLeft(whole, length, 15, 8), GetLineCart(line)) << length;
    EXPECT_EQ(length < 24 ? "" : line.substr(23, 30), GetLineDescription(line)) << length;
    EXPECT_EQ(length < 60 ? "" : line.substr(59), GetLineReference(line)) << length;
  }
}

TEST(AdvertLogLine, AnOldLineCutAnywhereGivesWhatIsThere) {
  const std::string whole = "06:45|NTH  2345 MIDTOWN CARPETS SUMMER SALE        REF-7781";
  for (size_t length = 1; length <= whole.size(); ++length) {
    const std::string line = whole.substr(0, length);
    EXPECT_EQ(DigitsLeft(whole, length, 1, 2) * 3600 + DigitsLeft(whole, length, 4, 2) * 60,
              GetLineTime(line))
        << length;
    EXPECT_EQ(length < 7 ? "" : std::string("NTH").substr(0, length - 6), GetLineTXChainCode(line))
        << length;
    EXPECT_EQ(DigitsLeft(whole, length, 12, 4), GetLineCart(line)) << length;
    // The blank that goes in behind the description follows whatever is left of it.
    std::string description = length < 16 ? "" : line.substr(16, 30);
    if (length >= 16 && length < 46) description += ' ';
    EXPECT_EQ(description, GetLineDescription(line)) << length;
    EXPECT_EQ(length < 52 ? "" : line.substr(51), GetLineReference(line)) << length;
  }
}

}  // namespace
}  // namespace logchecker
