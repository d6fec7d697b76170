#include "common/ui/ReportList.h"

#include <QHeaderView>
#include <QTreeView>

#include "common/ui/CellDelegate.h"
#include "common/ui/CompactFont.h"
#include "common/ui/CompactHeader.h"
#include "common/ui/TextSizeWatch.h"

namespace logchecker {

void SetUpReportList(QTreeView& list) {
  list.setHeader(new CompactHeader(&list));
  list.setItemDelegate(new CellDelegate(&list));
  const auto fit = [&list] {
    list.setFont(CompactFont());
    list.header()->setFont(CompactFont());
  };
  fit();
  WhenTextSizeChanges(list, fit);
  list.setRootIsDecorated(false);
  list.setUniformRowHeights(true);
  list.setAllColumnsShowFocus(true);
  list.setAlternatingRowColors(true);
  list.setEditTriggers(QAbstractItemView::NoEditTriggers);
  list.setTabKeyNavigation(false);
  list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

}  // namespace logchecker
