// The look of the program's report-style lists.
#pragma once

class QTreeView;

namespace logchecker {

// Rows of one line with cells close to their edges, headings in the same small font, and a scroll
// bar that is always there, since columns' widths leave room for it.
void SetUpReportList(QTreeView& list);

}  // namespace logchecker
