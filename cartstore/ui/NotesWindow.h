// Shows the beginning of a cart's notes as plain text.
#pragma once

#include <QWidget>
#include <string>

namespace logchecker {

// On top of all other windows; it goes when it is closed. Rich text shows with its control words.
void ShowPlainNotes(const std::string& file, QWidget* owner, bool modal);

}  // namespace logchecker
