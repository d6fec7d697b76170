// The cells and headings of a table for those who can't see it.
#pragma once

#include <QAbstractItemView>
#include <QAccessibleInterface>

class QHeaderView;

namespace logchecker {

// The column twice: as the model counts, and among those on show.
QAccessibleInterface* MakeAccessibleCell(QAbstractItemView& view, int row, int column,
                                         int shownColumn);
QAccessibleInterface* MakeAccessibleHeading(QAbstractItemView& view, QHeaderView& header,
                                            int column);

}  // namespace logchecker
