// The rows of the cart browser: how many there are, where they stand, what one shows. Lengths are
// twips.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "cartstore/AudioSettings.h"
#include "cartstore/CartRecord.h"

namespace logchecker {

inline constexpr int32_t kSingleRowHeight = 315;
inline constexpr int32_t kDoubleRowHeight = 630;
inline constexpr uint32_t kHighlightColour = 0x00C00000U;  // the button of the current row

// How many rows a frame of this height has, with cart `topOffset` + 1 on the first of them. The
// last one is cut off at the frame's edge: a frame with room for 10.3 rows has 11, and one with
// room for 10.7 has 12, since the part of a row is rounded after a whole one was added for it. This
// is meant. Never more rows than carts from there on.
int16_t CountRows(int32_t frameHeight, int32_t rowHeight, float topOffset);

// The greatest height of a frame, not above `room`, whose rows are all whole. A part of a row would
// bring rows that can't be seen, the current one among them.
int32_t HeightOfWholeRows(int32_t room, int32_t rowHeight);

// Where a row (from 1) stands in its frame.
struct RowPlace {
  int32_t Top = 0;
  int32_t Height = 0;
  int32_t ButtonLeft = 0;
  int32_t PanelLeft = 0;
  int32_t PanelWidth = 0;
};
RowPlace PlaceOfRow(int16_t row, int32_t rowHeight, int32_t buttonWidth, int32_t frameWidth);

// One row: a button with the number (`cmdCartNumber`), a panel with the description (`pnlCart`).
struct BrowserRow {
  bool Visible = false;
  std::string Tag;            // of both: the number of a cart that holds audio, else empty
  std::string ButtonCaption;  // the number
  uint32_t ButtonColour = kButtonFaceColour;
  int32_t BackColor = 0;  // of the panel; 0x00BBGGRR, or a system colour with the top bit set
  int32_t ForeColor = 0;
  std::string Caption;  // of the panel; plain text, lines ended by a line feed
  std::string Whole;    // the caption as it would be without an edge
  std::string Spoken;   // for those who can't see it: the number, and the cart's lines in full
};

// The longest head of a text that is drawn within a width.
using FitText = std::function<std::string(const std::string& text, int32_t maxWidth)>;

// What a panel of this width says of a cart: its description on one line, or with `onThreeLines`
// each of its lines on one of its own, cut to the panel.
std::string PanelCaption(const CartInfo& info, bool onThreeLines, int32_t panelWidth,
                         const FitText& fit);

// What is said of a cart: its number, and those of its lines that aren't blank, whole. That one is
// not in use or has no audio, which its colours tell to the eye, stands behind them.
std::string SpokenRow(const CartInfo& info, int32_t cartNumber);

// Reads the cart anew. A number outside the store gives a hidden row in the blank cart's colours.
BrowserRow ReadBrowserRow(int32_t cartNumber, bool onThreeLines, int32_t panelWidth,
                          const FitText& fit);

}  // namespace logchecker
