// A cart's notes in a viewer of their own.
#pragma once

#include <QWidget>
#include <string>

namespace logchecker {

// Opens a new viewer on the file, above all other windows; it goes when it is closed. Does not wait
// for a modal one either: it holds back the other windows by itself.
void ShowNotesPreview(const std::string& file, QWidget* owner, bool modal);

}  // namespace logchecker
