#include "notes/ui/PrintNote.h"

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>

#include "notes/ui/NoteDocument.h"
#include "notes/ui/NoteFormats.h"
#include "printing/ui/PrintJob.h"

namespace logchecker {

namespace {

constexpr int kInch = 1440;  // twips

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

// Where the system has no font of this name, any whose characters are of one width stands for it.
QFont PrinterFont() {
  QFont font("Courier");
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  return font;
}

// The note laid out for pages of this size, in note pixels.
std::unique_ptr<QTextDocument> PagesOf(const QTextDocument& note,
                                       const std::optional<NotePart>& part, const QSizeF& page) {
  std::unique_ptr<QTextDocument> printed(note.clone());
  printed->setUndoRedoEnabled(false);
  printed->setDefaultFont(PrinterFont());
  printed->setDocumentMargin(0);
  printed->setUseDesignMetrics(true);
  if (part) KeepOnly(*printed, part->begin, part->end);
  TakePageBreakLinesOff(*printed);
  FitPictures(*printed, page);
  DivideNoteBlocks(*printed, page.width());
  printed->setPageSize(page);
  return printed;
}

// What the desktop lays out as for the screen is drawn as large as the paper's resolution asks for.
void DrawPage(QPainter& painter, const QTextDocument& document, int number) {
  // A line on the edge would be on this page and the next.
  constexpr double kEdge = 0.5;
  const QSizeF page = document.pageSize();
  const double scale = painter.device()->logicalDpiX() / NotePixels(kInch);
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  context.clip = QRectF(0, number * page.height(), page.width(), page.height() - kEdge);
  painter.save();
  painter.scale(scale, scale);
  painter.translate(0, -number * page.height());
  painter.setClipRect(context.clip);
  document.documentLayout()->draw(&painter, context);
  painter.restore();
}

}  // namespace

void PrintNote(const QTextDocument& note, const std::optional<NotePart>& part, QPrinter& printer,
               const QString& name) {
  PrintJob job(printer, name);
  const QSizeF page =
      printer.pageRect(QPrinter::DevicePixel).size() / printer.resolution() * NotePixels(kInch);
  const std::unique_ptr<QTextDocument> pages = PagesOf(note, part, page);
  job.Send({pages->pageCount(),
            [&pages](QPainter& painter, int number) { DrawPage(painter, *pages, number); }});
}

}  // namespace logchecker
