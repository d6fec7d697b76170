// The formats of rich text as the desktop's.
#pragma once

#include <QTextBlockFormat>
#include <QTextCharFormat>

#include "notes/RichText.h"

namespace logchecker {

// What the desktop lays text out in; on paper as many to the inch as on the screen.
double NotePixels(int32_t twips);

// `spaceAbove` is that of the paragraph before, in twips, which adds up with its own. `tabDistance`
// is that between the stops behind its own, in twips.
QTextBlockFormat NoteBlockFormat(const TextParagraph& paragraph, int32_t spaceAbove,
                                 int32_t tabDistance);
QTextCharFormat NoteCharFormat(const TextFormat& run);

// A paragraph too long to be laid out as one goes on in a block with this format.
QTextBlockFormat NoteContinuation(const QTextBlockFormat& format);
bool IsNoteContinuation(const QTextBlockFormat& format);

}  // namespace logchecker
