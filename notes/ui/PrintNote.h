// A note on paper.
#pragma once

#include <QString>

class QPrinter;
class QTextDocumentFragment;

namespace logchecker {

// Prints the text on the printer that the user picked, as one job of this name. Where the text has
// no font of its own it has the printer's. Throws PrintError.
void PrintNote(const QTextDocumentFragment& text, QPrinter& printer, const QString& name);

}  // namespace logchecker
