#include "common/ui/CellDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "common/ui/CompactFont.h"
#include "common/ui/Contrast.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"

namespace logchecker {

namespace {

constexpr int kMarkerWidth = 3;  // of the bar that shows the selection in a coloured cell

// Of a cell that is set off, on a light and on a dark background.
constexpr QRgb kTintOnLight = qRgb(255, 232, 178);
constexpr QRgb kFrameOnLight = qRgb(138, 84, 0);
constexpr QRgb kTintOnDark = qRgb(84, 60, 12);
constexpr QRgb kFrameOnDark = qRgb(255, 200, 100);
constexpr int kMiddleLightness = 128;

// Inside the cell by the width of its line, so that the frames of neighbours stay apart.
void DrawFrame(QPainter& painter, const QRect& cell, const QColor& colour) {
  painter.setPen(colour);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(cell.adjusted(0, 0, -2, -1));
}

void SetOff(QPainter& painter, const QStyleOptionViewItem& cell, const QColor& selectedText) {
  if (cell.state.testFlag(QStyle::State_Selected)) {
    DrawFrame(painter, cell.rect, selectedText);
    return;
  }
  const bool dark = cell.palette.color(QPalette::Base).lightness() < kMiddleLightness;
  painter.fillRect(cell.rect.adjusted(0, 0, -1, 0), QColor(dark ? kTintOnDark : kTintOnLight));
  DrawFrame(painter, cell.rect, QColor(dark ? kFrameOnDark : kFrameOnLight));
}

// A file pads its texts, and blanks at the end are nothing that could be cut off; those in front go
// only where the text would not fit otherwise.
QString ShownText(const QStyleOptionViewItem& cell, int room) {
  QString words = cell.text;
  while (words.endsWith(' ')) words.chop(1);
  words.replace('\n', ' ');
  if (cell.fontMetrics.horizontalAdvance(words) > room) words = words.trimmed();
  return cell.fontMetrics.elidedText(words, Qt::ElideRight, room);
}

}  // namespace

int CellMargin(const QFontMetrics& metrics) {
  constexpr int kCharactersPart = 3;
  return qMax((metrics.averageCharWidth() + 1) / kCharactersPart, 1);
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return {QStyledItemDelegate::sizeHint(option, index).width(), CompactRowHeight()};
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const int room = cell.rect.width() - 2 * CellMargin(cell.fontMetrics) + 1;
  const QString whole = cell.text.trimmed();
  if (event->type() != QEvent::ToolTip || index.data(Qt::ToolTipRole).isValid() ||
      cell.fontMetrics.horizontalAdvance(whole) <= room) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  QToolTip::showText(event->globalPos(), AsToolTip(whole), view->viewport(), cell.rect);
  return true;
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const bool selected = cell.state.testFlag(QStyle::State_Selected);
  const QVariant own = index.data(Qt::BackgroundRole);
  const QPalette::ColorGroup group =
      cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  const QColor selectedText = cell.palette.color(group, QPalette::HighlightedText);
  const QColor highlight =
      ReadableUnder(selectedText, cell.palette.color(group, QPalette::Highlight));
  QColor text = selected ? selectedText : cell.palette.color(group, QPalette::Text);
  painter->save();
  if (own.isValid()) {
    const QColor background = own.value<QColor>();
    text = index.data(Qt::ForegroundRole).value<QColor>();
    painter->fillRect(cell.rect, background);
    if (selected) {
      painter->fillRect(QRect(cell.rect.topLeft(), QSize(kMarkerWidth, cell.rect.height())),
                        SeenOn(background, highlight, text));
    }
  } else if (selected) {
    painter->fillRect(cell.rect, highlight);
  }
  if (index.data(kSetOffRole).toBool()) SetOff(*painter, cell, text);
  painter->setPen(text);
  painter->setFont(cell.font);
  const int margin = CellMargin(cell.fontMetrics);
  const QRect inner = cell.rect.adjusted(margin, 0, -margin, 0);
  painter->drawText(inner, static_cast<int>(cell.displayAlignment) | Qt::TextSingleLine,
                    ShownText(cell, inner.width() + 1));
  painter->restore();
}

}  // namespace logchecker
