#include "notes/ui/NoteBox.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>

#include "common/ui/SystemColours.h"
#include "notes/ui/NoteDocument.h"
#include "notes/ui/NoteFormats.h"

namespace logchecker {

namespace {

constexpr int kTwipsPerInch = 1440;

// Leaves what lies between the two positions.
void KeepOnly(QTextDocument& document, int begin, int end) {
  QTextCursor cursor(&document);
  cursor.setPosition(end);
  cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  const QTextBlockFormat first = document.findBlock(begin).blockFormat();
  cursor.setPosition(0);
  cursor.setPosition(begin, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  cursor.setBlockFormat(first);
}

// The line that stands for a page's end on the screen has the page's end on paper.
void TakePageBreakLinesOff(QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    QTextBlockFormat format = block.blockFormat();
    if (!format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth)) continue;
    format.clearProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
    QTextCursor(block).setBlockFormat(format);
  }
}

// A picture that is larger than the page is made as large as the page.
void FitPictures(QTextDocument& document, const QSizeF& page) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    const double room = page.width() - block.blockFormat().leftMargin();
    for (const QTextLayout::FormatRange& range : block.textFormats()) {
      QTextImageFormat picture = range.format.toImageFormat();
      if (!picture.isValid()) continue;
      const QSizeF size(picture.width(), picture.height());
      const QSizeF fitting = size.scaled({room, page.height()}, Qt::KeepAspectRatio);
      if (fitting.width() >= size.width()) continue;
      picture.setWidth(fitting.width());
      picture.setHeight(fitting.height());
      QTextCursor cursor(&document);
      cursor.setPosition(block.position() + range.start);
      cursor.setPosition(block.position() + range.start + range.length, QTextCursor::KeepAnchor);
      cursor.setCharFormat(picture);
    }
  }
}

// What the desktop lays out as for the screen is drawn as large as the paper's resolution asks for.
void DrawPages(const QTextDocument& document, QPrinter& paper) {
  // A line on the edge would be on this page and the next.
  constexpr double kEdge = 0.5;
  const QSizeF page = document.pageSize();
  QPainter painter(&paper);
  const double scale = paper.resolution() / NotePixels(kTwipsPerInch);
  painter.scale(scale, scale);
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  for (int number = 0; number < document.pageCount(); ++number) {
    if (number > 0) {
      paper.newPage();
      painter.translate(0, -page.height());
    }
    context.clip = QRectF(0, number * page.height(), page.width(), page.height() - kEdge);
    painter.setClipRect(context.clip);
    document.documentLayout()->draw(&painter, context);
  }
}

}  // namespace

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

void NoteBox::PrintNote(QPrinter& paper, bool selectionOnly) const {
  const std::unique_ptr<QTextDocument> printed(document()->clone());
  printed->setUndoRedoEnabled(false);
  printed->setDefaultFont(QFont("Courier"));
  printed->setDocumentMargin(0);
  printed->setUseDesignMetrics(true);
  const QTextCursor cursor = textCursor();
  if (selectionOnly && cursor.hasSelection()) {
    KeepOnly(*printed, cursor.selectionStart(), cursor.selectionEnd());
  }
  const QSizeF page =
      paper.pageRect(QPrinter::DevicePixel).size() / paper.resolution() * NotePixels(kTwipsPerInch);
  TakePageBreakLinesOff(*printed);
  FitPictures(*printed, page);
  DivideNoteBlocks(*printed, page.width());
  printed->setPageSize(page);
  DrawPages(*printed, paper);
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
