// A note as a document of the desktop.
#pragma once

#include <QTextDocument>
#include <memory>

#include "notes/RichText.h"

namespace logchecker {

// Lines longer than this, in characters, are laid out in blocks of at most as many.
inline constexpr int kLongestBlock = 2000;

// `rich` is whether its formats are to be seen. Whatever the text holds, nothing of it is taken for
// markup. `cut` becomes true where a picture had no room.
std::unique_ptr<QTextDocument> MakeNoteDocument(const RichTextDocument& note, bool rich, bool* cut);

// Puts the blocks of a long line together again.
void JoinNoteBlocks(QTextDocument& document);

// Puts them together and divides them where lines of this width end, in pixels, so that it can't be
// seen on paper that they are several.
void DivideNoteBlocks(QTextDocument& document, double width);

}  // namespace logchecker
