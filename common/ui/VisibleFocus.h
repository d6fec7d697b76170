// Where the keys go is seen at any time.
#pragma once

namespace logchecker {

// From here on the control that has the focus shows it, however it came by it: the toolkit would
// show it after some keys alone, in a list not at all, and in a button that is lit no further. A
// list gets a line around it, and a button one inside.
void HoldVisibleFocus();

}  // namespace logchecker
