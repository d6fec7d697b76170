// What the dialogs' text boxes have in common.
#pragma once

class QComboBox;
class QLineEdit;

namespace logchecker {

// Selects the whole text of the box.
void SelectAllText(QLineEdit& textBox);

// From now on the box selects its whole text when it gets the focus: not where it only gets it
// back, from a menu that closes or with the window that comes to the front again, since the user is
// in the midst of typing there.
void SelectAllOnFocus(QLineEdit& textBox);
// The same for a box with a list, which must be editable.
void SelectAllOnFocus(QComboBox& box);
// The same for the first so many characters.
void SelectHeadOnFocus(QLineEdit& textBox, int characters);

// From now on each character typed into the box becomes an upper-case one.
void TypeInUpperCase(QLineEdit& textBox);

// From now on digits alone can be typed into the box; other text can still be pasted.
void TypeDigitsOnly(QLineEdit& textBox);

// From now on the box takes no character that the station's code page can't hold, since it would be
// lost on its way to the file.
void TakeStationTextOnly(QLineEdit& textBox);

}  // namespace logchecker
