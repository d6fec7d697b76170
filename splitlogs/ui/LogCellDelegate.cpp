#include "splitlogs/ui/LogCellDelegate.h"

#include <QPainter>
#include <algorithm>

#include "common/ui/Contrast.h"

namespace logchecker {

namespace {

constexpr int kLineWidth = 2;  // pixels
constexpr int kLastSeenColumn = kLengthColumn;

}  // namespace

LogCellDelegate::LogCellDelegate(const LogGrid& grid, QObject* parent)
    : CellDelegate(parent), grid_(grid) {}

void LogCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  const bool hollow = grid_.MissedTime() && option.state.testFlag(QStyle::State_Selected);
  if (!hollow) {
    CellDelegate::paint(painter, option, index);
    return;
  }
  QStyleOptionViewItem plain = option;
  plain.state.setFlag(QStyle::State_Selected, false);
  // The view has filled the row already.
  painter->fillRect(option.rect, option.palette.color(QPalette::Active, QPalette::Base));
  CellDelegate::paint(painter, plain, index);
  DrawBorder(painter, option, index);
}

// Each cell draws its share of the border around the block.
void LogCellDelegate::DrawBorder(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  const auto [first, last] = std::minmax({grid_.Row(), grid_.SelectionEndRow()});
  const int32_t row = index.row() + 1;
  const QRect& cell = option.rect;
  painter->save();
  const QVariant own = index.data(Qt::BackgroundRole);
  QColor line = option.palette.color(QPalette::Active, QPalette::Highlight);
  if (own.isValid()) {
    line = SeenOn(own.value<QColor>(), line, index.data(Qt::ForegroundRole).value<QColor>());
  }
  QPen pen(line, kLineWidth, Qt::DashLine);
  pen.setCapStyle(Qt::FlatCap);
  painter->setPen(pen);
  if (row == std::max(first, 1))
    painter->drawLine(cell.left(), cell.top() + 1, cell.right() + 1, cell.top() + 1);
  if (row == last) painter->drawLine(cell.left(), cell.bottom(), cell.right() + 1, cell.bottom());
  // Thinner at the sides, where the texts begin and end.
  pen.setWidth(1);
  painter->setPen(pen);
  if (index.column() == kTimeColumn) painter->drawLine(cell.topLeft(), cell.bottomLeft());
  if (index.column() == kLastSeenColumn) painter->drawLine(cell.topRight(), cell.bottomRight());
  painter->restore();
}

}  // namespace logchecker
