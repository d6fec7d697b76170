#include "cartbrowser/ui/FoundCartsView.h"

#include <QDrag>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "cartbrowser/ui/FoundCartsModel.h"
#include "common/ui/CompactFont.h"
#include "common/ui/Guard.h"
#include "common/ui/Icons.h"
#include "common/ui/ReportList.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"

namespace logchecker {

namespace {

constexpr int kAddedDelay = 50;  // milliseconds

}  // namespace

FoundCartsView::FoundCartsView(QWidget* parent) : QTreeView(parent) {
  UseAccessibleTables();
  SetUpReportList(*this);
  setSelectionMode(QAbstractItemView::SingleSelection);
  header()->setSectionsClickable(true);
  added_.setSingleShot(true);
  connect(&added_, &QTimer::timeout, this, [this] { ShowAddedRows(); });
}

void FoundCartsView::SetSearch(FindCart& search) {
  search_ = &search;
  model_ = new FoundCartsModel(search.results(), this);
  setModel(model_);
  setColumnHidden(kFoundSortNumber, true);
  connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
    Guarded([&] { search_->ClickHeader(static_cast<FoundColumn>(section)); });
  });
}

void FoundCartsView::SetColumnWidths(int listWidth) {
  const auto headers = FoundColumnHeaders(GivenTwips(listWidth));
  for (size_t column = 0; column < headers.size(); ++column) {
    if (headers[column].width == 0) continue;
    setColumnWidth(static_cast<int>(column),
                   std::max(ToPixels(TableTwips(headers[column].width)), 1));
  }
}

void FoundCartsView::ShowResults() {
  // What the user has just selected is shown as it is.
  if (following_) return;
  added_.stop();
  addedRows_.clear();
  const QScopedValueRollback<bool> following(following_, true);
  model_->Refresh();
  ShowSortMark();
  if (ShowSelection()) scrollTo(currentIndex());
}

void FoundCartsView::RowAdded(size_t row) {
  addedRows_.push_back(row);
  if (!added_.isActive()) added_.start(kAddedDelay);
}

void FoundCartsView::ShowAddedRows() {
  if (!added_.isActive() && model_->rowCount() == static_cast<int>(search_->results().Count())) {
    return;
  }
  added_.stop();
  const QScopedValueRollback<bool> following(following_, true);
  if (search_->results().SortedColumn()) {
    TakeSortedRows();
  } else {
    model_->TakeAddedRows();
  }
  addedRows_.clear();
}

// Rows come in anywhere. Where the user has scrolled to, the same rows stay on show.
void FoundCartsView::TakeSortedRows() {
  const auto shown = static_cast<size_t>(std::max(indexAt(QPoint()).row(), 0));
  const int left = horizontalScrollBar()->value();
  size_t top = shown;
  for (const size_t row : addedRows_) top += row <= top ? 1 : 0;
  model_->Refresh();
  ShowSelection();
  executeDelayedItemsLayout();
  const int head = shown == 0 ? 0 : static_cast<int>(top);
  scrollTo(model_->index(head, kFoundNumber), PositionAtTop);
  horizontalScrollBar()->setValue(left);
}

// False when nothing is selected.
bool FoundCartsView::ShowSelection() {
  const std::optional<size_t> row = search_->results().SelectedRow();
  if (!row) {
    selectionModel()->clear();
    return false;
  }
  const QModelIndex index = model_->index(static_cast<int>(*row), kFoundNumber);
  selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  return true;
}

void FoundCartsView::ShowSortMark() {
  const std::optional<FoundColumn> column = search_->results().SortedColumn();
  header()->setSortIndicatorShown(column.has_value());
  if (!column) return;
  header()->setSortIndicator(
      *column, search_->results().Descending() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void FoundCartsView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
  TellCurrentChanged(*this, current);
}

void FoundCartsView::MakeRowCurrent(int row) {
  ShowAddedRows();
  setCurrentIndex(model_->index(row, kFoundNumber));
}

void FoundCartsView::ChooseRow(int row) {
  MakeRowCurrent(row);
  search_->Choose();
}

void FoundCartsView::selectionChanged(const QItemSelection& selected,
                                      const QItemSelection& deselected) {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): the base's own tells of hidden columns
  QAbstractItemView::selectionChanged(selected, deselected);
  TellSelectionChanged(*this, selected, deselected);
  if (following_ || search_ == nullptr) return;
  const QScopedValueRollback<bool> following(following_, true);
  const QModelIndexList rows = selectionModel()->selectedRows(kFoundNumber);
  Guarded([&] {
    if (rows.isEmpty()) {
      search_->SelectRow(std::nullopt);
    } else {
      search_->SelectRow(static_cast<size_t>(rows.front().row()));
    }
  });
}

// A row is taken by its place, so what the user does with one waits for no rows.
void FoundCartsView::mousePressEvent(QMouseEvent* event) {
  ShowAddedRows();
  QTreeView::mousePressEvent(event);
  search_->MouseDown(event->button() == Qt::LeftButton, XInTwips(*event), YInTwips(*event));
}

void FoundCartsView::mouseMoveEvent(QMouseEvent* event) {
  const bool held = event->buttons().testFlag(Qt::LeftButton);
  const auto tag = search_->MouseMove(held, XInTwips(*event), YInTwips(*event));
  if (!tag) {
    // The row that is held stays the selected one, wherever the pointer goes from there.
    if (!held) QTreeView::mouseMoveEvent(event);
    return;
  }
  Tag = *tag;
  BeginDrag();
}

void FoundCartsView::BeginDrag() {
  auto* carried = new QMimeData;
  carried->setText(ToQString(Tag));
  auto* drag = new QDrag(this);
  drag->setMimeData(carried);
  constexpr int kIconSize = 32;
  drag->setPixmap(IconNamed("cart").pixmap(kIconSize));
  drag->exec(Qt::CopyAction);
  setState(NoState);
}

void FoundCartsView::mouseReleaseEvent(QMouseEvent* event) {
  search_->MouseUp();
  QTreeView::mouseReleaseEvent(event);
}

void FoundCartsView::mouseDoubleClickEvent(QMouseEvent* event) {
  ShowAddedRows();
  QTreeView::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) Guarded([this] { search_->Choose(); });
}

void FoundCartsView::keyPressEvent(QKeyEvent* event) {
  ShowAddedRows();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    Guarded([this] { search_->Choose(); });
    return;
  }
  QTreeView::keyPressEvent(event);
}

void FoundCartsView::focusInEvent(QFocusEvent* event) {
  QTreeView::focusInEvent(event);
  if (search_ != nullptr) search_->ListFocusChanged(true);
}

void FoundCartsView::focusOutEvent(QFocusEvent* event) {
  QTreeView::focusOutEvent(event);
  if (search_ != nullptr) search_->ListFocusChanged(false);
}

}  // namespace logchecker
