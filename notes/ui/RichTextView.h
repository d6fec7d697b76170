// Rich text in a text box of the desktop.
#pragma once

#include <string_view>

class QTextEdit;

namespace logchecker {

// Shows the bytes of a file, as rich text where they are that and as plain text otherwise. Whatever
// they hold, nothing of it is taken for markup of the desktop's own.
void ShowTextFile(QTextEdit& box, std::string_view bytes);

}  // namespace logchecker
