#include "cartbrowser/ui/FoundCartsView.h"

#include <QDrag>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <algorithm>

#include "cartbrowser/ui/FoundCartsModel.h"
#include "common/ui/Guard.h"
#include "common/ui/Icons.h"
#include "common/ui/ReportList.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"

namespace logchecker {

namespace {

constexpr int kAddedDelay = 50;  // milliseconds

float XInTwips(const QMouseEvent& event) {
  return static_cast<float>(event.position().x() * kTwipsPerPixel);
}
float YInTwips(const QMouseEvent& event) {
  return static_cast<float>(event.position().y() * kTwipsPerPixel);
}

}  // namespace

FoundCartsView::FoundCartsView(QWidget* parent) : QTreeView(parent) {
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
  const auto headers = FoundColumnHeaders(listWidth);
  for (size_t column = 0; column < headers.size(); ++column) {
    if (headers[column].width == 0) continue;
    setColumnWidth(static_cast<int>(column), std::max(ToPixels(headers[column].width), 1));
  }
}

void FoundCartsView::ShowResults() {
  added_.stop();
  // What the user has just selected is shown as it is.
  if (following_) return;
  const QScopedValueRollback<bool> following(following_, true);
  model_->Refresh();
  ShowSortMark();
  ShowSelection();
}

void FoundCartsView::RowAdded() {
  if (!added_.isActive()) added_.start(kAddedDelay);
}

void FoundCartsView::ShowAddedRows() {
  if (!added_.isActive() && model_->rowCount() == static_cast<int>(search_->results().Count())) {
    return;
  }
  added_.stop();
  const QScopedValueRollback<bool> following(following_, true);
  if (!search_->results().SortedColumn()) {
    model_->TakeAddedRows();
    return;
  }
  model_->Refresh();
  ShowSelection();
}

void FoundCartsView::ShowSelection() {
  const std::optional<size_t> row = search_->results().SelectedRow();
  if (!row) {
    selectionModel()->clear();
    return;
  }
  const QModelIndex index = model_->index(static_cast<int>(*row), kFoundNumber);
  selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  scrollTo(index);
}

void FoundCartsView::ShowSortMark() {
  const std::optional<FoundColumn> column = search_->results().SortedColumn();
  header()->setSortIndicatorShown(column.has_value());
  if (!column) return;
  header()->setSortIndicator(
      *column, search_->results().Descending() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void FoundCartsView::selectionChanged(const QItemSelection& selected,
                                      const QItemSelection& deselected) {
  QTreeView::selectionChanged(selected, deselected);
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
