// Code pages and character sets by their numbers, and code points as UTF-8.
#include "notes/CodePages.h"

#include <gtest/gtest.h>

#include <map>

#include "notes/Utf8.h"

namespace logchecker {
namespace {

std::string Utf8(char32_t codePoint) {
  std::string text;
  AppendUtf8(text, codePoint);
  return text;
}

TEST(CodePages, EachCharacterSetHasItsPageAndAnyOtherFollowsTheDocument) {
  const std::map<int32_t, int32_t> known = {
      {77, 10000}, {128, 932},  {129, 949},  {134, 936},  {136, 950},  {161, 1253},
      {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251},
      {222, 874},  {238, 1250}, {254, 437},  {255, 850},
  };
  for (int32_t charset = -1; charset <= 256; ++charset) {
    const auto row = known.find(charset);
    EXPECT_EQ(row == known.end() ? 0 : row->second, CodePageOfCharset(charset)) << charset;
  }
}

TEST(CodePages, APageThatIsNotKnownIsReadAsTheWesternOne) {
  for (int byte = 0; byte < 256; ++byte) {
    EXPECT_EQ(CodePointOf(static_cast<unsigned char>(byte), 1252),
              CodePointOf(static_cast<unsigned char>(byte), 12345));
  }
}

TEST(CodePages, ACodePointTakesOneToFourBytesAndWhatIsNoneBecomesTheReplacement) {
  EXPECT_EQ("\x7F", Utf8(0x7F));
  EXPECT_EQ("\xC2\x80", Utf8(0x80));
  EXPECT_EQ("\xDF\xBF", Utf8(0x7FF));
  EXPECT_EQ("\xE0\xA0\x80", Utf8(0x800));
  EXPECT_EQ("\xE2\x82\xAC", Utf8(0x20AC));
  EXPECT_EQ("\xED\x9F\xBF", Utf8(0xD7FF));
  EXPECT_EQ("\xEF\xBF\xBD", Utf8(0xD800));
  EXPECT_EQ("\xEF\xBF\xBD", Utf8(0xDFFF));
  EXPECT_EQ("\xEE\x80\x80", Utf8(0xE000));
  EXPECT_EQ("\xEF\xBF\xBF", Utf8(0xFFFF));
  EXPECT_EQ("\xF0\x90\x80\x80", Utf8(0x10000));
  EXPECT_EQ("\xF0\x9F\x8E\xB5", Utf8(0x1F3B5));
  EXPECT_EQ("\xF4\x8F\xBF\xBF", Utf8(0x10FFFF));
  EXPECT_EQ("\xEF\xBF\xBD", Utf8(0x110000));
}

}  // namespace
}  // namespace logchecker
