#include "notes/ui/NoteBox.h"

#include <QMimeData>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <optional>

#include "common/ui/SystemColours.h"
#include "notes/ui/NoteDocument.h"
#include "notes/ui/NoteFormats.h"
#include "notes/ui/PrintNote.h"

namespace logchecker {

NoteBox::NoteBox(QWidget* parent) : QTextEdit(parent) {}

bool NoteBox::ShowNote(const RichTextDocument& note, bool rich) {
  // A colour of the text was chosen for white paper.
  SetColours(*this, rich ? 0xFFFFFF : kWindowBackground, rich ? 0x000000 : kWindowText);
  bool cut = note.isCut;
  // Text that is put into a document on the screen is laid out at once, all of it.
  QTextDocument* document = MakeNoteDocument(note, rich, &cut).release();
  document->setParent(this);
  document->setDefaultFont(font());
  setDocument(document);
  delete shown_;
  shown_ = document;
  return !cut;
}

void NoteBox::PrintNote(QPrinter& printer, const QString& name, bool selectionOnly) const {
  const QTextCursor cursor = textCursor();
  std::optional<NotePart> part;
  if (selectionOnly && cursor.hasSelection()) {
    part = NotePart{cursor.selectionStart(), cursor.selectionEnd()};
  }
  logchecker::PrintNote(*document(), part, printer, name);
}

QMimeData* NoteBox::createMimeDataFromSelection() const {
  const QTextCursor cursor = textCursor();
  const QTextBlock last = document()->findBlock(cursor.selectionEnd());
  QTextBlock block = document()->findBlock(cursor.selectionStart());
  const auto hasContinuation = [&] {
    while (block != last) {
      block = block.next();
      if (IsNoteContinuation(block.blockFormat())) return true;
    }
    return false;
  };
  if (!hasContinuation()) return QTextEdit::createMimeDataFromSelection();
  QTextDocument copied;
  copied.setUndoRedoEnabled(false);
  QTextCursor(&copied).insertFragment(cursor.selection());
  JoinNoteBlocks(copied);
  const QTextDocumentFragment fragment(&copied);
  auto* mime = new QMimeData;
  mime->setText(fragment.toPlainText());
  mime->setHtml(fragment.toHtml());
  return mime;
}

}  // namespace logchecker
