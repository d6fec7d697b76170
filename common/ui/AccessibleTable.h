// A list or a grid for those who can't see it: a table of the columns that are on show. A cell can
// make its row the current one, and can choose it as a click does.
//
// The toolkit's own tables also tell the columns that are hidden, call a cell of each grid the one
// with the focus, and know no choosing.
#pragma once

#include <QAbstractItemView>

namespace logchecker {

// A view whose rows can be chosen. It hands its changes on by the two calls below.
class RowChooser {
 public:
  virtual ~RowChooser() = default;

  // Both by row of the model. Neither is called for a row that is not there.
  virtual void MakeRowCurrent(int row) = 0;
  // As a click on it, or as a double click where that is what chooses.
  virtual void ChooseRow(int row) = 0;
};

// From then on views that are RowChoosers have such tables. Called by each of them as it is made.
void UseAccessibleTables();

// In the place of the base's own, which would tell of hidden columns: the rest of what
// QTableView and QTreeView do for a change, and word of it to those who listen.
void TellCurrentChanged(QAbstractItemView& view, const QModelIndex& current);
void TellSelectionChanged(QAbstractItemView& view, const QItemSelection& selected,
                          const QItemSelection& deselected);

}  // namespace logchecker
