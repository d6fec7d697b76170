#include "tests/support/ui/CancelDrag.h"

#include <QDrag>

namespace logchecker {

void CancelDrag() { QDrag::cancel(); }

}  // namespace logchecker
