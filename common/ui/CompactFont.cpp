#include "common/ui/CompactFont.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <algorithm>

#include "common/ui/Twips.h"

namespace logchecker {

namespace {

constexpr int kTimeColumnWidth = 500;  // twips, of the narrowest column of times
constexpr int kTimeCellMargins = 5;    // pixels beside the time's text, the grid line included
constexpr int kSmallestFont = 9;       // pixels
constexpr int kRowMargins = 4;         // pixels above and below a row's text
constexpr double kLargestUsual = 15;   // pixels: eleven points at 96 dots an inch

}  // namespace

double TableScale() {
  return std::max(QFontInfo(QApplication::font()).pixelSize() / kLargestUsual, 1.0);
}

int TableTwips(int twips) { return qRound(twips * TableScale()); }

int GivenTwips(int screenTwips) { return qRound(screenTwips / TableScale()); }

QFont CompactFont() {
  QFont fitted = QApplication::font();
  int size = QFontInfo(fitted).pixelSize();
  const int room = ToPixels(TableTwips(kTimeColumnWidth)) - qRound(kTimeCellMargins * TableScale());
  do {
    fitted.setPixelSize(size);
  } while (QFontMetrics(fitted).horizontalAdvance("00:00") > room && --size >= kSmallestFont);
  return fitted;
}

int CompactRowHeight() { return QFontMetrics(CompactFont()).height() + kRowMargins; }

}  // namespace logchecker
