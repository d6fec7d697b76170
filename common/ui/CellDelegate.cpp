#include "common/ui/CellDelegate.h"

#include <QApplication>
#include <QPainter>

#include "common/ui/Twips.h"

namespace logchecker {

namespace {

constexpr int kMargin = 2;       // pixels beside the text
constexpr int kMarkerWidth = 3;  // of the bar that shows the selection in a coloured cell

constexpr int kTimeColumnWidth = 500;  // twips, of the narrowest column of times
constexpr int kTimeCellMargins = 5;    // pixels beside the time's text, the grid line included
constexpr int kSmallestFont = 9;       // pixels
constexpr int kRowMargins = 4;         // pixels above and below a row's text

}  // namespace

QFont CompactFont() {
  QFont fitted = QApplication::font();
  int size = QFontInfo(fitted).pixelSize();
  const int room = ToPixels(kTimeColumnWidth) - kTimeCellMargins;
  do {
    fitted.setPixelSize(size);
  } while (QFontMetrics(fitted).horizontalAdvance("00:00") > room && --size >= kSmallestFont);
  return fitted;
}

int CompactRowHeight() { return QFontMetrics(CompactFont()).height() + kRowMargins; }

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return {QStyledItemDelegate::sizeHint(option, index).width(), CompactRowHeight()};
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const bool selected = cell.state.testFlag(QStyle::State_Selected);
  const QVariant own = index.data(Qt::BackgroundRole);
  const QPalette::ColorGroup group =
      cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  QColor text = cell.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
  painter->save();
  if (own.isValid()) {
    painter->fillRect(cell.rect, own.value<QColor>());
    text = index.data(Qt::ForegroundRole).value<QColor>();
    if (selected) {
      painter->fillRect(QRect(cell.rect.topLeft(), QSize(kMarkerWidth, cell.rect.height())),
                        cell.palette.color(group, QPalette::Highlight));
    }
  } else if (selected) {
    painter->fillRect(cell.rect, cell.palette.color(group, QPalette::Highlight));
  }
  painter->setPen(text);
  painter->setFont(cell.font);
  const QRect inner = cell.rect.adjusted(kMargin, 0, -kMargin, 0);
  // A file pads its texts, and blanks at the end are nothing that could be cut off.
  QString words = cell.text;
  while (words.endsWith(' ')) words.chop(1);
  const QString shown =
      cell.fontMetrics.elidedText(words.replace('\n', ' '), Qt::ElideRight, inner.width() + 1);
  painter->drawText(inner, static_cast<int>(cell.displayAlignment) | Qt::TextSingleLine, shown);
  painter->restore();
}

}  // namespace logchecker
