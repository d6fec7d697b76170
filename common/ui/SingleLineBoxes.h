// Boxes of one line.
#pragma once

#include <QString>

namespace logchecker {

// Whether a text holds a line break, a tab or another control character, which no single line has.
bool HasControlCharacters(const QString& text);

// From now on no box of one line in the program takes a control character from the user: what is
// typed, pasted, dropped or given by an input method loses them. A text that the program itself
// puts into a box stays as it is. Needs the application object; once is enough.
void KeepBoxesToOneLine();

}  // namespace logchecker
