// Sizes on the screen are given in twips; 15 of them are one logical pixel.
#pragma once

#include <QMouseEvent>

namespace logchecker {

inline constexpr int kTwipsPerPixel = 15;

// The nearest whole pixel.
constexpr int ToPixels(int twips) {
  return (twips >= 0 ? twips + kTwipsPerPixel / 2 : twips - kTwipsPerPixel / 2) / kTwipsPerPixel;
}
constexpr int ToTwips(int pixels) { return pixels * kTwipsPerPixel; }

// Where the pointer is in the widget.
inline float XInTwips(const QMouseEvent& event) {
  return static_cast<float>(event.position().x() * kTwipsPerPixel);
}
inline float YInTwips(const QMouseEvent& event) {
  return static_cast<float>(event.position().y() * kTwipsPerPixel);
}

}  // namespace logchecker
