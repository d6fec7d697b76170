// What is being dragged is let go of, as by Escape.
#pragma once

namespace logchecker {

void CancelDrag();

}  // namespace logchecker
