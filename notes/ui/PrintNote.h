// A note on paper.
#pragma once

#include <QString>
#include <optional>

class QPrinter;
class QTextDocument;

namespace logchecker {

// Positions in a note's document, the end behind the last character.
struct NotePart {
  int begin = 0;
  int end = 0;
};

// Prints the note, or a part of it, on the printer that the user picked, as one job of this name
// and as large as the note says. Where the text has no font of its own it has the printer's. Throws
// PrintError.
void PrintNote(const QTextDocument& note, const std::optional<NotePart>& part, QPrinter& printer,
               const QString& name);

}  // namespace logchecker
