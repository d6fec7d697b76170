// Sizes on the screen are given in twips; 15 of them are one logical pixel.
#pragma once

namespace logchecker {

inline constexpr int kTwipsPerPixel = 15;

// The nearest whole pixel.
constexpr int ToPixels(int twips) {
  return (twips >= 0 ? twips + kTwipsPerPixel / 2 : twips - kTwipsPerPixel / 2) / kTwipsPerPixel;
}
constexpr int ToTwips(int pixels) { return pixels * kTwipsPerPixel; }

}  // namespace logchecker
