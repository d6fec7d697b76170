#include "platform/StationText.h"

#include <gtest/gtest.h>

namespace logchecker {
namespace {

// Places of the code page that hold no character.
constexpr std::string_view kEmptyPlaces = "\x81\x8D\x8F\x90\x9D";

TEST(StationTextTest, EveryCharacterComesBack) {
  for (int code = 1; code < 256; ++code) {
    const std::string text(1, static_cast<char>(code));
    if (kEmptyPlaces.find(text) != std::string_view::npos) continue;
    std::string back;
    EXPECT_TRUE(FromUtf8(ToUtf8(text), &back)) << code;
    EXPECT_EQ(back, text) << code;
  }
}

TEST(StationTextTest, KnownCharacters) {
  EXPECT_EQ(ToUtf8(""), "");
  EXPECT_EQ(ToUtf8("Log 1"), "Log 1");
  EXPECT_EQ(ToUtf8("caf\xE9"), "caf\xC3\xA9");
  EXPECT_EQ(ToUtf8("\x80"), "\xE2\x82\xAC") << "the euro sign";
  EXPECT_EQ(ToUtf8("\x9F"), "\xC5\xB8");
  EXPECT_EQ(ToUtf8("\xFF"), "\xC3\xBF");
}

TEST(StationTextTest, ControlCharactersBecomeBlanks) {
  EXPECT_EQ(WithoutControls(""), "");
  EXPECT_EQ(WithoutControls("caf\xE9 \x80\xA0\xAD"), "caf\xE9 \x80\xA0\xAD");
  EXPECT_EQ(WithoutControls("a\tb\nc"), "a\tb\nc") << "lines and columns stay";
  EXPECT_EQ(WithoutControls("a\x1B[2J\r\b\x7F\x01z"), "a [2J    z");
  EXPECT_EQ(WithoutControls("\x81\x8D\x8F\x90\x9D"), "     ");
}

TEST(StationTextTest, WhatTheCodePageCannotHoldIsToldAndMarked) {
  const struct {
    const char* utf8;
    const char* text;
  } cases[] = {
      {"\xE4\xB8\xAD", "?"},
      {"a\xE4\xB8\xAD z", "a? z"},
      {"A\xC4\x80\x42", "A?B"},       // no near letter stands in
      {"a\xF0\x9F\x98\x80z", "a?z"},  // one character, one mark
      {"a\xFFz", "a?z"},              // not UTF-8 at all
  };
  for (const auto& row : cases) {
    std::string text;
    EXPECT_FALSE(FromUtf8(row.utf8, &text)) << row.utf8;
    EXPECT_EQ(text, row.text);
  }
}

TEST(StationTextTest, MalformedTextIsRefused) {
  for (const char* utf8 : {"\xC3", "ab\xE2\x82", "\xC0\xAF", "\xED\xA0\x80", "\x80"}) {
    std::string text;
    EXPECT_FALSE(FromUtf8(utf8, &text)) << utf8;
  }
}

TEST(StationTextTest, TextThatFitsIsTakenWhole) {
  std::string text = "before";
  EXPECT_TRUE(FromUtf8("caf\xC3\xA9 \xE2\x82\xAC", &text));
  EXPECT_EQ(text, "caf\xE9 \x80");
  EXPECT_TRUE(FromUtf8("", &text));
  EXPECT_EQ(text, "");
}

TEST(StationTextTest, APlainArgumentIsTakenAsItIs) {
  std::string text;
  EXPECT_TRUE(FromArgument("/LI:C:\\Logs", &text));
  EXPECT_EQ(text, "/LI:C:\\Logs");
}

TEST(StationTextTest, UpperCase) {
  EXPECT_EQ(ToUpper("Cart 12 az AZ @[`{"), "CART 12 AZ AZ @[`{");
  EXPECT_EQ(ToUpper("\xE0\xE9\xF6\xFE"), "\xC0\xC9\xD6\xDE");
  EXPECT_EQ(ToUpper("\x9A\x9C\x9E\xFF"), "\x8A\x8C\x8E\x9F");
  EXPECT_EQ(ToUpper("\xDF\xD7\xF7\x80"), "\xDF\xD7\xF7\x80") << "these have no capital";
  EXPECT_EQ(ToUpper(""), "");
}

}  // namespace
}  // namespace logchecker
