// The text box of a note.
#pragma once

#include <QTextEdit>

#include "notes/RichText.h"

class QPrinter;

namespace logchecker {

class NoteBox : public QTextEdit {
  Q_OBJECT

 public:
  explicit NoteBox(QWidget* parent = nullptr);

  // Shows a note, with its formats where it is rich text. False where not all of it has room.
  bool ShowNote(const RichTextDocument& note, bool rich);

  // Prints the note, or what is selected of it, as one job of this name. Throws PrintError.
  void PrintNote(QPrinter& printer, const QString& name, bool selectionOnly) const;

 protected:
  QMimeData* createMimeDataFromSelection() const override;

 private:
  QTextDocument* shown_ = nullptr;
};

}  // namespace logchecker
