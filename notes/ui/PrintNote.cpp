#include "notes/ui/PrintNote.h"

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include "printing/ui/PrintJob.h"

namespace logchecker {

namespace {

// Where the system has no font of this name, any whose characters are of one width stands for it.
QFont PrinterFont() {
  QFont font("Courier");
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  return font;
}

void DrawPage(QPainter& painter, QTextDocument& document, int page) {
  const QSizeF size = document.pageSize();
  const QRectF part(0, page * size.height(), size.width(), size.height());
  painter.save();
  painter.translate(-part.topLeft());
  QAbstractTextDocumentLayout::PaintContext context;
  context.clip = part;
  context.palette.setColor(QPalette::Text, Qt::black);
  painter.setClipRect(part);
  document.documentLayout()->draw(&painter, context);
  painter.restore();
}

}  // namespace

void PrintNote(const QTextDocumentFragment& text, QPrinter& printer, const QString& name) {
  PrintJob job(printer, name);
  QTextDocument document;
  document.setDefaultFont(PrinterFont());
  QTextCursor(&document).insertFragment(text);
  document.documentLayout()->setPaintDevice(&printer);
  document.setPageSize(printer.pageRect(QPrinter::DevicePixel).size());
  job.Send({document.pageCount(),
            [&document](QPainter& painter, int page) { DrawPage(painter, document, page); }});
}

}  // namespace logchecker
