// Beginning again in one process.
#pragma once

namespace logchecker {

// Closes the station and forgets all that was read of it and told about it, so that the next check
// begins as one in a process of its own would.
void BeginAfresh();

}  // namespace logchecker
