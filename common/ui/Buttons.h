// What the program's buttons have in common, whatever the desktop's theme.
#pragma once

namespace logchecker {

// From now on Return presses a tool button that has the focus, as it does any other button of a
// dialog, and the access key of a tick box turns it at once, so that the key behind it finds it
// turned. Needs the application object; once is enough.
void HoldButtonRules();

}  // namespace logchecker
