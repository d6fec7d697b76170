// What makes a program one of the system's own desktop.
#pragma once

namespace logchecker {

// Before the application is made. `id` is the name under which the desktop keeps the program's
// windows together.
void JoinDesktop(const char* id);

// Once it is made: its colours are those of the system's theme, light or dark, also when that
// changes.
void FollowTheme();

}  // namespace logchecker
