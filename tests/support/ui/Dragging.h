// A drag as by the hand, in a test whose hand is no device of the system.
#pragma once

namespace logchecker {

// Before the movement that begins a drag: the system waits for a movement of its own.
void MoveAlong();

// What is being dragged is let go of, as by Escape.
void CancelDrag();

}  // namespace logchecker
