// The least width of a window whose controls stand in a layout.
#pragma once

class QWidget;

namespace logchecker {

// In pixels, with the margins. A minimum that the window itself had would take the place of what
// its texts need, and a larger text would be cut off.
void HoldLeastWidth(QWidget& window, int width);

}  // namespace logchecker
