// The title bars of child windows, where the toolkit draws them by colours that can't be read.
#pragma once

class QStyle;

namespace logchecker {

// The program's own style but for the title bars of child windows: their buttons and words stand
// out from the bar in dark colours too, and from any colour that the desktop has for what is
// selected. One for all windows, for as long as the program runs.
QStyle* ReadableTitleBars();

}  // namespace logchecker
