// What rich text says of its looks.
#include <gtest/gtest.h>

#include "notes/RichText.h"
#include "notes/RichTextWords.h"

namespace logchecker {
namespace {

RichTextDocument Read(const std::string& body) {
  return ReadRichText("{\\rtf1\\ansi " + body + "}");
}

TextRun OnlyRun(const std::string& body) {
  const RichTextDocument document = Read(body);
  EXPECT_EQ(document.paragraphs.size(), 1U) << body;
  return document.paragraphs.at(0).runs.at(0);
}

TextParagraph OnlyParagraph(const std::string& body) {
  const RichTextDocument document = Read(body + " x\\par");
  EXPECT_EQ(document.paragraphs.size(), 1U) << body;
  return document.paragraphs.at(0);
}

std::vector<int32_t> TabsOf(const TextParagraph& paragraph) {
  std::vector<int32_t> positions;
  for (const TextTab& tab : paragraph.tabs) positions.push_back(tab.position);
  return positions;
}

TEST(RichTextFormatsTest, StrikeHighlightScriptsAndCapitals) {
  const std::string colours = "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}";
  EXPECT_TRUE(OnlyRun("\\strike a").strike);
  EXPECT_TRUE(OnlyRun("\\striked1 a").strike);
  EXPECT_FALSE(OnlyRun("\\strike\\strike0 a").strike);
  for (const char* word : {"\\highlight2", "\\cb2", "\\chcbpat2"}) {
    EXPECT_EQ(OnlyRun(colours + word + " a").highlight, 0xFF0000) << word;
  }
  EXPECT_EQ(OnlyRun(colours + "\\highlight2\\highlight0 a").highlight, kAutomaticColour);
  EXPECT_EQ(OnlyRun("\\super a").script, TextScript::kSuper);
  EXPECT_EQ(OnlyRun("\\sub a").script, TextScript::kSub);
  for (const char* end : {"\\super\\nosupersub", "\\super\\super0", "\\sub\\sub0"}) {
    EXPECT_EQ(OnlyRun(std::string(end) + " a").script, TextScript::kNormal) << end;
  }
  EXPECT_EQ(OnlyRun("\\up8 a").raise, 8);
  EXPECT_EQ(OnlyRun("\\dn4 a").raise, -4);
  EXPECT_EQ(OnlyRun("\\up a").raise, 6);
  EXPECT_EQ(OnlyRun("\\up8\\up0 a").raise, 0);
  EXPECT_EQ(OnlyRun("\\caps a").caps, TextCaps::kAll);
  EXPECT_EQ(OnlyRun("\\scaps a").caps, TextCaps::kSmall);
  EXPECT_EQ(OnlyRun("\\caps\\caps0 a").caps, TextCaps::kNone);
  EXPECT_EQ(OnlyRun("\\caps a").text, "a") << "the letters stay as they are";
}

TEST(RichTextFormatsTest, PlainEndsThemAll) {
  const TextRun run = OnlyRun(
      "{\\colortbl;\\red1;}\\b\\i\\ul\\strike\\caps\\super\\up4\\cf1\\highlight1\\fs40\\plain a");
  EXPECT_EQ(static_cast<const TextFormat&>(run), TextFormat());
}

TEST(RichTextFormatsTest, SpaceAroundParagraphsAndBetweenLines) {
  const TextParagraph spaced = OnlyParagraph("\\sb120\\sa240");
  EXPECT_EQ(spaced.spaceBefore, 120);
  EXPECT_EQ(spaced.spaceAfter, 240);
  const struct {
    const char* words;
    int32_t spacing;
    bool multiple;
  } cases[] = {
      {"", 240, true},         {"\\sl360\\slmult1", 360, true},    {"\\sl360\\slmult0", 360, false},
      {"\\sl360", 360, false}, {"\\sl-360\\slmult0", -360, false}, {"\\sl0\\slmult0", 240, true},
  };
  for (const auto& row : cases) {
    const TextParagraph paragraph = OnlyParagraph(row.words);
    EXPECT_EQ(paragraph.lineSpacing, row.spacing) << row.words;
    EXPECT_EQ(paragraph.lineSpacingIsMultiple, row.multiple) << row.words;
  }
  EXPECT_EQ(OnlyParagraph("\\sb120\\sa240\\sl360\\pard").spaceAfter, 0);
}

TEST(RichTextFormatsTest, TabStopsInTheirOrderWithTheirKinds) {
  const TextParagraph paragraph =
      OnlyParagraph("\\tqr\\tx4000\\tx1000\\tqc\\tx3000\\tqdec\\tx2000");
  EXPECT_EQ(TabsOf(paragraph), (std::vector<int32_t>{1000, 2000, 3000, 4000}));
  EXPECT_EQ(paragraph.tabs[0].kind, TabKind::kLeft);
  EXPECT_EQ(paragraph.tabs[1].kind, TabKind::kDecimal);
  EXPECT_EQ(paragraph.tabs[2].kind, TabKind::kCentre);
  EXPECT_EQ(paragraph.tabs[3].kind, TabKind::kRight);
  EXPECT_TRUE(OnlyParagraph("\\tx-5\\tx0").tabs.empty());
  EXPECT_TRUE(OnlyParagraph("\\tx500\\pard").tabs.empty());
  EXPECT_EQ(Read("\\deftab360 a").tabDistance, 360);
  EXPECT_EQ(Read("a").tabDistance, 720);
}

TEST(RichTextFormatsTest, CellsBeginWhereTheirRowSays) {
  const std::string row = "\\trowd\\trgaph100\\trleft-100\\cellx1000\\cellx3000\\cellx6000 ";
  const RichTextDocument document =
      Read(row + "\\pard\\intbl\\qr a\\cell b\\cell c\\cell\\row\\pard\\tx500 d\\par");
  ASSERT_EQ(document.paragraphs.size(), 2U);
  EXPECT_EQ(document.paragraphs[0].leftIndent, 0);
  EXPECT_EQ(document.paragraphs[0].alignment, TextAlignment::kLeft);
  EXPECT_EQ(TabsOf(document.paragraphs[0]), (std::vector<int32_t>{1100, 3100}));
  EXPECT_EQ(TabsOf(document.paragraphs[1]), (std::vector<int32_t>{500}));
}

TEST(RichTextFormatsTest, ASecondParagraphInACellStandsUnderTheFirst) {
  const RichTextDocument document =
      Read("\\trowd\\cellx1000\\cellx3000\\cellx6000 a\\cell b\\par b2\\cell c\\cell\\row d\\par");
  ASSERT_EQ(document.paragraphs.size(), 3U);
  EXPECT_EQ(TabsOf(document.paragraphs[0]), (std::vector<int32_t>{1000, 3000}));
  EXPECT_EQ(document.paragraphs[1].leftIndent, 1000);
  EXPECT_EQ(TabsOf(document.paragraphs[1]), (std::vector<int32_t>{3000}));
  EXPECT_EQ(document.paragraphs[2].leftIndent, 0);
  EXPECT_EQ(document.PlainText(), "a\tb\nb2\tc\nd");
}

TEST(RichTextFormatsTest, PagesBreakWhereTheTextSays) {
  const RichTextDocument document = Read("a\\page b\\par\\pagebb c\\par\\pard d\\par");
  ASSERT_EQ(document.paragraphs.size(), 4U);
  EXPECT_FALSE(document.paragraphs[0].pageBreakBefore);
  EXPECT_TRUE(document.paragraphs[1].pageBreakBefore);
  EXPECT_TRUE(document.paragraphs[2].pageBreakBefore);
  EXPECT_FALSE(document.paragraphs[3].pageBreakBefore);
}

TEST(RichTextFormatsTest, WhatIsNotForReadingIsPassedOverWithoutAStarToo) {
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
                           "private",
                           "revtbl",
                           "rxe",
                           "sp",
                           "stylesheet",
                           "tc",
                           "template",
                           "themedata",
                           "xe"}) {
    EXPECT_EQ(Read(std::string("a{\\") + word + " text}b").PlainText(), "ab") << word;
  }
}

}  // namespace
}  // namespace logchecker
