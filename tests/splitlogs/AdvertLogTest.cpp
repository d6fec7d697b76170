#include <gtest/gtest.h>

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

TEST(AdvertLogLine, AnOldLineOf47CharactersEndsWithABlankAtColumn55) {
  const std::string old = std::string(kOld).substr(0, 47);
  const std::string current = NormaliseLogLine(old);
  EXPECT_EQ(55U, current.size());
  EXPECT_EQ(' ', current.back());
  EXPECT_EQ("", GetLineReference(old));
  EXPECT_EQ("", GetLineReference(std::string(kOld).substr(0, 51)));
  EXPECT_EQ("R", GetLineReference(std::string(kOld).substr(0, 52)));
}

TEST(AdvertLogLine, ALineCutAnywhereGivesWhatIsThere) {
  const std::string whole(kCurrent);
  EXPECT_EQ("MIDTOWN", GetLineDescription(whole.substr(0, 30)));
  for (size_t length = 0; length <= whole.size(); ++length) {
    const std::string line = whole.substr(0, length);
    const std::string description = length > 23 ? line.substr(23, 30) : "";
    const std::string reference = length > 59 ? line.substr(59) : "";
    EXPECT_EQ(description, GetLineDescription(line));
    EXPECT_EQ(reference, GetLineReference(line));
    EXPECT_EQ(length >= 12 ? "NTH" : (length > 9 ? std::string("NTH").substr(0, length - 9) : ""),
              GetLineTXChainCode(line));
  }
}

}  // namespace
}  // namespace logchecker
