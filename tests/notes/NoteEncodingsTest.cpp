// The text of a file, whatever it is written in.
#include "notes/CodePages.h"

#include <gtest/gtest.h>

#include "notes/RichText.h"
#include "notes/TextFile.h"
#include "notes/Utf8.h"

namespace logchecker {
namespace {

std::string PlainOfFile(const std::string& bytes) { return ReadRichText(bytes).PlainText(); }

TEST(CodePagesTest, PairsOfBytesInRichText) {
  const struct {
    const char* what;
    std::string body;
    std::string text;
  } cases[] = {
      {"Japanese", "\\ansicpg932 \\'93\\'fa\\'96\\'7b", "\xE6\x97\xA5\xE6\x9C\xAC"},
      {"a second byte as it stands", "\\ansicpg932 \\'96{", "\xEF\xBF\xBD"},
      {"a second byte of plain ASCII", "\\ansicpg932 \\'83A", "\xE3\x82\xA2"},
      {"half-width letters are one byte", "\\ansicpg932 \\'b1x", "\xEF\xBD\xB1x"},
      {"simplified Chinese", "\\ansicpg936 \\'d6\\'d0", "\xE4\xB8\xAD"},
      {"Korean", "\\ansicpg949 \\'b0\\'a1", "\xEA\xB0\x80"},
      {"traditional Chinese", "\\ansicpg950 \\'a4\\'a4", "\xE4\xB8\xAD"},
      {"UTF-8", "\\ansicpg65001 \\'e6\\'97\\'a5\\'c3\\'a9", "\xE6\x97\xA5\xC3\xA9"},
      {"UTF-8 as it stands", "\\ansicpg65001 \xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
      {"a Japanese font", "{\\fonttbl{\\f1\\fcharset128 B;}}\\f1\\'93\\'fa", "\xE6\x97\xA5"},
      {"a Korean font", "{\\fonttbl{\\f1\\fcharset129 B;}}\\f1\\'b0\\'a1", "\xEA\xB0\x80"},
      {"a Chinese font", "{\\fonttbl{\\f1\\fcharset134 B;}}\\f1\\'d6\\'d0", "\xE4\xB8\xAD"},
      {"one of Taiwan", "{\\fonttbl{\\f1\\fcharset136 B;}}\\f1\\'a4\\'a4", "\xE4\xB8\xAD"},
      {"a pair that is none", "\\ansicpg932 \\'81\\'ffx", "\xEF\xBF\xBDx"},
      {"ASCII behind half a pair", "\\ansicpg932 \\'81!x", "\xEF\xBF\xBD!x"},
      {"half a pair at a word", "\\ansicpg932 \\'93\\b x", "\xEF\xBF\xBDx"},
      {"half a pair at a group's end", "\\ansicpg932 {\\'93}x", "\xEF\xBF\xBDx"},
      {"half a pair at the end", "\\ansicpg932 x\\'93", "x\xEF\xBF\xBD"},
      {"a page that ends in half a pair", "\\ansicpg932 \\'93\\ansicpg1252 \\'e9",
       "\xEF\xBF\xBD\xC3\xA9"},
      {"both bytes of a pair behind Unicode", "\\ansicpg932\\uc2\\u26085\\'93\\'fax",
       "\xE6\x97\xA5x"},
      {"broken UTF-8", "\\ansicpg65001 \\'e6\\'97x\\'80\\'c0\\'ff",
       "\xEF\xBF\xBDx\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(PlainOfFile("{\\rtf1\\ansi" + row.body + "}"), row.text) << row.what;
  }
}

TEST(CodePagesTest, FontNamesOfPairs) {
  const RichTextDocument document =
      ReadRichText("{\\rtf1\\ansi\\ansicpg932{\\fonttbl{\\f0\\fcharset128 \\'93\\'fa;}}\\f0 x}");
  EXPECT_EQ(document.paragraphs.at(0).runs.at(0).fontName, "\xE6\x97\xA5");
}

TEST(CodePagesTest, TextFilesOfUnicode) {
  const struct {
    const char* what;
    std::string bytes;
    std::string text;
  } cases[] = {
      {"UTF-8 with its mark",
       "\xEF\xBB\xBF"
       "caf\xC3\xA9\r\nx",
       "caf\xC3\xA9\nx"},
      {"UTF-8 without one", "caf\xC3\xA9", "caf\xC3\xA9"},
      {"station text", "caf\xE9", "caf\xC3\xA9"},
      {"station text behind two letters that are UTF-8 too", "\xC3\xA9\xE9",
       "\xC3\x83\xC2\xA9\xC3\xA9"},
      {"UTF-16",
       std::string("\xFF\xFE"
                   "a\0\xE9\0\r\0\n\0b\0",
                   12),
       "a\xC3\xA9\nb"},
      {"swapped UTF-16", std::string("\xFE\xFF\0a\0\xE9\0\n\0b", 10), "a\xC3\xA9\nb"},
      {"pairs of UTF-16", std::string("\xFF\xFE\x3D\xD8\0\xDE", 6), "\xF0\x9F\x98\x80"},
      {"half a pair",
       std::string("\xFF\xFE\x3D\xD8"
                   "a\0",
                   6),
       "\xEF\xBF\xBD"
       "a"},
      {"half a pair at the end", std::string("\xFF\xFE\x3D\xD8", 4), "\xEF\xBF\xBD"},
      {"an odd byte", "\xFF\xFE\x61", "\xEF\xBF\xBD"},
      {"a mark alone", "\xEF\xBB\xBF", ""},
      {"broken UTF-8 with its mark", "\xEF\xBB\xBF\xE6\x97x\xFF", "\xEF\xBF\xBDx\xEF\xBF\xBD"},
      {"UTF-8 without its end is none", "\xC3\xA9\xC3", "\xC3\x83\xC2\xA9\xC3\x83"},
  };
  for (const auto& row : cases) EXPECT_EQ(PlainOfFile(row.bytes), row.text) << row.what;
}

TEST(CodePagesTest, AMarkBeforeRichTextIsNoText) {
  EXPECT_TRUE(IsRichText("\xEF\xBB\xBF{\\rtf1 x}"));
  EXPECT_EQ(PlainOfFile("\xEF\xBB\xBF{\\rtf1 a{\\b b}}"), "ab");
  EXPECT_EQ(ReadWholeText("\xEF\xBB\xBF{\\rtf1 a{\\b b}}"), "ab");
  EXPECT_FALSE(IsRichText("\xEF\xBB{\\rtf1 x}"));
}

TEST(CodePagesTest, WhatIsUtf8) {
  for (const char* text : {"", "a", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF",
                           "\xEF\xBF\xBD", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(IsUtf8(text)) << text;
  }
  for (const char* text :
       {"\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3g", "a\xC3", "\xE6\x97g", "\xC3\xA9\xFF"}) {
    EXPECT_FALSE(IsUtf8(text)) << text;
  }
}

TEST(CodePagesTest, ASavedTextLosesNothing) {
  EXPECT_EQ(PlainTextFile("a\nb"), "a\r\nb");
  EXPECT_EQ(PlainTextFile("caf\xC3\xA9"), "caf\xE9");
  EXPECT_EQ(PlainTextFile("\xE6\x97\xA5\n"), "\xEF\xBB\xBF\xE6\x97\xA5\r\n");
}

}  // namespace
}  // namespace logchecker
