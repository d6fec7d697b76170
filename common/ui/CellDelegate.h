// Draws the cells of tables whose columns are narrow: close to their edges, and with a cell's own
// colour even where it is selected.
#pragma once

#include <QStyledItemDelegate>

namespace logchecker {

// What is left free on each side of a cell's text, in pixels: less in a narrower face.
int CellMargin(const QFontMetrics& metrics);

// A cell with a true value of this role is set off from the others by a frame, and by a tint unless
// it is selected.
inline constexpr int kSetOffRole = Qt::UserRole + 1;

class CellDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  // The whole of a text that is cut, where the cell has no tool tip of its own.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace logchecker
