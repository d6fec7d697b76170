#include "splitlogs/ui/LogGridView.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "common/ui/CellDelegate.h"
#include "common/ui/CompactFont.h"
#include "common/ui/CompactHeader.h"
#include "common/ui/Guard.h"
#include "common/ui/StationQString.h"
#include "common/ui/TextSizeWatch.h"
#include "common/ui/Twips.h"
#include "splitlogs/LogWords.h"
#include "splitlogs/ui/LogCellDelegate.h"

namespace logchecker {

namespace {

// What the frame and the scroll bar take of the grid's width, in twips.
constexpr int kFrameWidth = 90;
constexpr int kScrollBarWidth = 225;

constexpr int kLeastCharacters = 8;  // of a description, in a large text
constexpr char kKeys[] =
    "Keys: Enter lines all splits up on the break, F8 and Shift+F8 go to the next and the previous "
    "mismatch, F6 to the toolbar";

}  // namespace

LogGridView::LogGridView(LogGrid& grid, QWidget* parent)
    : QTableView(parent), grid_(grid), model_(new LogGridModel(grid, this)) {
  UseAccessibleTables();
  setHorizontalHeader(new CompactHeader(this));
  setModel(model_);
  setItemDelegate(new LogCellDelegate(grid, this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ContiguousSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  FitFont();
  Describe();
  WhenTextSizeChanges(*this, [this] { FitFont(); });
  grid_.SetObserver(this);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
          [this](int value) { OnScrolled(value); });
}

LogGridView::~LogGridView() { grid_.SetObserver(nullptr); }

void LogGridView::SetUpColumns() {
  for (int column = 0; column < kLogColumns; ++column) {
    const int32_t width = kLogColumnHeaders[static_cast<size_t>(column)].width;
    setColumnHidden(column, width == 0);
    if (width > 0) setColumnWidth(column, ToPixels(TableTwips(width)));
  }
}

void LogGridView::FillDescriptionColumn() {
  int others = 0;
  for (int column = 0; column < kLogColumns; ++column) {
    if (column != kDescriptionColumn) others += ToTwips(columnWidth(column));
  }
  const int filled = ToTwips(width()) - kFrameWidth - kScrollBarWidth - others;
  // Beside columns that a large text has made wider, the window's own least width leaves nothing.
  const int least = TableScale() > 1 ? kLeastCharacters * fontMetrics().averageCharWidth() : 1;
  setColumnWidth(kDescriptionColumn, std::max(filled / kTwipsPerPixel, least));
}

void LogGridView::FitFont() {
  const QFont fitted = CompactFont();
  setFont(fitted);
  horizontalHeader()->setFont(fitted);
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(CompactRowHeight());
  SetUpColumns();
  FillDescriptionColumn();
}

void LogGridView::GridChanged() {
  {
    const QScopedValueRollback<bool> following(following_, true);
    model_->Refresh();
  }
  SelectionChanged();
}

void LogGridView::SelectionChanged() {
  const QScopedValueRollback<bool> following(following_, true);
  const int rows = model_->rowCount();
  const QItemSelectionModel::SelectionFlags replace = QItemSelectionModel::ClearAndSelect;
  const int current = grid_.Row() - 1;
  if (current >= 0 && current < rows) {
    selectionModel()->setCurrentIndex(model_->index(current, kDescriptionColumn),
                                      QItemSelectionModel::NoUpdate);
  } else {
    selectionModel()->clearCurrentIndex();
  }
  // The header can be in the grid's selection; what the view shows of it begins below.
  const int first = std::max(std::min(grid_.Row(), grid_.SelectionEndRow()) - 1, 0);
  const int last = std::min(std::max(grid_.Row(), grid_.SelectionEndRow()) - 1, rows - 1);
  if (first <= last) {
    selectionModel()->select(
        QItemSelection(model_->index(first, 0), model_->index(last, kLogColumns - 1)), replace);
  } else {
    selectionModel()->clearSelection();
  }
  verticalScrollBar()->setValue(std::max(grid_.TopRow() - 1, 0));
  ShowMiss();
}

// A selection that is the same as before can have become one that stands in for another break.
void LogGridView::ShowMiss() {
  const QString words = ToQString(MissInWords(grid_));
  if (words == miss_) return;
  miss_ = words;
  Describe();
  viewport()->update();
}

void LogGridView::Describe() {
  setAccessibleDescription((miss_.isEmpty() ? QString() : miss_ + ". ") + kKeys);
}

bool LogGridView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip && grid_.MissedTime()) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    if (index.isValid() && selectionModel()->isSelected(index)) {
      QToolTip::showText(help->globalPos(), AsToolTip(miss_), viewport());
      return true;
    }
  }
  return QTableView::viewportEvent(event);
}

void LogGridView::OnScrolled(int value) {
  if (following_) return;
  Guarded([&] {
    const QScopedValueRollback<bool> following(following_, true);
    if (value + 1 < grid_.Rows()) grid_.SetTopRow(value + 1);
  });
}

void LogGridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
  TellCurrentChanged(*this, current);
  if (following_ || !current.isValid()) return;
  Guarded([&] {
    const QScopedValueRollback<bool> following(following_, true);
    if (current.row() + 1 < grid_.Rows()) grid_.SetRow(current.row() + 1);
  });
}

void LogGridView::selectionChanged(const QItemSelection& selected,
                                   const QItemSelection& deselected) {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): the base's own tells of hidden columns
  QAbstractItemView::selectionChanged(selected, deselected);
  TellSelectionChanged(*this, selected, deselected);
}

void LogGridView::MakeRowCurrent(int row) {
  setCurrentIndex(model_->index(row, kDescriptionColumn));
}

void LogGridView::ChooseRow(int row) {
  MakeRowCurrent(row);
  emit breakChosen();
}

void LogGridView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    emit breakChosen();
    return;
  }
  QTableView::keyPressEvent(event);
}

// The base would make a row the current one with any button.
void LogGridView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = true;
  QTableView::mousePressEvent(event);
}

// The base would take each row that a drag comes over for the current one, while the click is on
// the row that was pressed.
void LogGridView::mouseMoveEvent(QMouseEvent* /*event*/) {}

void LogGridView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !pressed_) return;
  pressed_ = false;
  QTableView::mouseReleaseEvent(event);
  emit breakChosen();
}

// The first click has put another row under the pointer, and the second press is not meant for it.
void LogGridView::mouseDoubleClickEvent(QMouseEvent* /*event*/) {}

// Any row can be the top one, the last break's too, so that all the splits line up.
void LogGridView::updateGeometries() {
  // The base shortens the range, which is no scrolling of the user's.
  const QScopedValueRollback<bool> following(following_, true);
  QTableView::updateGeometries();
  verticalScrollBar()->setMaximum(std::max(model_->rowCount() - 1, 0));
  verticalScrollBar()->setValue(std::max(grid_.TopRow() - 1, 0));
}

}  // namespace logchecker
