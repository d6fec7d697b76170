#include "tests/support/ui/Dragging.h"

#include <QDrag>

#include "platform/windows/WindowsApi.h"

namespace logchecker {

void MoveAlong() { PostMessageW(GetFocus(), WM_MOUSEMOVE, MK_LBUTTON, 0); }

// The system asks whether to go on whenever the pointer moves.
void CancelDrag() {
  QDrag::cancel();
  PostThreadMessageW(GetCurrentThreadId(), WM_MOUSEMOVE, 0, 0);
}

}  // namespace logchecker
