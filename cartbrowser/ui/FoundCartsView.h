// lviewItems as the user sees it.
#pragma once

#include <QTimer>
#include <QTreeView>
#include <string>
#include <vector>

#include "cartbrowser/FindCart.h"
#include "common/ui/AccessibleTable.h"

namespace logchecker {

class FoundCartsModel;

class FoundCartsView : public QTreeView, public RowChooser {
  Q_OBJECT

 public:
  explicit FoundCartsView(QWidget* parent = nullptr);

  // The search whose results it shows, and whom it tells what the user does; it must outlive the
  // view. Called once.
  void SetSearch(FindCart& search);

  // Takes over the results as they are. Rows that were added, each told of with its place, are
  // taken in a moment, many at a time; ShowAddedRows takes them at once.
  void ShowResults();
  void RowAdded(size_t row);
  void ShowAddedRows();

  // Gives the columns their widths for a list of this width in twips; they are the user's from then
  // on.
  void SetColumnWidths(int listWidth);

  void MakeRowCurrent(int row) override;
  void ChooseRow(int row) override;

  // The number of the cart that was last dragged.
  std::string Tag;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  bool ShowSelection();
  void TakeSortedRows();
  void ShowSortMark();
  void BeginDrag();

  FindCart* search_ = nullptr;
  FoundCartsModel* model_ = nullptr;
  QTimer added_;
  std::vector<size_t> addedRows_;  // since rows were last taken
  bool following_ = false;         // the selection is the search's, not the user's
};

}  // namespace logchecker
