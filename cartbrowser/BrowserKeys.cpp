#include "cartbrowser/BrowserKeys.h"

#include <string_view>

#include "cartbrowser/KeyCodes.h"
#include "common/TextHelpers.h"

namespace logchecker {

namespace {

enum class When { kAlways, kWithControl };

struct KeyDownRow {
  int32_t first;
  int32_t last;
  When when;
  BrowserKeyResult result;
};

constexpr KeyDownRow kKeysDown[] = {
    {kKeyUp, kKeyUp, When::kAlways, {BrowserAction::kRowUp, true}},
    {kKeyDown, kKeyDown, When::kAlways, {BrowserAction::kRowDown, true}},
    {kKeyPageUp, kKeyPageUp, When::kAlways, {BrowserAction::kPageUp, false}},
    {kKeyPageDown, kKeyPageDown, When::kAlways, {BrowserAction::kPageDown, false}},
    {kKeySpace, kKeySpace, When::kAlways, {BrowserAction::kPlay, false}},
    {kKeyJ, kKeyJ, When::kAlways, {BrowserAction::kJump, true}},
    {kKeyF1, kKeyF12, When::kAlways, {BrowserAction::kHotKey, true}},
    {kKeyQ, kKeyQ, When::kWithControl, {BrowserAction::kHalt, true}},
};

struct KeyPressRow {
  char character;
  char other;
  BrowserKeyResult result;
};

constexpr auto kEscapeCharacter = static_cast<char>(kKeyEscape);
constexpr auto kBackspaceCharacter = static_cast<char>(kKeyBackspace);

constexpr KeyPressRow kKeysPressed[] = {
    {kEscapeCharacter, kEscapeCharacter, {BrowserAction::kCancel, true}},
    {'T', 't', {BrowserAction::kNotes, false}},
    {'L', 'l', {BrowserAction::kCartLog, false}},
    {'F', 'f', {BrowserAction::kFind, false}},
    {'N', 'n', {BrowserAction::kFindNext, false}},
    {'B', 'b', {BrowserAction::kFindBack, false}},
};

}  // namespace

BrowserKeyResult BrowserKeyDown(int32_t code, bool control) {
  for (const KeyDownRow& row : kKeysDown) {
    if (code < row.first || code > row.last) continue;
    if (row.when == When::kAlways || control) return row.result;
  }
  return {};
}

BrowserKeyResult BrowserKeyPress(char character) {
  for (const KeyPressRow& row : kKeysPressed) {
    if (character == row.character || character == row.other) return row.result;
  }
  return {};
}

bool JumpBoxTakes(char character) {
  constexpr int32_t kDigits = 1;
  return character == kBackspaceCharacter || character == kEscapeCharacter ||
         IsTextOfKind(std::string_view(&character, 1), kDigits);
}

}  // namespace logchecker
