#include "common/ui/CompactHeader.h"

#include <QPainter>

#include "common/ui/CellDelegate.h"
#include "common/ui/CompactFont.h"

namespace logchecker {

namespace {

int WidestOf(const QStringList& lines, const QFontMetrics& metrics) {
  int widest = 0;
  for (const QString& line : lines) widest = qMax(widest, metrics.horizontalAdvance(line));
  return widest;
}

// Broken at the blank that leaves the narrowest lines; whole without one.
QStringList InTwoLines(const QString& heading, const QFontMetrics& metrics) {
  QStringList best{heading};
  for (qsizetype at = heading.indexOf(' '); at >= 0; at = heading.indexOf(' ', at + 1)) {
    const QStringList lines{heading.left(at), heading.mid(at + 1)};
    if (WidestOf(lines, metrics) < WidestOf(best, metrics)) best = lines;
  }
  return best;
}

}  // namespace

CompactHeader::CompactHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setFont(CompactFont());
  setSectionsClickable(false);
  setSectionsMovable(false);
  setHighlightSections(false);
  setMinimumSectionSize(1);
  setStretchLastSection(false);
}

QStringList CompactHeader::LinesOf(const QString& heading, const QFontMetrics& metrics,
                                   int width) const {
  if (!twoLines_ || metrics.horizontalAdvance(heading) <= width) return {heading};
  return InTwoLines(heading, metrics);
}

int CompactHeader::WidthFor(const QString& heading, const QFontMetrics& metrics) const {
  return WidestOf(LinesOf(heading, metrics, 0), metrics) + 2 * CellMargin(metrics);
}

// The toolkit makes all headings as high as the highest.
QSize CompactHeader::sectionSizeFromContents(int logicalIndex) const {
  QSize size = QHeaderView::sectionSizeFromContents(logicalIndex);
  const QFontMetrics metrics = fontMetrics();
  const QString heading = model()->headerData(logicalIndex, orientation()).toString();
  const int room = sectionSize(logicalIndex) - 2 * CellMargin(metrics) + 1;
  const qsizetype further = LinesOf(heading, metrics, room).size() - 1;
  size.rheight() += static_cast<int>(further) * metrics.lineSpacing();
  return size;
}

void CompactHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
  QStyleOptionHeader section;
  initStyleOption(&section);
  section.rect = rect;
  section.section = logicalIndex;
  painter->save();
  style()->drawControl(QStyle::CE_HeaderSection, &section, painter, this);
  const QVariant aligned = model()->headerData(logicalIndex, orientation(), Qt::TextAlignmentRole);
  const QString text = model()->headerData(logicalIndex, orientation()).toString();
  const QFontMetrics metrics = fontMetrics();
  const int margin = CellMargin(metrics);
  const QRect inner = rect.adjusted(margin, 0, -margin, 0);
  QStringList lines = LinesOf(text, metrics, inner.width() + 1);
  const auto alignment = static_cast<int>(aligned.value<Qt::Alignment>());
  const int flags = lines.size() == 1 ? alignment | Qt::TextSingleLine : alignment;
  for (QString& line : lines) line = metrics.elidedText(line, Qt::ElideRight, inner.width() + 1);
  painter->setPen(palette().color(QPalette::ButtonText));
  painter->drawText(inner, flags, lines.join('\n'));
  painter->restore();
}

}  // namespace logchecker
