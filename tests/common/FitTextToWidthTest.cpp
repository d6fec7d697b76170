#include "common/FitTextToWidth.h"

#include <gtest/gtest.h>

namespace logchecker {
namespace {

int Width(std::string_view text) { return static_cast<int>(text.size()) * 10; }

TEST(FitTextToWidth, GivesTheLongestHeadThatFits) {
  EXPECT_EQ(FitTextToWidth(Width, "abcdef", 30), "abc");
  EXPECT_EQ(FitTextToWidth(Width, "abcdef", 39), "abc");
  EXPECT_EQ(FitTextToWidth(Width, "abcdef", 60), "abcdef");
  EXPECT_EQ(FitTextToWidth(Width, "abcdef", 1000), "abcdef");
  EXPECT_EQ(FitTextToWidth(Width, "abcdef", 9), "");
  EXPECT_EQ(FitTextToWidth(Width, "abcdef", -5), "");
  EXPECT_EQ(FitTextToWidth(Width, "", 100), "");
}

TEST(FitTextToWidth, GrowsCharacterByCharacterAndStopsAtTheFirstThatDoesNotFit) {
  // The whole is narrower than its head here; the head already ends the growth.
  const auto ligature = [](std::string_view text) { return text.size() == 2 ? 50 : 10; };
  EXPECT_EQ(FitTextToWidth(ligature, "abc", 20), "a");
}

}  // namespace
}  // namespace logchecker
