#include "notes/ui/NoteDocument.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QUrl>

#include "notes/ui/NoteFormats.h"
#include "notes/ui/NotePictures.h"

namespace logchecker {

namespace {

constexpr int kShortestBlock = kLongestBlock / 2;

// How much of the text, from `begin`, goes into a block of `room` characters: up to its last blank,
// and never half of a character.
qsizetype LengthOfPart(const QString& text, qsizetype begin, qsizetype room) {
  if (text.size() - begin <= room) return text.size() - begin;
  // A block that ends with a line's end would show an empty line behind it.
  const auto isBlank = [&](qsizetype place) {
    return text[place].isSpace() && text[place] != QChar::LineSeparator;
  };
  const auto isInside = [&](qsizetype place) {
    return text[place].isLowSurrogate() || text[place].isMark() ||
           text[place - 1] == QChar::LineSeparator;
  };
  const qsizetype shortest = begin + qMax<qsizetype>(room - kShortestBlock, 1);
  for (qsizetype end = begin + room; end >= shortest; --end) {
    if (isBlank(end - 1)) return end - begin;
  }
  qsizetype end = begin + room;
  while (end > begin && isInside(end)) --end;
  return end > begin ? end - begin : room;
}

class NoteWriter {
 public:
  NoteWriter(QTextDocument& document, const RichTextDocument& note, bool rich)
      : cursor_(&document), document_(document), note_(note), rich_(rich) {}

  void Write() {
    cursor_.beginEditBlock();
    int32_t spaceAbove = 0;
    bool first = true;
    for (const TextParagraph& paragraph : note_.paragraphs) {
      if (rich_ && paragraph.pageBreakBefore && !first) DrawPageBreak();
      if (!first) cursor_.insertBlock();
      first = false;
      format_ =
          rich_ ? NoteBlockFormat(paragraph, spaceAbove, note_.tabDistance) : QTextBlockFormat();
      cursor_.setBlockFormat(format_);
      room_ = kLongestBlock;
      for (const TextRun& run : paragraph.runs) WriteRun(run);
      spaceAbove = paragraph.spaceAfter;
    }
    cursor_.endEditBlock();
  }

  bool IsCut() const { return pictures_.IsCut(); }

 private:
  void DrawPageBreak() {
    QTextBlockFormat format = cursor_.blockFormat();
    format.setProperty(QTextFormat::BlockTrailingHorizontalRulerWidth,
                       QTextLength(QTextLength::PercentageLength, 100));
    cursor_.setBlockFormat(format);
  }

  void WriteRun(const TextRun& run) {
    const QTextCharFormat format = rich_ ? NoteCharFormat(run) : QTextCharFormat();
    if (run.picture >= 0) {
      WritePicture(run.picture, format);
      return;
    }
    QString text = QString::fromStdString(run.text);
    text.replace('\n', QChar::LineSeparator);
    // The mark that ends a paragraph of the desktop's.
    text.replace(QChar::ParagraphSeparator, QChar::LineSeparator);
    for (qsizetype begin = 0; begin < text.size();) {
      if (room_ == 0) Continue();
      const qsizetype length = LengthOfPart(text, begin, room_);
      cursor_.insertText(text.mid(begin, length), format);
      begin += length;
      room_ = begin < text.size() ? 0 : room_ - length;
    }
  }

  void Continue() {
    cursor_.insertBlock(NoteContinuation(format_));
    room_ = kLongestBlock;
  }

  void WritePicture(int32_t number, const QTextCharFormat& format) {
    const TextPicture& picture = note_.pictures[static_cast<size_t>(number)];
    const QImage image = pictures_.Decode(picture);
    if (image.isNull()) return;
    const QString name = "picture:" + QString::number(number);
    document_.addResource(QTextDocument::ImageResource, QUrl(name), image);
    QTextImageFormat shown;
    shown.merge(format);
    shown.setName(name);
    const QSizeF size = NotePictureSize(picture, image);
    shown.setWidth(size.width());
    shown.setHeight(size.height());
    cursor_.insertImage(shown);
  }

  QTextCursor cursor_;
  QTextDocument& document_;
  const RichTextDocument& note_;
  bool rich_;
  NotePictures pictures_;
  QTextBlockFormat format_;  // of the paragraph's first block
  qsizetype room_ = 0;       // characters that the block still takes
};

// Makes one of the block and the one before it.
void JoinToPrevious(QTextDocument& document, const QTextBlock& block) {
  const QTextBlockFormat format = block.previous().blockFormat();
  QTextCursor cursor(&document);
  cursor.setPosition(block.position());
  cursor.deletePreviousChar();
  cursor.setBlockFormat(format);
}

// Where the block's last line begins, in characters; 0 where it has one line.
int BeginOfLastLine(const QTextDocument& document, const QTextBlock& block, double width) {
  const QTextBlockFormat format = block.blockFormat();
  QTextOption option = document.defaultTextOption();
  option.setUseDesignMetrics(document.useDesignMetrics());
  option.setTabs(format.tabPositions());
  QTextLayout layout(block.text(), document.defaultFont());
  layout.setFormats(block.textFormats());
  layout.setTextOption(option);
  layout.beginLayout();
  const double room = width - format.leftMargin() - format.rightMargin();
  int begin = 0;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    begin = line.textStart();
    line.setLineWidth(room - (begin == 0 ? format.textIndent() : 0));
  }
  layout.endLayout();
  return begin;
}

}  // namespace

std::unique_ptr<QTextDocument> MakeNoteDocument(const RichTextDocument& note, bool rich,
                                                bool* cut) {
  auto document = std::make_unique<QTextDocument>();
  document->setUndoRedoEnabled(false);
  if (rich) {
    QTextOption option = document->defaultTextOption();
    option.setTabStopDistance(NotePixels(qBound(90, note.tabDistance, 14400)));
    document->setDefaultTextOption(option);
  }
  NoteWriter writer(*document, note, rich);
  writer.Write();
  if (writer.IsCut()) *cut = true;
  return document;
}

void JoinNoteBlocks(QTextDocument& document) {
  QTextBlock block = document.lastBlock();
  while (block.isValid()) {
    const QTextBlock previous = block.previous();
    const int place = previous.position();
    if (previous.isValid() && IsNoteContinuation(block.blockFormat())) {
      JoinToPrevious(document, block);
      block = document.findBlock(place);
    } else {
      block = previous;
    }
  }
}

void DivideNoteBlocks(QTextDocument& document, double width) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    bool divided = false;
    while (!divided && block.next().isValid() && IsNoteContinuation(block.next().blockFormat())) {
      const int place = block.position();
      JoinToPrevious(document, block.next());
      block = document.findBlock(place);
      const int last = BeginOfLastLine(document, block, width);
      divided = last > 0;
      if (!divided) continue;
      const QTextBlockFormat format = block.blockFormat();
      QTextCursor cursor(&document);
      cursor.setPosition(place + last);
      // The block's end is a line's end.
      if (document.characterAt(place + last - 1) == QChar::LineSeparator) {
        cursor.deletePreviousChar();
      }
      cursor.insertBlock(NoteContinuation(format));
      block = document.findBlock(place);
    }
  }
}

}  // namespace logchecker
