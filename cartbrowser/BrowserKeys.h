// What the keys of the cart browser do. The window sees keys before its controls do.
#pragma once

#include <cstdint>

namespace logchecker {

enum class BrowserAction {
  kNone,
  kRowUp,
  kRowDown,
  kPageUp,
  kPageDown,
  kJump,
  kPlay,     // a hook, which does nothing here
  kHotKey,   // a hook, which does nothing here
  kHalt,     // a hook, which does nothing here
  kCartLog,  // a hook, which does nothing here
  kCancel,
  kNotes,
  kFind,
  kFindNext,
  kFindBack
};

struct BrowserKeyResult {
  BrowserAction action = BrowserAction::kNone;
  bool swallowed = false;  // the control with the focus does not get it

  bool operator==(const BrowserKeyResult& other) const = default;
};

// A key goes down: its code (see KeyCodes.h), and whether Ctrl is held.
BrowserKeyResult BrowserKeyDown(int32_t code, bool control);

// A character is typed.
BrowserKeyResult BrowserKeyPress(char character);

// Whether the box with the number takes a typed character: digits, backspace and Escape.
bool JumpBoxTakes(char character);

// The search that a key or button asks for.
struct FindRequest {
  int32_t startCart = 0;
  bool modal = false;
};

}  // namespace logchecker
