// Colour values of carts: 0x00BBGGRR, or with the top bit set the number of a system colour.
#pragma once

#include <cstdint>

namespace logchecker {

// The numbers of system colours that carts and controls are given. Others exist, up to 30.
enum class SystemColour : uint8_t {
  kScrollBar = 0,
  kDesktop = 1,
  kActiveTitle = 2,
  kInactiveTitle = 3,
  kMenu = 4,
  kWindow = 5,
  kWindowFrame = 6,
  kMenuText = 7,
  kWindowText = 8,
  kTitleText = 9,
  kActiveBorder = 10,
  kInactiveBorder = 11,
  kWorkspace = 12,
  kHighlight = 13,
  kHighlightText = 14,
  kButtonFace = 15,
  kButtonShadow = 16,
  kGreyText = 17,
  kButtonText = 18,
  kInactiveTitleText = 19,
  kButtonHighlight = 20,
  kDarkShadow = 21,
  kLight = 22,
  kInfoText = 23,
  kInfo = 24,
};

constexpr bool IsSystemColour(uint32_t colour) { return (colour & 0x80000000U) != 0; }

// Which one; only where IsSystemColour.
constexpr SystemColour SystemColourOf(uint32_t colour) {
  return static_cast<SystemColour>(colour & 0xFFU);
}

struct Rgb {
  uint8_t red = 0;
  uint8_t green = 0;
  uint8_t blue = 0;

  constexpr bool operator==(const Rgb& other) const = default;
};

// Of a colour that is not the system's. Bits above the three parts don't count.
constexpr Rgb RgbOf(uint32_t colour) {
  return {static_cast<uint8_t>(colour & 0xFFU), static_cast<uint8_t>(colour >> 8U & 0xFFU),
          static_cast<uint8_t>(colour >> 16U & 0xFFU)};
}

}  // namespace logchecker
