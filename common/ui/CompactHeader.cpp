#include "common/ui/CompactHeader.h"

#include <QPainter>

#include "common/ui/CellDelegate.h"

namespace logchecker {

namespace {

constexpr int kMargin = 2;  // pixels beside the text

}  // namespace

CompactHeader::CompactHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setFont(CompactFont());
  setSectionsClickable(false);
  setSectionsMovable(false);
  setHighlightSections(false);
  setMinimumSectionSize(1);
  setStretchLastSection(false);
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
  const QRect inner = rect.adjusted(kMargin, 0, -kMargin, 0);
  painter->setPen(palette().color(QPalette::ButtonText));
  painter->drawText(inner, static_cast<int>(aligned.value<Qt::Alignment>()) | Qt::TextSingleLine,
                    fontMetrics().elidedText(text, Qt::ElideRight, inner.width() + 1));
  painter->restore();
}

}  // namespace logchecker
