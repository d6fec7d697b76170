// Draws the cells of a split's grid.
#pragma once

#include "common/ui/CellDelegate.h"
#include "splitlogs/LogGrid.h"

namespace logchecker {

// A selection that stands in for a break that is not there is hollow: its rows are as they are
// unselected, with a broken line around all of them.
class LogCellDelegate final : public CellDelegate {
  Q_OBJECT

 public:
  // `grid` must outlive the delegate.
  LogCellDelegate(const LogGrid& grid, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  void DrawBorder(QPainter* painter, const QStyleOptionViewItem& option,
                  const QModelIndex& index) const;

  const LogGrid& grid_;
};

}  // namespace logchecker
