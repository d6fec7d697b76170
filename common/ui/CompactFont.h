// The font of the tables whose columns have widths given in twips, and those widths in that font.
#pragma once

#include <QFont>

namespace logchecker {

// The program's own font, made smaller until a time of day fits its column.
QFont CompactFont();
// What a row of that font takes, in pixels.
int CompactRowHeight();

// The widths are as given up to the sizes of text that desktops come with. For a larger text they
// grow with it: this many times, at least once.
double TableScale();
int TableTwips(int twips);        // what a given width takes on the screen
int GivenTwips(int screenTwips);  // and back

}  // namespace logchecker
