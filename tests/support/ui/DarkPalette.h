// The colours of a dark desktop.
#pragma once

#include <QPalette>

namespace logchecker {

inline QPalette DarkPalette() {
  QPalette dark;
  dark.setColor(QPalette::Window, QColor(45, 48, 52));
  dark.setColor(QPalette::WindowText, QColor(225, 228, 232));
  dark.setColor(QPalette::Base, QColor(30, 32, 35));
  dark.setColor(QPalette::AlternateBase, QColor(38, 41, 45));
  dark.setColor(QPalette::Text, QColor(225, 228, 232));
  dark.setColor(QPalette::Button, QColor(58, 62, 67));
  dark.setColor(QPalette::ButtonText, QColor(225, 228, 232));
  dark.setColor(QPalette::Highlight, QColor(61, 121, 181));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  dark.setColor(QPalette::Mid, QColor(70, 74, 80));
  dark.setColor(QPalette::PlaceholderText, QColor(140, 145, 150));
  dark.setColor(QPalette::Disabled, QPalette::Text, QColor(120, 125, 130));
  dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(120, 125, 130));
  dark.setColor(QPalette::Disabled, QPalette::WindowText, QColor(120, 125, 130));
  return dark;
}

}  // namespace logchecker
