#include "tests/support/ui/CancelDrag.h"

#include <QDrag>

#include "platform/windows/WindowsApi.h"

namespace logchecker {

// The system asks whether to go on whenever the pointer moves.
void CancelDrag() {
  QDrag::cancel();
  PostThreadMessageW(GetCurrentThreadId(), WM_MOUSEMOVE, 0, 0);
}

}  // namespace logchecker
