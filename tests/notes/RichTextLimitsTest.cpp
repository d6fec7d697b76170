// How much of a note is taken, at each limit and one past it.
#include <gtest/gtest.h>

#include "notes/RichText.h"

namespace logchecker {
namespace {

std::string Rich(const std::string& body) { return "{\\rtf1 " + body + "}"; }

std::string Repeated(const std::string& piece, size_t times) {
  std::string text;
  text.reserve(piece.size() * times);
  for (size_t i = 0; i < times; ++i) text += piece;
  return text;
}

TEST(RichTextLimitsTest, CharactersOfPlainTextAreCountedInsideALine) {
  constexpr size_t kFits = kMostCharacters - kCostOfRun - kCostOfParagraph;
  const RichTextDocument whole = ReadRichText(std::string(kFits, 'x'));
  EXPECT_EQ(whole.PlainText().size(), kFits);
  EXPECT_FALSE(whole.isCut);
  const RichTextDocument ended = ReadRichText(std::string(kFits + 1, 'x'));
  EXPECT_TRUE(ended.isCut) << "the line's end has no room";
  EXPECT_EQ(ended.PlainText().size(), kFits + 1);
  const RichTextDocument inside = ReadRichText(std::string(kMostCharacters, 'x'));
  EXPECT_TRUE(inside.isCut);
  EXPECT_EQ(inside.PlainText().size(), kMostCharacters - kCostOfRun) << "inside the line";
}

TEST(RichTextLimitsTest, CharactersOfRichTextAreCountedInsideARun) {
  // Each paragraph takes 15 bytes and counts as 1,030, so that the limit comes before that of
  // bytes.
  const std::string many = Repeated("\\tx1\\tx2\\tx3\\tx4\\tx5\\b x\\b0 y\\par\\pard ", 20000);
  constexpr size_t kParagraph = kCostOfParagraph + 5 * kCostOfTab + 2 * kCostOfRun + 2;
  const RichTextDocument whole = ReadRichText(Rich(many));
  EXPECT_FALSE(whole.isCut);
  EXPECT_EQ(whole.paragraphs.size(), 20000U);
  const size_t left = kMostCharacters - 20000 * kParagraph - kCostOfRun - kCostOfParagraph;
  EXPECT_FALSE(ReadRichText(Rich(many + std::string(left, 'z'))).isCut);
  EXPECT_TRUE(ReadRichText(Rich(many + std::string(left + 1, 'z'))).isCut);
  const RichTextDocument inside =
      ReadRichText(Rich(many + std::string(left + kCostOfParagraph + 1, 'z')));
  EXPECT_TRUE(inside.isCut);
  EXPECT_EQ(inside.paragraphs.back().runs[0].text.size(), left + kCostOfParagraph);
}

TEST(RichTextLimitsTest, ACharacterOfSeveralBytesIsNeverHalved) {
  constexpr size_t kLetters = 100000;
  const std::string letters =
      std::string(kMostBytes - 2 * kLetters, 'x') + Repeated("\xC3\xA9", kLetters);
  // Whether the limit falls between two or into one.
  for (const std::string& file : {letters + "\xC3\xA9", "x" + letters}) {
    const RichTextDocument document = ReadRichText(file);
    EXPECT_TRUE(document.isCut);
    const std::string text = document.PlainText();
    EXPECT_GT(text.size(), kMostBytes - 4);
    EXPECT_EQ(text.substr(text.size() - 2), "\xC3\xA9");
  }
}

TEST(RichTextLimitsTest, BytesBeyondTheLimitAreNotTaken) {
  const auto skipped = [](size_t size) {
    std::string file = "{\\rtf1 a{\\info ";
    return file + std::string(size - file.size() - 3, 'x') + "}bc";
  };
  const RichTextDocument whole = ReadRichText(skipped(kMostBytes));
  EXPECT_FALSE(whole.isCut);
  EXPECT_EQ(whole.PlainText(), "abc");
  const RichTextDocument cut = ReadRichText(skipped(kMostBytes + 1));
  EXPECT_TRUE(cut.isCut);
  EXPECT_EQ(cut.PlainText(), "ab");
  EXPECT_EQ(ReadWholeText(skipped(kMostBytes + 1)), "abc");
}

TEST(RichTextLimitsTest, GroupsTooDeepAreSaidAndTheirTextIsInTheWhole) {
  const auto nested = [](size_t depth) {
    return "{\\rtf1 a" + std::string(depth - 1, '{') + "b{\\v h}{\\*\\x i}c" +
           std::string(depth, '}');
  };
  const RichTextDocument fits = ReadRichText(nested(kDeepestGroup - 1));
  EXPECT_FALSE(fits.isCut);
  EXPECT_EQ(fits.PlainText(), "abc");
  const RichTextDocument cut = ReadRichText(nested(kDeepestGroup + 1));
  EXPECT_TRUE(cut.isCut);
  EXPECT_EQ(cut.PlainText(), "a");
  EXPECT_EQ(ReadWholeText(nested(kDeepestGroup + 1)), "abc");
}

TEST(RichTextLimitsTest, TheWholeTextHasNoLimit) {
  const std::string line(kMostCharacters + 1000, 'x');
  EXPECT_EQ(ReadWholeText(line).size(), line.size());
  EXPECT_EQ(ReadWholeText(Rich(line)).size(), line.size());
  EXPECT_EQ(ReadWholeText("a\r\nb"), "a\nb");
  EXPECT_EQ(ReadWholeText(Rich("a\\par\\b b{\\pict\\pngblip 00ff}\\par c")), "a\nb\nc");
}

TEST(RichTextLimitsTest, TabStopsAndCellsOfALine) {
  const auto tabs = [](const std::string& word, const std::string& end, size_t count) {
    std::string body = "\\trowd";
    for (size_t i = 1; i <= count; ++i) body += word + std::to_string(i * 10);
    return ReadRichText(Rich(body + end)).paragraphs.at(0).tabs.size();
  };
  EXPECT_EQ(tabs("\\tx", " x\\par", kMostTabStops), kMostTabStops);
  EXPECT_EQ(tabs("\\tx", " x\\par", kMostTabStops + 1), kMostTabStops);
  // The last cell ends where no other begins.
  EXPECT_EQ(tabs("\\cellx", " x\\cell\\row", kMostTabStops), kMostTabStops - 1);
  EXPECT_EQ(tabs("\\cellx", " x\\cell\\row", kMostTabStops + 1), kMostTabStops - 1);
}

TEST(RichTextLimitsTest, PicturesCountAsAChangeOfFormat) {
  const std::string picture = "{\\pict\\pngblip 00}";
  EXPECT_EQ(ReadRichText(Rich(Repeated(picture, 1000))).pictures.size(), 1000U);
  const size_t fits = kMostCharacters / kCostOfRun;
  const RichTextDocument cut = ReadRichText(Rich(Repeated(picture, fits + 1)));
  EXPECT_EQ(cut.pictures.size(), fits);
  EXPECT_TRUE(cut.isCut);
}

}  // namespace
}  // namespace logchecker
