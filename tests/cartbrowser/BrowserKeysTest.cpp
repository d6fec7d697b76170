#include "cartbrowser/BrowserKeys.h"

#include <gtest/gtest.h>

namespace logchecker {
namespace {

using enum BrowserAction;

TEST(BrowserKeys, KeysThatGoDownAreAsTabled) {
  const struct {
    int32_t code;
    bool control;
    BrowserKeyResult result;
  } cases[] = {
      {36, false, {kNone, false}},     {35, false, {kNone, false}},   {45, false, {kNone, false}},
      {38, false, {kRowUp, true}},     {40, false, {kRowDown, true}}, {33, false, {kPageUp, false}},
      {34, false, {kPageDown, false}}, {32, false, {kPlay, false}},   {74, false, {kJump, true}},
      {111, false, {kNone, false}},    {112, false, {kHotKey, true}}, {117, false, {kHotKey, true}},
      {123, false, {kHotKey, true}},   {124, false, {kNone, false}},  {81, true, {kHalt, true}},
      {81, false, {kNone, false}},     {38, true, {kRowUp, true}},    {13, false, {kNone, false}},
      {37, false, {kNone, false}},     {39, false, {kNone, false}},   {27, false, {kNone, false}},
  };
  for (const auto& row : cases)
    EXPECT_EQ(row.result, BrowserKeyDown(row.code, row.control)) << row.code;
}

TEST(BrowserKeys, TypedCharactersAreAsTabled) {
  const struct {
    char character;
    BrowserKeyResult result;
  } cases[] = {
      {27, {kCancel, true}},     {13, {kNone, false}},      {'T', {kNotes, false}},
      {'t', {kNotes, false}},    {'L', {kCartLog, false}},  {'l', {kCartLog, false}},
      {'F', {kFind, false}},     {'f', {kFind, false}},     {'N', {kFindNext, false}},
      {'n', {kFindNext, false}}, {'B', {kFindBack, false}}, {'b', {kFindBack, false}},
      {'j', {kNone, false}},     {'5', {kNone, false}},     {' ', {kNone, false}},
  };
  for (const auto& row : cases)
    EXPECT_EQ(row.result, BrowserKeyPress(row.character)) << row.character;
}

TEST(BrowserKeys, TheNumbersBoxTakesDigitsBackspaceAndEscape) {
  for (int code = 0; code < 256; ++code) {
    const bool taken = code == 8 || code == 27 || (code >= '0' && code <= '9');
    EXPECT_EQ(taken, JumpBoxTakes(static_cast<char>(code))) << code;
  }
}

}  // namespace
}  // namespace logchecker
