#include "notes/ui/RichTextView.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextEdit>

#include "common/ui/SystemColours.h"
#include "common/ui/Twips.h"
#include "notes/RichText.h"

namespace logchecker {

namespace {

constexpr int kWidestIndent = 14400;  // twips; a wider one would push the text out of the window
constexpr double kHalfPoints = 2;

Qt::Alignment AlignmentOf(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::kRight:
      return Qt::AlignRight;
    case TextAlignment::kCentre:
      return Qt::AlignHCenter;
    case TextAlignment::kJustified:
      return Qt::AlignJustify;
    case TextAlignment::kLeft:
      break;
  }
  return Qt::AlignLeft;
}

QTextBlockFormat FormatOf(const TextParagraph& paragraph) {
  const auto indent = [](int32_t twips) {
    return ToPixels(qBound(-kWidestIndent, twips, kWidestIndent));
  };
  QTextBlockFormat format;
  format.setAlignment(AlignmentOf(paragraph.alignment));
  format.setLeftMargin(qMax(indent(paragraph.leftIndent), 0));
  format.setRightMargin(qMax(indent(paragraph.rightIndent), 0));
  format.setTextIndent(indent(paragraph.firstLineIndent));
  return format;
}

QTextCharFormat FormatOf(const TextRun& run) {
  QTextCharFormat format;
  if (!run.fontName.empty()) format.setFontFamilies({QString::fromStdString(run.fontName)});
  format.setFontPointSize(run.halfPoints / kHalfPoints);
  format.setFontWeight(run.bold ? QFont::Bold : QFont::Normal);
  format.setFontItalic(run.italic);
  format.setFontUnderline(run.underline);
  if (run.colour != kAutomaticColour) format.setForeground(ToQColor(run.colour, {}));
  return format;
}

void AddParagraph(QTextCursor& cursor, const TextParagraph& paragraph, bool rich) {
  cursor.setBlockFormat(FormatOf(paragraph));
  for (const TextRun& run : paragraph.runs) {
    QString text = QString::fromStdString(run.text);
    text.replace('\n', QChar::LineSeparator);
    cursor.insertText(text, rich ? FormatOf(run) : QTextCharFormat());
  }
}

}  // namespace

void ShowTextFile(QTextEdit& box, std::string_view bytes) {
  const RichTextDocument document = ReadRichText(bytes);
  const bool rich = IsRichText(bytes);
  box.clear();
  // A colour of the text was chosen for white paper.
  SetColours(box, rich ? 0xFFFFFF : kWindowBackground, rich ? 0x000000 : kWindowText);
  QTextCursor cursor(box.document());
  cursor.beginEditBlock();
  for (size_t i = 0; i < document.paragraphs.size(); ++i) {
    if (i > 0) cursor.insertBlock();
    AddParagraph(cursor, document.paragraphs[i], rich);
  }
  cursor.endEditBlock();
}

}  // namespace logchecker
