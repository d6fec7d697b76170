#include "common/ui/ReportList.h"

#include <QTreeView>

#include "common/ui/CellDelegate.h"
#include "common/ui/CompactHeader.h"

namespace logchecker {

void SetUpReportList(QTreeView& list) {
  list.setHeader(new CompactHeader(&list));
  list.setItemDelegate(new CellDelegate(&list));
  list.setFont(CompactFont());
  list.setRootIsDecorated(false);
  list.setUniformRowHeights(true);
  list.setAllColumnsShowFocus(true);
  list.setAlternatingRowColors(true);
  list.setEditTriggers(QAbstractItemView::NoEditTriggers);
  list.setTabKeyNavigation(false);
  list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

}  // namespace logchecker
