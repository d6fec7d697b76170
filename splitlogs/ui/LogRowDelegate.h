// Draws the cells of a log: close to the grid's lines, since the columns are narrow, and with a
// cell's own colour even where it is selected.
#pragma once

#include <QStyledItemDelegate>

namespace logchecker {

class LogRowDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace logchecker
