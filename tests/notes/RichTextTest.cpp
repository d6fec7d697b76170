#include "notes/RichText.h"

#include <gtest/gtest.h>

#include <utility>

namespace logchecker {
namespace {

std::string Doc(const std::string& body) { return "{\\rtf1\\ansi " + body + "}"; }
std::string PlainOf(const std::string& body) { return ReadRichText(Doc(body)).PlainText(); }

struct PlainCase {
  const char* feature;
  std::string body;
  std::string text;
};

TEST(RichTextTest, TextAndItsSymbols) {
  const PlainCase cases[] = {
      {"text", "Hello", "Hello"},
      {"line ends of the file are none", "Hel\r\nlo", "Hello"},
      {"paragraphs", "a\\par b\\par\\par c", "a\nb\n\nc"},
      {"an escaped line end is one", "a\\\nb\\\rc", "a\nb\nc"},
      {"line breaks", "a\\line b", "a\nb"},
      {"tabs", "a\\tab b", "a\tb"},
      {"escaped characters", "\\{a\\}\\\\", "{a}\\"},
      {"quotes", "\\lquote a\\rquote\\ldblquote b\\rdblquote",
       "\xE2\x80\x98"
       "a\xE2\x80\x99\xE2\x80\x9C"
       "b\xE2\x80\x9D"},
      {"dashes and bullets", "\\emdash\\endash\\bullet", "\xE2\x80\x94\xE2\x80\x93\xE2\x80\xA2"},
      {"hard blank and hyphen", "a\\~b\\_c\\-d",
       "a\xC2\xA0"
       "b\xE2\x80\x91"
       "cd"},
      {"one blank belongs to the word", "a\\b  b", "a b"},
      {"unknown words are skipped", "a\\nosuchword12 b\\another c", "abc"},
      {"hidden text", "a{\\v secret}b", "ab"},
  };
  for (const PlainCase& row : cases) EXPECT_EQ(PlainOf(row.body), row.text) << row.feature;
}

TEST(RichTextTest, CodePagesOfTheDocumentAndOfItsFonts) {
  const PlainCase cases[] = {
      {"western", "\\'e9\\'80", "\xC3\xA9\xE2\x82\xAC"},
      {"raw bytes", "\xE9", "\xC3\xA9"},
      {"ansicpg", "\\ansicpg1251 \\'e9", "\xD0\xB9"},
      {"mac", "\\mac \\'8e", "\xC3\xA9"},
      {"pc", "\\pc \\'82", "\xC3\xA9"},
      {"pca", "\\pca \\'9b", "\xC3\xB8"},
      {"Greek font", "{\\fonttbl{\\f0\\fcharset0 A;}{\\f1\\fcharset161 B;}}\\f1\\'e1\\f0\\'e1",
       "\xCE\xB1\xC3\xA1"},
      {"Russian font", "{\\fonttbl{\\f1\\fcharset204 B;}}\\f1\\'e9", "\xD0\xB9"},
      {"East European font", "{\\fonttbl{\\f1\\fcharset238 B;}}\\f1\\'f8", "\xC5\x99"},
      {"Baltic font", "{\\fonttbl{\\f1\\fcharset186 B;}}\\f1\\'e0", "\xC4\x85"},
      {"Turkish font", "{\\fonttbl{\\f1\\fcharset162 B;}}\\f1\\'fd", "\xC4\xB1"},
      {"Thai font", "{\\fonttbl{\\f1\\fcharset222 B;}}\\f1\\'a1", "\xE0\xB8\x81"},
      {"a font's code page", "{\\fonttbl{\\f1\\cpg866 B;}}\\f1\\'80", "\xD0\x90"},
      {"an unknown page is western", "\\ansicpg12345 \\'e9", "\xC3\xA9"},
      {"broken hexadecimal", "a\\'zzb", "azzb"},
  };
  for (const PlainCase& row : cases) EXPECT_EQ(PlainOf(row.body), row.text) << row.feature;
}

TEST(RichTextTest, UnicodeAndWhatStandsBehindIt) {
  const PlainCase cases[] = {
      {"one is skipped", "\\u233?x", "\xC3\xA9x"},
      {"a hexadecimal one too", "\\u233\\'e9x", "\xC3\xA9x"},
      {"a word counts as one", "\\u233\\emdash x", "\xC3\xA9x"},
      {"uc0 skips none", "\\uc0\\u233 x", "\xC3\xA9x"},
      {"uc2 skips two", "\\uc2\\u233 ??x", "\xC3\xA9x"},
      {"uc ends with its group", "{\\uc0\\u233 x}\\u233?y", "\xC3\xA9x\xC3\xA9y"},
      {"a group's end ends the skipping", "{\\uc5\\u233 ?}x", "\xC3\xA9x"},
      {"negative numbers", "\\u-4064?", "\xEF\x80\xA0"},
      {"pairs", "\\u-10179?\\u-8704?", "\xF0\x9F\x98\x80"},
      {"a lone half", "\\u-10179?x", "\xEF\xBF\xBDx"},
      {"a half before another character", "\\u-10179?\\u233?", "\xEF\xBF\xBD\xC3\xA9"},
      {"a half before a pair", "\\u-10179?\\u-10179?\\u-8704?", "\xEF\xBF\xBD\xF0\x9F\x98\x80"},
      {"the first and the last pair", "\\u-10240?\\u-9216?\\u-9217?\\u-8193?",
       "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
      {"a lone second half", "\\u-8704?x", "\xEF\xBF\xBDx"},
  };
  for (const PlainCase& row : cases) EXPECT_EQ(PlainOf(row.body), row.text) << row.feature;
}

TEST(RichTextTest, TablesListsFieldsAndWhatIsPassedOver) {
  const PlainCase cases[] = {
      {"tables", "\\trowd a\\cell b\\cell\\row\\trowd c\\cell d\\cell\\row e", "a\tb\nc\td\ne"},
      {"bullets", "{\\pntext\\bullet\\tab}one\\par{\\listtext 2.\\tab}two",
       "\xE2\x80\xA2\tone\n2.\ttwo"},
      {"fields", "a{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt link}}b", "alinkb"},
      {"pictures", "a{\\pict\\pngblip 89504e470d}b", "ab"},
      {"an older copy of a picture", "a{\\nonshppict{\\pict\\pngblip 00ff}old}b", "ab"},
      {"what another program left", "a{\\private text}b", "ab"},
      {"shape pictures", "a{\\*\\shppict{\\pict 00ff}}{\\nonshppict{\\pict 00}}b", "ab"},
      {"binary data", "a{\\pict\\bin5 }}}}}x}b", "ab"},
      {"objects show their result", "a{\\object{\\*\\objdata 0105}{\\result r}}b", "arb"},
      {"headers and footers", "{\\header h}{\\footer f}{\\footnote n}a", "a"},
      {"info and styles", "{\\info{\\title t}}{\\stylesheet{\\s0 Normal;}}a", "a"},
      {"unknown starred groups", "{\\*\\nosuch text{\\b more}}a", "a"},
      {"unknown groups are shown", "{\\nosuch text}a", "texta"},
      {"generator", "{\\*\\generator Some program;}a", "a"},
  };
  for (const PlainCase& row : cases) EXPECT_EQ(PlainOf(row.body), row.text) << row.feature;
}

TEST(RichTextTest, EachDestinationThatIsNoTextOfTheNoteIsPassedOver) {
  for (const char* word : {"annotation",
                           "colorschememapping",
                           "datastore",
                           "do",
                           "filetbl",
                           "fldinst",
                           "footer",
                           "footerf",
                           "footerl",
                           "footerr",
                           "footnote",
                           "generator",
                           "header",
                           "headerf",
                           "headerl",
                           "headerr",
                           "info",
                           "latentstyles",
                           "listoverridetable",
                           "listtable",
                           "nonshppict",
                           "objclass",
                           "objdata",
                           "objname",
                           "pict",
                           "private",
                           "revtbl",
                           "rxe",
                           "sp",
                           "stylesheet",
                           "tc",
                           "template",
                           "themedata",
                           "xe"}) {
    EXPECT_EQ(PlainOf("a{\\" + std::string(word) + " no{\\b more}}b"), "ab") << word;
  }
}

TEST(RichTextTest, EachWordForACharacterIsThatCharacter) {
  const std::pair<const char*, const char*> characters[] = {
      {"bullet", "\u2022"},  {"emdash", "\u2014"},    {"emspace", "\u2003"},   {"endash", "\u2013"},
      {"enspace", "\u2002"}, {"ldblquote", "\u201C"}, {"line", "\n"},          {"lquote", "\u2018"},
      {"ltrmark", "\u200E"}, {"qmspace", "\u2005"},   {"rdblquote", "\u201D"}, {"rquote", "\u2019"},
      {"rtlmark", "\u200F"}, {"softline", "\n"},      {"tab", "\t"},           {"zwj", "\u200D"},
      {"zwnj", "\u200C"},
  };
  for (const auto& [word, text] : characters) {
    EXPECT_EQ(PlainOf("a\\" + std::string(word) + " b"), "a" + std::string(text) + "b") << word;
  }
  for (const char* word : {"page", "par", "sect", "row", "nestrow"}) {
    EXPECT_EQ(PlainOf("a\\" + std::string(word) + " b"), "a\nb") << word;
  }
  for (const char* word : {"cell", "nestcell"}) {
    EXPECT_EQ(PlainOf("a\\" + std::string(word) + " b"), "a\tb") << word;
  }
}

TEST(RichTextTest, EveryKindOfUnderliningUnderlines) {
  for (const char* word :
       {"ul", "uld", "uldash", "uldashd", "uldashdd", "uldb", "ulth", "ulw", "ulwave"}) {
    const RichTextDocument document = ReadRichText(Doc("a\\" + std::string(word) + " b\\ulnone c"));
    const auto& runs = document.paragraphs[0].runs;
    ASSERT_EQ(runs.size(), 3U) << word;
    EXPECT_FALSE(runs[0].underline);
    EXPECT_TRUE(runs[1].underline) << word;
    EXPECT_FALSE(runs[2].underline);
  }
}

TEST(RichTextTest, IndentsHaveTwoNamesEach) {
  const RichTextDocument document =
      ReadRichText(Doc("\\li1\\ri2 a\\par\\lin3\\rin4\\qc\\ql b\\par"));
  EXPECT_EQ(document.paragraphs[0].leftIndent, 1);
  EXPECT_EQ(document.paragraphs[0].rightIndent, 2);
  EXPECT_EQ(document.paragraphs[1].leftIndent, 3);
  EXPECT_EQ(document.paragraphs[1].rightIndent, 4);
  EXPECT_EQ(document.paragraphs[1].alignment, TextAlignment::kLeft);
}

TEST(RichTextTest, RunsHaveTheirFormats) {
  const RichTextDocument document = ReadRichText(
      Doc("{\\fonttbl{\\f0\\froman Times;}{\\f1\\fswiss{\\*\\panose 0}Arial{\\*\\falt X};}}"
          "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}"
          "\\f1\\fs28 a{\\b b}{\\i\\ul c}\\cf1 d\\cf0\\b0\\ulnone e\\plain f"));
  ASSERT_EQ(document.paragraphs.size(), 1U);
  const auto& runs = document.paragraphs[0].runs;
  ASSERT_EQ(runs.size(), 6U);
  EXPECT_EQ(runs[0].fontName, "Arial");
  EXPECT_EQ(runs[0].halfPoints, 28);
  EXPECT_EQ(runs[0].colour, kAutomaticColour);
  EXPECT_TRUE(runs[1].bold);
  EXPECT_FALSE(runs[1].italic);
  EXPECT_TRUE(runs[2].italic);
  EXPECT_TRUE(runs[2].underline);
  EXPECT_EQ(runs[3].colour, 0x0000FF);
  EXPECT_FALSE(runs[3].underline);
  EXPECT_EQ(runs[4].text, "e");
  EXPECT_EQ(runs[5].fontName, "Times");
  EXPECT_EQ(runs[5].halfPoints, kDefaultHalfPoints);
}

TEST(RichTextTest, AColourHasThreePartsAndTheFirstOneIsAutomatic) {
  const RichTextDocument document = ReadRichText(Doc(
      "{\\colortbl;\\red1\\green2\\blue3;\\blue4;\\green5;}\\cf1 a\\cf2 b\\cf3 c\\cf4 d\\cf0 e"));
  const auto& runs = document.paragraphs[0].runs;
  ASSERT_EQ(runs.size(), 4U);
  EXPECT_EQ(runs[0].colour, 0x030201);
  EXPECT_EQ(runs[1].colour, 0x040000);
  EXPECT_EQ(runs[2].colour, 0x000500);
  EXPECT_EQ(runs[3].colour, kAutomaticColour);
  EXPECT_EQ(runs[3].text, "de");
}

TEST(RichTextTest, WordsSwitchOffWithZeroAndGroupsBringBack) {
  const RichTextDocument document = ReadRichText(Doc("\\b a{\\b0 b}c\\ul d\\ul0 e"));
  const auto& runs = document.paragraphs[0].runs;
  ASSERT_EQ(runs.size(), 5U);
  EXPECT_TRUE(runs[0].bold);
  EXPECT_FALSE(runs[1].bold);
  EXPECT_TRUE(runs[2].bold);
  EXPECT_TRUE(runs[3].underline);
  EXPECT_FALSE(runs[4].underline);
}

TEST(RichTextTest, ParagraphsHaveAlignmentAndIndents) {
  const RichTextDocument document =
      ReadRichText(Doc("\\qc a\\par\\qr b\\par\\qj\\li720\\ri360\\fi-360 c\\par\\pard d\\par"));
  ASSERT_EQ(document.paragraphs.size(), 4U);
  EXPECT_EQ(document.paragraphs[0].alignment, TextAlignment::kCentre);
  EXPECT_EQ(document.paragraphs[1].alignment, TextAlignment::kRight);
  EXPECT_EQ(document.paragraphs[2].alignment, TextAlignment::kJustified);
  EXPECT_EQ(document.paragraphs[2].leftIndent, 720);
  EXPECT_EQ(document.paragraphs[2].rightIndent, 360);
  EXPECT_EQ(document.paragraphs[2].firstLineIndent, -360);
  EXPECT_EQ(document.paragraphs[3].alignment, TextAlignment::kLeft);
  EXPECT_EQ(document.paragraphs[3].leftIndent, 0);
}

TEST(RichTextTest, ALastParagraphWithoutItsEndKeepsItsFormat) {
  for (const char* body :
       {"a\\par\\pard\\qr\\li720 last", "a\\par{\\pard\\qr\\li720 last}",
        "a\\par{{\\qr\\li720 la}{\\qr\\li720\\b st}}", "a\\par\\pard{\\qr\\li720 las\\u-10179?}"}) {
    const RichTextDocument document = ReadRichText(Doc(body));
    ASSERT_EQ(document.paragraphs.size(), 2U) << body;
    EXPECT_EQ(document.paragraphs[1].alignment, TextAlignment::kRight) << body;
    EXPECT_EQ(document.paragraphs[1].leftIndent, 720) << body;
  }
}

TEST(RichTextTest, WhatIsNoRichTextIsPlainText) {
  EXPECT_FALSE(IsRichText("{\\rt"));
  EXPECT_FALSE(IsRichText(" {\\rtf1 x}"));
  EXPECT_TRUE(IsRichText("{\\rtf"));
  EXPECT_EQ(ReadRichText("a\r\nb\rc\nd").PlainText(), "a\nb\nc\nd");
  EXPECT_EQ(ReadRichText("\r\n\r\nx").PlainText(), "\n\nx");
  EXPECT_EQ(ReadRichText("caf\xE9 {\\b x}").PlainText(), "caf\xC3\xA9 {\\b x}");
  EXPECT_EQ(ReadRichText("").PlainText(), "");
  EXPECT_EQ(ReadRichText("one\r\n").PlainText(), "one\n") << "no line's end is lost";
  EXPECT_EQ(ReadRichText("\n\n").PlainText(), "\n\n");
}

TEST(RichTextTest, BrokenFilesGiveWhatTheyHave) {
  EXPECT_EQ(ReadRichText("{\\rtf1 a{\\b b").PlainText(), "ab") << "unclosed groups";
  EXPECT_EQ(ReadRichText("{\\rtf1 a}}}}b").PlainText(), "ab") << "too many ends";
  EXPECT_EQ(ReadRichText("{\\rtf1 a\\").PlainText(), "a") << "a backslash at the end";
  EXPECT_EQ(ReadRichText("{\\rtf1 a\\'").PlainText(), "a");
  EXPECT_EQ(ReadRichText("{\\rtf1 a\\'e").PlainText(), "ae");
  EXPECT_EQ(ReadRichText("{\\rtf1 a\\u").PlainText().substr(0, 1), "a");
  EXPECT_EQ(ReadRichText(std::string("{\\rtf1 a\0b}", 11)).PlainText(), "ab") << "a NUL";
  EXPECT_EQ(ReadRichText("{\\rtf1 a{\\bin1073741824 xyz}b}").PlainText(), "a") << "1 GiB of data";
  EXPECT_EQ(ReadRichText("{\\rtf1 a{\\bin-5 x}b}").PlainText(), "axb");
  EXPECT_EQ(PlainOf("\\fs99999999999999999999 a\\li-99999999999999999999 b"), "ab");
  EXPECT_EQ(PlainOf("\\uc2147483647 a\\u233 bcd"), "a\xC3\xA9");
  EXPECT_EQ(PlainOf("\\cf99999999 a\\cf-1 b\\f-7 c"), "abc");
}

TEST(RichTextTest, AFontTableThatRefersToItselfEnds) {
  EXPECT_EQ(PlainOf("{\\fonttbl{\\f0{\\fonttbl{\\f0 A;}\\f0}\\f0 B;}}\\f0 x"), "x");
}

TEST(RichTextTest, AHundredThousandNestedGroupsAreCountedAndPassedOver) {
  std::string nested = "{\\rtf1 a";
  for (int i = 0; i < 100000; ++i) nested += "{\\b ";
  nested += "deep";
  for (int i = 0; i < 100000; ++i) nested += "}";
  nested += "z}";
  EXPECT_EQ(ReadRichText(nested).PlainText(), "az");
}

TEST(RichTextTest, GroupsUpToTheDeepestKeepTheirText) {
  const auto nested = [](size_t depth) {
    std::string text = "{\\rtf1 ";
    for (size_t i = 1; i < depth; ++i) text += "{";
    return text + "x";
  };
  EXPECT_EQ(ReadRichText(nested(kDeepestGroup)).PlainText(), "x");
  EXPECT_EQ(ReadRichText(nested(kDeepestGroup + 1)).PlainText(), "");
}

TEST(RichTextTest, TheTextIsBoundedWhateverTheFile) {
  std::string file = "{\\rtf1 ";
  for (int i = 0; i < 400000; ++i) file += "\\par ";
  EXPECT_LE(ReadRichText(file).paragraphs.size(), kMostCharacters / 40 + 1);
  EXPECT_LE(ReadRichText(std::string(2000000, '\n')).paragraphs.size(), kMostCharacters / 40 + 1);
  std::string fonts = "{\\rtf1{\\fonttbl";
  for (int i = 0; i < 100000; ++i) fonts += "\\f" + std::to_string(i) + " F;";
  EXPECT_EQ(ReadRichText(fonts + "}\\f1 x}").PlainText(), "x");
}

TEST(RichTextTest, OfAFileItsFirst16MiBAreRead) {
  const std::string head = "{\\rtf1 a";
  const std::string blank(kMostBytes - head.size() - 1, '\n');
  EXPECT_EQ(ReadRichText(head + blank + "bc}").PlainText(), "ab");
}

TEST(RichTextTest, AnyBytesAreTaken) {
  // A small generator of its own, so that a failure can be run again.
  uint32_t seed = 12345;
  const auto next = [&] { return seed = seed * 1664525 + 1013904223; };
  const char* pieces[] = {"{",          "}",   "\\",     "\\'",  "\\u", "\\bin",
                          "\\par",      "9",   "-",      ";",    " ",   "\\fonttbl",
                          "\\colortbl", "\\*", "\\pict", "\\uc", "\\f", "x"};
  for (int round = 0; round < 2000; ++round) {
    std::string file = "{\\rtf";
    for (int i = 0; i < 60; ++i) {
      if (next() >> 28 == 0) {
        file += static_cast<char>(next() >> 24);
      } else {
        file += pieces[(next() >> 16) % std::size(pieces)];
      }
    }
    const RichTextDocument document = ReadRichText(file);
    EXPECT_LE(document.PlainText().size(), file.size() * 4) << file;
  }
}

}  // namespace
}  // namespace logchecker
