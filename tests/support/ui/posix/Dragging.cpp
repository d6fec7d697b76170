#include "tests/support/ui/Dragging.h"

#include <QDrag>

namespace logchecker {

void MoveAlong() {}

void CancelDrag() { QDrag::cancel(); }

}  // namespace logchecker
