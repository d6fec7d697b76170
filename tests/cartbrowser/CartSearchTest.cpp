#include "cartbrowser/CartSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "cartbrowser/CartNotes.h"
#include "cartstore/BlankCart.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

CartLine Line(std::string_view text) {
  CartLine line;
  line.fill(' ');
  std::copy_n(text.begin(), std::min(text.size(), line.size()), line.begin());
  return line;
}

CartInfo InUse(std::string_view line1, std::string_view line2 = "", std::string_view line3 = "") {
  CartInfo info = gBlankCartInfo;
  info.TotalLength = 30;
  info.Length = 30;
  info.Line1 = Line(line1);
  info.Line2 = Line(line2);
  info.Line3 = Line(line3);
  return info;
}

bool Found(const SearchRules& rules, const CartInfo& info, int32_t cart = 1) {
  return CartSearch(rules).Matches(cart, info);
}

SearchRules ForText(std::string text) {
  SearchRules rules;
  rules.Text = std::move(text);
  return rules;
}

SearchRules ForLines(std::string text, std::array<bool, 3> lines) {
  SearchRules rules = ForText(std::move(text));
  rules.LimitLines = true;
  rules.Lines = lines;
  return rules;
}

SearchRules ForLength(float length, int32_t tolerance) {
  SearchRules rules = ForText(kAnyText);
  rules.TimeRules = true;
  rules.Length = length;
  rules.Tolerance = tolerance;
  return rules;
}

class CartSearchTest : public StationTest {};

TEST_F(CartSearchTest, TextIsFoundAnywhereInTheDescriptionInEitherCase) {
  const CartInfo cart = InUse("Midtown CARPETS", "Caf\xE9 sale", "ends 9*");
  const std::pair<const char*, bool> cases[] = {
      {"Midtown", true},      {"midtown", true},       {"TOWN carp", true}, {"carpets caf", true},
      {"CAF\xC9 SALE", true}, {"sale ends", true},     {"9*", true},        {"ts  c", false},
      {"uptown", false},      {"  midtown  ", true},   {"*d", false},       {"**", false},
      {"cafe", false},        {"carpets sale", false},
  };
  for (const auto& [text, found] : cases) EXPECT_EQ(found, Found(ForText(text), cart)) << text;
}

TEST_F(CartSearchTest, TextRunsOnFromALineThatIsFull) {
  const std::string full(50, 'x');
  EXPECT_TRUE(Found(ForText("xxyy"), InUse(full, "yy")));
  EXPECT_FALSE(Found(ForText("xx yy"), InUse(full, "yy")));
}

TEST_F(CartSearchTest, TheWildcardMatchesEveryCartInUse) {
  EXPECT_TRUE(Found(ForText("*"), InUse("")));
  EXPECT_TRUE(Found(ForText(" * "), InUse("")));
  EXPECT_TRUE(Found(ForLines("*", {false, false, false}), InUse("")));
  EXPECT_FALSE(Found(ForText("*"), gBlankCartInfo));
}

TEST_F(CartSearchTest, AnUnusedCartNeverMatches) {
  CartInfo unused = InUse("WORDS");
  unused.TotalLength = kUnusedLength;
  EXPECT_FALSE(Found(ForText("words"), unused));
  EXPECT_FALSE(Found(ForText("*"), unused));
  CartInfo silent = InUse("WORDS");
  silent.TotalLength = 0;
  EXPECT_TRUE(Found(ForText("words"), silent));
}

TEST_F(CartSearchTest, AnEmptyTextIsFoundInWordsAndInFiftyBlanksButNotInAnEmptyDescription) {
  EXPECT_TRUE(Found(ForText(""), InUse("WORDS")));
  EXPECT_TRUE(Found(ForText("   "), InUse("", "", "x")));
  EXPECT_FALSE(Found(ForText(""), InUse("")));
  EXPECT_TRUE(Found(ForLines("", {true, true, true}), InUse("")));
  EXPECT_TRUE(Found(ForLines("", {false, false, true}), InUse("")));
  EXPECT_FALSE(Found(ForLines("", {false, false, false}), InUse("WORDS")));
}

TEST_F(CartSearchTest, OnlyTickedLinesAreLookedAt) {
  const CartInfo cart = InUse("first", "second", "third");
  const char* const texts[] = {"FIRST", "SECOND", "THIRD"};
  for (size_t text = 0; text < 3; ++text) {
    for (unsigned ticks = 0; ticks < 8; ++ticks) {
      const std::array<bool, 3> lines = {(ticks & 1U) != 0, (ticks & 2U) != 0, (ticks & 4U) != 0};
      EXPECT_EQ(lines[text], Found(ForLines(texts[text], lines), cart)) << text << ticks;
    }
  }
}

TEST_F(CartSearchTest, LinesAreLookedAtOneByOneAndWhole) {
  const std::array<bool, 3> all = {true, true, true};
  EXPECT_FALSE(Found(ForLines("first second", all), InUse("first", "second")));
  EXPECT_FALSE(Found(ForLines("xy", all), InUse(std::string(50, 'x'), "y")));
  EXPECT_TRUE(Found(ForLines("a   b", all), InUse("a   b")));
  EXPECT_TRUE(Found(ForLines(std::string(50, 'x'), all), InUse("", std::string(50, 'x'))));
}

TEST_F(CartSearchTest, WhichLinesAreTickedCountsOnlyWhenLinesAreLimited) {
  SearchRules rules = ForText("second");
  rules.Lines = {false, false, false};
  EXPECT_TRUE(Found(rules, InUse("first", "second")));
}

TEST_F(CartSearchTest, ControlCharactersAreCharactersLikeOthers) {
  const CartInfo cart = InUse(std::string_view("a\0b\r\n\x01z", 7));
  EXPECT_TRUE(Found(ForText(std::string("\0B\r", 3)), cart));
  EXPECT_TRUE(Found(ForText("\x01Z"), cart));
  EXPECT_FALSE(Found(ForText("\x02"), cart));
}

TEST_F(CartSearchTest, TheLengthLiesWithinTheToleranceAndASecondMore) {
  const float exactly = std::nextafterf(169, 170);
  const std::pair<float, bool> cases[] = {{180, true},
                                          {169.5F, true},
                                          {190.5F, true},
                                          {169, false},
                                          {191, false},
                                          {exactly, true},
                                          {std::nextafterf(191, 190), true},
                                          {0, false},
                                          {1000, false}};
  for (const auto& [length, found] : cases) {
    CartInfo cart = InUse("x");
    cart.Length = length;
    EXPECT_EQ(found, Found(ForLength(180, 10), cart)) << length;
  }
}

TEST_F(CartSearchTest, TheLengthThatCountsIsNotTheAudiosOwn) {
  CartInfo cart = InUse("x");
  cart.Length = 180;
  cart.TotalLength = 500;
  cart.PlayLength = 500;
  EXPECT_TRUE(Found(ForLength(180, 3), cart));
  EXPECT_FALSE(Found(ForLength(500, 3), cart));
}

TEST_F(CartSearchTest, ALengthThatIsNoNumberNeverMatches) {
  CartInfo cart = InUse("x");
  for (const float length :
       {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
        -std::numeric_limits<float>::infinity()}) {
    cart.Length = length;
    EXPECT_FALSE(Found(ForLength(180, 300), cart)) << length;
    EXPECT_TRUE(Found(ForText("*"), cart));
  }
}

TEST_F(CartSearchTest, TheBoundsAreRoundedToSinglePrecision) {
  CartInfo cart = InUse("x");
  cart.Length = 16777216;
  // 16777216 + 0 + 1 has no place in single precision and becomes 16777216 again.
  EXPECT_FALSE(Found(ForLength(16777216, 0), cart));
  EXPECT_TRUE(Found(ForLength(16777216, 3), cart));
}

TEST_F(CartSearchTest, TextAndLengthMustBothMatch) {
  SearchRules rules = ForLength(30, 3);
  rules.Text = "words";
  EXPECT_TRUE(Found(rules, InUse("words")));
  EXPECT_FALSE(Found(rules, InUse("other")));
  rules.Length = 60;
  EXPECT_FALSE(Found(rules, InUse("words")));
}

class NotesSearchTest : public CartSearchTest {
 protected:
  bool FoundInNotes(const std::string& text, const CartInfo& cart = InUse("A CART")) {
    SearchRules rules = ForText(text);
    rules.Notes = true;
    return Found(rules, cart, 7);
  }
};

TEST_F(NotesSearchTest, NotesAreLookedAtOnlyWhenAskedFor) {
  OpenStore(20);
  folder().WriteFile("part1/VEL00007.TXT", "Jingle, keep until June");
  EXPECT_TRUE(FoundInNotes("JUNE"));
  EXPECT_FALSE(FoundInNotes("july"));
  EXPECT_TRUE(FoundInNotes("a cart"));
  EXPECT_FALSE(Found(ForText("june"), InUse("A CART"), 7));
  EXPECT_FALSE(FoundInNotes("june", gBlankCartInfo));
}

TEST_F(NotesSearchTest, RichTextIsSearchedAsItLiesAndHidesThePlainNotes) {
  OpenStore(20);
  folder().WriteFile("part1/VEL00007.TXT", "plain");
  folder().WriteFile("part1/VEL00007.RTF", "{\\rtf1\\b bold\\b0}");
  EXPECT_TRUE(FoundInNotes("\\RTF1"));
  EXPECT_FALSE(FoundInNotes("plain"));
}

TEST_F(NotesSearchTest, NotesAreLookedAtBesideLimitedLinesToo) {
  OpenStore(20);
  folder().WriteFile("part1/VEL00007.TXT", "June");
  SearchRules rules = ForLines("june", {false, false, false});
  rules.Notes = true;
  EXPECT_TRUE(Found(rules, InUse(""), 7));
}

TEST_F(NotesSearchTest, TheLengthRulesOutACartThatItsNotesName) {
  OpenStore(20);
  folder().WriteFile("part1/VEL00007.TXT", "June");
  SearchRules rules = ForLength(500, 3);
  rules.Text = "june";
  rules.Notes = true;
  EXPECT_FALSE(Found(rules, InUse(""), 7));
}

TEST_F(NotesSearchTest, TextBehindTheTenThousandthCharacterIsNotFound) {
  OpenStore(20);
  folder().WriteFile("part1/VEL00007.TXT", std::string(kNotesSearched - 4, '.') + "JUNE");
  EXPECT_TRUE(FoundInNotes("june"));
  folder().WriteFile("part1/VEL00007.TXT", std::string(kNotesSearched - 3, '.') + "JUNE");
  EXPECT_FALSE(FoundInNotes("june"));
  EXPECT_TRUE(FoundInNotes("jun"));
}

TEST_F(NotesSearchTest, NotesThatCannotBeReadCountAsEmpty) {
  OpenStore(20);
  folder().WriteFile("part1/VEL00007.TXT", "June");
  for (const char* call : {"Files.OpenForInput", "Files.Peek", "Files.ProbeFile"}) {
    os.script.Clear();
    os.script.FailNamed(call, 0, kPermissionDenied);
    EXPECT_FALSE(FoundInNotes("june")) << call;
    EXPECT_FALSE(FoundInNotes("", InUse(""))) << call;
  }
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(NotesSearchTest, AnEmptyTextIsFoundInNotesThatHoldAnything) {
  OpenStore(20);
  folder().WriteFile("part1/VEL00007.TXT", "");
  EXPECT_FALSE(FoundInNotes("", InUse("")));
  folder().WriteFile("part1/VEL00007.TXT", "x");
  EXPECT_TRUE(FoundInNotes("", InUse("")));
}

TEST_F(NotesSearchTest, NotesAreNotReadWhereTheLinesHoldTheText) {
  OpenStore(20);
  folder().WriteFile("part1/VEL00007.TXT", "x");
  os.script.Clear();
  EXPECT_TRUE(FoundInNotes("cart"));
  EXPECT_EQ(0, os.script.CountOf("Files.ProbeFile"));
}

}  // namespace
}  // namespace logchecker
