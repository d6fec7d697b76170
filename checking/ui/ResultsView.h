// lvwResults as the user sees it.
#pragma once

#include <QTreeView>

#include "common/ListView.h"
#include "common/ui/ListViewModel.h"

namespace logchecker {

class ResultsView : public QTreeView {
  Q_OBJECT

 public:
  // `list` must outlive the view.
  explicit ResultsView(ListView& list, QWidget* parent = nullptr);

  // Takes over the list as it is, or what has been added to it, which is painted at once.
  void Refresh();
  void TakeAddedRows();

  // The key of the selected row, of several the one that was last gone to; empty without any.
  std::string KeyOfSelectedRow() const;

  // Gives all columns but the first even shares of what that one leaves. The first one takes its
  // width from the list unless it is to keep the one that it has. A width that the user gives a
  // column goes into the list.
  void ShareColumns(bool keepFirst);

 signals:
  // A single click in the list, or Enter in it.
  void rowChosen();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  ListView& list_;
  ListViewModel* model_;
  bool sharing_ = false;  // the widths are the list's, not the user's
};

}  // namespace logchecker
