#include "common/ui/SystemColours.h"

#include <QApplication>
#include <QWidget>
#include <iterator>

namespace logchecker {

namespace {

// By number, from the scroll bar's colour to that of the menu bar.
constexpr QPalette::ColorRole kRoles[] = {
    QPalette::Mid,              // 0 scroll bar
    QPalette::Dark,             // 1 desktop
    QPalette::Highlight,        // 2 active caption
    QPalette::Mid,              // 3 inactive caption
    QPalette::Window,           // 4 menu
    QPalette::Base,             // 5 window background
    QPalette::WindowText,       // 6 window frame
    QPalette::WindowText,       // 7 menu text
    QPalette::Text,             // 8 window text
    QPalette::HighlightedText,  // 9 caption text
    QPalette::Mid,              // 10 active border
    QPalette::Mid,              // 11 inactive border
    QPalette::Dark,             // 12 application workspace
    QPalette::Highlight,        // 13 highlight
    QPalette::HighlightedText,  // 14 highlight text
    QPalette::Button,           // 15 button face
    QPalette::Dark,             // 16 button shadow
    QPalette::PlaceholderText,  // 17 disabled text
    QPalette::ButtonText,       // 18 button text
    QPalette::WindowText,       // 19 inactive caption text
    QPalette::Light,            // 20 button highlight
    QPalette::Shadow,           // 21 dark shadow
    QPalette::Midlight,         // 22 light
    QPalette::ToolTipText,      // 23 tool tip text
    QPalette::ToolTipBase,      // 24 tool tip background
    QPalette::AlternateBase,    // 25 alternate button face
    QPalette::Link,             // 26 link
    QPalette::Highlight,        // 27 end of the active caption
    QPalette::Mid,              // 28 end of the inactive caption
    QPalette::Highlight,        // 29 chosen menu entry
    QPalette::Window,           // 30 menu bar
};

}  // namespace

QColor ToQColor(int32_t colour, const QPalette& palette) {
  const auto bits = static_cast<uint32_t>(colour);
  if ((bits & 0x80000000U) == 0) {
    return QColor(static_cast<int>(bits & 0xFFU), static_cast<int>(bits >> 8U & 0xFFU),
                  static_cast<int>(bits >> 16U & 0xFFU));
  }
  const uint32_t number = bits & 0xFFU;
  const bool known = number < std::size(kRoles);
  return palette.color(known ? kRoles[number] : QPalette::WindowText);
}

void SetColours(QWidget& widget, int32_t background, int32_t text) {
  const QPalette desktop = QApplication::palette(&widget);
  QPalette palette = widget.palette();
  const QColor back = ToQColor(background, desktop);
  const QColor fore = ToQColor(text, desktop);
  for (const auto role : {QPalette::Window, QPalette::Base}) palette.setColor(role, back);
  for (const auto role : {QPalette::WindowText, QPalette::Text}) palette.setColor(role, fore);
  widget.setPalette(palette);
  widget.setAutoFillBackground(true);
}

}  // namespace logchecker
