// A registry that holds nothing and takes nothing.
#pragma once

namespace logchecker {

// Puts one in the place of the system's for the rest of the run: what reads has its defaults, and
// what writes leaves no trace.
void UseNoRegistry();

}  // namespace logchecker
