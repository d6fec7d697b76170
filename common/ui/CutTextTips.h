// Texts that are cut off at their control's edge.
#pragma once

#include <QString>
#include <QWidget>

namespace logchecker {

// The text of a box of one line, or of a label of one line, that does not fit into it; empty where
// all of it is seen.
QString CutText(const QWidget* widget);

// From here on each of them tells its whole text to a pointer that rests on it, unless it has a
// tool tip of its own.
void HoldCutTextTips();

}  // namespace logchecker
