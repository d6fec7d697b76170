// Station text at the window's edge.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace logchecker {

QString ToQString(std::string_view stationText);

// False when the code page can't hold a character; it stands as "?" in the result then.
bool FromQString(const QString& text, std::string* stationText);
// The same for text that goes nowhere but to the screen, or that has been checked.
std::string FromQString(const QString& text);

// Text from outside as a caption: no letter of it becomes an access key.
QString AsMenuText(const QString& text);
// And as a window's title: no part of it is taken for the mark of a changed document.
QString AsTitle(const QString& text);
// And as a tool tip: never as markup, with its line breaks.
QString AsToolTip(const QString& text);

}  // namespace logchecker
