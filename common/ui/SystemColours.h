// Colours as the system writes them.
#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace logchecker {

// 0x00BBGGRR, or with the top bit set the number of a colour of the desktop, which the palette
// gives. An unknown number is the window's text colour.
QColor ToQColor(int32_t colour, const QPalette& palette);

inline constexpr int32_t kWindowBackground = static_cast<int32_t>(0x80000005);
inline constexpr int32_t kWindowText = static_cast<int32_t>(0x80000008);
inline constexpr int32_t kHighlight = static_cast<int32_t>(0x8000000D);
inline constexpr int32_t kHighlightText = static_cast<int32_t>(0x8000000E);
inline constexpr int32_t kButtonFace = static_cast<int32_t>(0x8000000F);
inline constexpr int32_t kButtonText = static_cast<int32_t>(0x80000012);

// Gives a widget these two as its background and text.
void SetColours(QWidget& widget, int32_t background, int32_t text);

}  // namespace logchecker
