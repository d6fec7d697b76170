// The rows of the cart browser for those who can't see them: a list of carts, the current one
// marked. One can be made current, and one can be taken.
#pragma once

#include <QWidget>

namespace logchecker {

// From then on the frame of the rows is such a list. Called as it is made.
void UseAccessibleCartRows();

// The row is where the user is now, although the keys go to the box with the number: as with any
// box that has a list to pick from. `before` is the row where the user was; either may be null.
void TellCartRow(QWidget* row, QWidget* before);
void TellFocus(QWidget& control);

}  // namespace logchecker
