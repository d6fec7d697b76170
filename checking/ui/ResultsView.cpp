#include "checking/ui/ResultsView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include "common/Numbers.h"
#include "common/ui/ReportList.h"
#include "common/ui/Twips.h"

namespace logchecker {

namespace {

// What the frame and the scroll bar take of the list's width, in twips.
constexpr int kFrameWidth = 90;
constexpr int kScrollBarWidth = 255;

}  // namespace

ResultsView::ResultsView(ListView& list, QWidget* parent)
    : QTreeView(parent), list_(list), model_(new ListViewModel(list, this)) {
  SetUpReportList(*this);
  setModel(model_);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  connect(header(), &QHeaderView::sectionResized, this, [this](int column, int /*old*/, int width) {
    if (!sharing_) list_.ColumnHeaders[static_cast<size_t>(column)].width = ToTwips(width);
  });
}

void ResultsView::Refresh() { model_->Refresh(); }

void ResultsView::TakeAddedRows() {
  model_->TakeAddedRows();
  viewport()->repaint();
}

std::string ResultsView::KeyOfSelectedRow() const {
  const QModelIndexList selected = selectionModel()->selectedRows();
  if (selected.isEmpty()) return "";
  // A view that gets the focus can have a current row that nobody selected.
  const int current = currentIndex().row();
  const bool isSelected = selectionModel()->isRowSelected(current, {});
  const auto row = static_cast<size_t>(isSelected ? current : selected.constFirst().row());
  return row < list_.ListItems.size() ? list_.ListItems[row].key : "";
}

void ResultsView::ShareColumns(bool keepFirst) {
  const int columns = model_->columnCount();
  if (columns < 1) return;
  const QScopedValueRollback<bool> sharing(sharing_, true);
  if (!keepFirst) setColumnWidth(0, ToPixels(list_.ColumnHeaders.front().width));
  if (columns < 2) return;
  const int left =
      ToTwips(width()) - kFrameWidth - kScrollBarWidth - list_.ColumnHeaders.front().width;
  const int32_t share = ToInt32(static_cast<double>(left) / (columns - 1));
  for (int column = 1; column < columns; ++column) {
    list_.ColumnHeaders[static_cast<size_t>(column)].width = share;
    setColumnWidth(column, std::max(share / kTwipsPerPixel, 1));
  }
}

void ResultsView::mouseReleaseEvent(QMouseEvent* event) {
  QTreeView::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) emit rowChosen();
}

void ResultsView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    emit rowChosen();
    return;
  }
  // The toolkit makes the first row the current one, unselected, when the list gets the focus; the
  // first arrow selects that row and does not go past it.
  const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (arrow && event->modifiers() == Qt::NoModifier && currentIndex().row() == 0 &&
      !selectionModel()->hasSelection()) {
    selectionModel()->clearCurrentIndex();
  }
  QTreeView::keyPressEvent(event);
}

void ResultsView::selectionChanged(const QItemSelection& selected,
                                   const QItemSelection& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  const auto mark = [this](const QItemSelection& ranges, bool on) {
    for (const QItemSelectionRange& range : ranges) {
      for (int row = range.top(); row <= range.bottom(); ++row) {
        const auto index = static_cast<size_t>(row);
        if (index < list_.ListItems.size()) list_.ListItems[index].Selected = on;
      }
    }
  };
  mark(deselected, false);
  mark(selected, true);
}

}  // namespace logchecker
