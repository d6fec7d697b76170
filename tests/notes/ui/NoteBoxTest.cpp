// A note on the screen, in copies and on paper.
#include "notes/ui/NoteBox.h"

#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QMimeData>
#include <QPrinter>
#include <QRegularExpression>
#include <QTextBlock>

#include "notes/ui/NoteDocument.h"
#include "notes/ui/NotePictures.h"
#include "platform/HostPaths.h"
#include "tests/support/ui/HostProgram.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

constexpr double kPoints = 72;  // to the inch

// What the clipboard would get.
class OpenBox : public NoteBox {
 public:
  std::unique_ptr<QMimeData> Copied() const {
    return std::unique_ptr<QMimeData>(createMimeDataFromSelection());
  }
};

struct Word {
  QString text;
  double x = 0;  // points from the printable page's left edge
  double y = 0;  // of its upper edge, from the page's
};

class NoteBoxTest : public WindowTest {
 protected:
  bool Show(const std::string& bytes) {
    return box.ShowNote(ReadRichText(bytes), IsRichText(bytes));
  }
  bool ShowRich(const std::string& body) {
    return Show("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 DejaVu Sans;}}\\f0\\fs24 " + body + "}");
  }
  QString Pdf() const { return QString::fromStdString(ToHostPath(folder().Path())) + "/note.pdf"; }
  void Print(bool selectionOnly = false) {
    QPrinter paper(QPrinter::HighResolution);
    paper.setOutputFormat(QPrinter::PdfFormat);
    paper.setOutputFileName(Pdf());
    paper.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                    QMarginsF(1, 1, 1, 1), QPageLayout::Inch));
    box.PrintNote(paper, "note", selectionOnly);
  }
  std::vector<Word> Words() const {
    static const QRegularExpression word("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\".*>([^<]*)</word>");
    std::vector<Word> words;
    auto found = word.globalMatch(OutputOfProgram("pdftotext", {"-bbox", Pdf(), "-"}));
    while (found.hasNext()) {
      const auto match = found.next();
      // The toolkit draws the line above a page's edge too, where it can't be seen.
      if (match.captured(2).toDouble() < kPoints - 1) continue;
      words.push_back({match.captured(3), match.captured(1).toDouble() - kPoints,
                       match.captured(2).toDouble() - kPoints});
    }
    return words;
  }
  Word Find(const QString& text) const {
    for (const Word& word : Words()) {
      if (word.text == text) return word;
    }
    ADD_FAILURE() << "no word " << text.toStdString();
    return {};
  }
  int Pages() const {
    static const QRegularExpression pages("Pages: +([0-9]+)");
    return pages.match(OutputOfProgram("pdfinfo", {Pdf()})).captured(1).toInt();
  }
  QTextCharFormat FormatAt(int position) {
    QTextCursor cursor(box.document());
    cursor.setPosition(position);
    return cursor.charFormat();
  }
  void Select(int begin, int end) {
    QTextCursor cursor(box.document());
    cursor.setPosition(begin);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    box.setTextCursor(cursor);
  }

  OpenBox box;
};

std::string Hex(const QByteArray& bytes) { return bytes.toHex().toStdString(); }

QByteArray FileOf(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, format);
  return bytes;
}

QImage Red(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::red);
  return image;
}

TEST_F(NoteBoxTest, AnInchIsAnInchOnPaper) {
  ShowRich(
      "zero\\par\\pard\\li1440 one\\par\\pard\\li2880\\fi-720 hang\\line two\\par"
      "\\pard\\tx1440\\tx4320 a\\tab tab1\\tab tab3\\par"
      "\\pard\\li720\\tx2880 b\\tab tab2\\par"
      "\\pard\\li1440\\fi-1440 c\\tab indent\\par\\pard d\\tab half\\par");
  Print();
  EXPECT_NEAR(Find("zero").x, 0, 0.1);
  EXPECT_NEAR(Find("one").x, kPoints, 0.1);
  EXPECT_NEAR(Find("hang").x, 1.5 * kPoints, 0.1);
  EXPECT_NEAR(Find("two").x, 2 * kPoints, 0.1);
  EXPECT_NEAR(Find("tab1").x, kPoints, 0.1);
  EXPECT_NEAR(Find("tab3").x, 3 * kPoints, 0.1);
  EXPECT_NEAR(Find("tab2").x, 2 * kPoints, 0.1);
  EXPECT_NEAR(Find("indent").x, kPoints, 0.1) << "a hanging line has a stop at its indent";
  EXPECT_NEAR(Find("half").x, kPoints / 2, 0.1) << "the stops that are there without a word";
}

TEST_F(NoteBoxTest, SpaceIsAsLargeOnPaperAsItSays) {
  ShowRich(
      "top\\par\\pard\\sb720\\sa360 second\\par\\pard\\sb360 third\\par"
      "\\pard\\sl-720 fourth\\line lower\\par\\pard\\sl480\\slmult1 six\\line seven\\par"
      "\\pard eight\\line nine\\par");
  Print();
  const double line = Find("nine").y - Find("eight").y;
  EXPECT_NEAR(Find("second").y - Find("top").y - line, kPoints / 2, 0.3);
  EXPECT_NEAR(Find("third").y - Find("second").y - line, kPoints / 2, 0.3) << "both add up";
  EXPECT_NEAR(Find("lower").y - Find("fourth").y, kPoints / 2, 0.3);
  EXPECT_NEAR(Find("seven").y - Find("six").y, 2 * line, 0.3);
}

TEST_F(NoteBoxTest, CellsBeginWhereTheirRowSaysOnPaper) {
  ShowRich("\\trowd\\cellx1440\\cellx2880\\cellx4320 a\\cell bb\\cell cc\\cell\\row");
  Print();
  EXPECT_NEAR(Find("bb").x, kPoints, 0.1);
  EXPECT_NEAR(Find("cc").x, 2 * kPoints, 0.1);
}

TEST_F(NoteBoxTest, APageEndsWhereTheTextSays) {
  ShowRich("one\\page two\\par\\pagebb three");
  EXPECT_TRUE(box.document()->firstBlock().blockFormat().hasProperty(
      QTextFormat::BlockTrailingHorizontalRulerWidth))
      << "a line shows it on the screen";
  Print();
  EXPECT_EQ(Pages(), 3);
  EXPECT_NEAR(Find("two").y, 0, 4) << "less than half a line";
  ShowRich("one\\par two");
  Print();
  EXPECT_EQ(Pages(), 1);
}

TEST_F(NoteBoxTest, PagesHaveNoNumbers) {
  ShowRich("one\\page two\\page three");
  Print();
  EXPECT_EQ(Words().size(), 3U);
}

TEST_F(NoteBoxTest, CharactersHaveTheirFormats) {
  ShowRich(
      "{\\colortbl;\\red255\\green255\\blue0;}"
      "n{\\strike s}{\\highlight1 h}{\\super p}{\\sub b}{\\caps c}{\\scaps d}{\\up12 u}");
  EXPECT_FALSE(FormatAt(1).fontStrikeOut());
  EXPECT_FALSE(FormatAt(1).hasProperty(QTextFormat::BackgroundBrush));
  EXPECT_TRUE(FormatAt(2).fontStrikeOut());
  EXPECT_EQ(FormatAt(3).background().color(), QColor(255, 255, 0));
  EXPECT_EQ(FormatAt(4).verticalAlignment(), QTextCharFormat::AlignSuperScript);
  EXPECT_EQ(FormatAt(5).verticalAlignment(), QTextCharFormat::AlignSubScript);
  EXPECT_EQ(FormatAt(6).fontCapitalization(), QFont::AllUppercase);
  EXPECT_EQ(FormatAt(7).fontCapitalization(), QFont::SmallCaps);
  EXPECT_EQ(FormatAt(8).baselineOffset(), 50);
  EXPECT_EQ(box.toPlainText(), "nshpbcdu");
}

TEST_F(NoteBoxTest, PicturesOfThreeKindsAreShownAndPrinted) {
  const QByteArray bitmap = FileOf(Red(30, 20), "bmp").mid(14);
  ShowRich("{\\pict\\pngblip\\picwgoal1440\\pichgoal2880 " + Hex(FileOf(Red(30, 20), "png")) +
           "}{\\pict\\jpegblip\\picwgoal1440\\picscalex50\\picscaley200 " +
           Hex(FileOf(Red(30, 20), "jpg")) + "}{\\pict\\dibitmap0 " + Hex(bitmap) + "}");
  const QSizeF sizes[] = {{96, 192}, {48, 40}, {30, 20}};
  for (int i = 0; i < 3; ++i) {
    const QTextImageFormat picture = FormatAt(i + 1).toImageFormat();
    ASSERT_TRUE(picture.isValid()) << i;
    EXPECT_EQ(QSizeF(picture.width(), picture.height()), sizes[i]) << i;
  }
  Print();
  EXPECT_EQ(OutputOfProgram("pdfimages", {"-list", Pdf()}).count(" image "), 3);
  ShowRich("no more of them");
  Print();
  EXPECT_EQ(OutputOfProgram("pdfimages", {"-list", Pdf()}).count(" image "), 0);
}

TEST_F(NoteBoxTest, APictureWiderThanThePaperIsMadeToFit) {
  ShowRich("{\\pict\\pngblip\\picwgoal20000\\pichgoal2000 " + Hex(FileOf(Red(300, 30), "png")) +
           "}");
  Print();
  const QString listed = OutputOfProgram("pdfimages", {"-list", Pdf()});
  static const QRegularExpression row(" 300 +30 .* ([0-9]+) +([0-9]+) +[0-9]+B");
  // A4 less two inches is 6.27 inches.
  EXPECT_NEAR(row.match(listed).captured(1).toDouble(), 300 / 6.27, 1) << listed.toStdString();
}

TEST_F(NoteBoxTest, HostilePicturesAreLeftOut) {
  const QByteArray png = FileOf(Red(30, 20), "png");
  QByteArray huge = png;
  huge.replace(16, 8, QByteArray("\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF", 8));
  QByteArray bitmap = FileOf(Red(30, 20), "bmp").mid(14);
  QByteArray hugeBitmap = bitmap;
  hugeBitmap.replace(4, 8, QByteArray("\xFF\xFF\xFF\x7F\xFF\xFF\xFF\x7F", 8));
  const QByteArray other = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
  for (const QByteArray& bytes : {huge, png.left(8), png.left(20), other, QByteArray("x")}) {
    ShowRich("{\\pict\\pngblip " + Hex(bytes) + "}a");
    EXPECT_EQ(box.toPlainText(), "a");
    ShowRich("{\\pict\\jpegblip " + Hex(bytes) + "}a");
    EXPECT_EQ(box.toPlainText(), "a") << "of another kind than it says";
  }
  ShowRich("{\\pict\\dibitmap0 " + Hex(hugeBitmap) + "}a");
  EXPECT_EQ(box.toPlainText(), "a");
}

TEST_F(NoteBoxTest, PixelsOfANoteHaveALimit) {
  TextPicture picture;
  picture.kind = PictureKind::kPng;
  const auto fill = [&](int width, int height) {
    picture.bytes = FileOf(QImage(width, height, QImage::Format_Mono), "png").toStdString();
  };
  fill(4096, 4096);
  NotePictures pictures;
  EXPECT_FALSE(pictures.Decode(picture).isNull());
  EXPECT_FALSE(pictures.IsCut());
  fill(1, 1);
  EXPECT_TRUE(pictures.Decode(picture).isNull());
  EXPECT_TRUE(pictures.IsCut());
  fill(4096, 4097);
  NotePictures larger;
  EXPECT_TRUE(larger.Decode(picture).isNull());
  EXPECT_FALSE(
      ShowRich("{\\pict\\pngblip " + Hex(QByteArray::fromStdString(picture.bytes)) + "}a"));
}

TEST_F(NoteBoxTest, ALongLineIsShownInBlocksAndCopiedWhole) {
  QString line;
  for (int i = 0; i < 30000; ++i) line += i % 7 == 6 ? QString(" ") : QString::number(i % 10);
  const QString unbroken =
      QString(9000, 'x') + QString::fromUtf8("\xF0\x9F\x98\x80").repeated(5000);
  for (const QString& text : {line, unbroken}) {
    EXPECT_TRUE(Show((text + "\nsecond").toStdString()));
    EXPECT_GT(box.document()->blockCount(), 5);
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
      EXPECT_LE(block.length(), kLongestBlock + 1);
      EXPECT_FALSE(block.text().front().isLowSurrogate());
    }
    box.selectAll();
    const auto copied = box.Copied();
    EXPECT_EQ(copied->text(), text + "\nsecond");
    EXPECT_EQ(copied->html().count("<p "), 2);
    Select(10, 12000);
    const QString shown = box.textCursor().selectedText();
    EXPECT_EQ(box.Copied()->text(), QString(shown).remove(QChar::ParagraphSeparator));
    EXPECT_NE(box.Copied()->text(), shown);
    EXPECT_TRUE(text.contains(box.Copied()->text()));
  }
  Show("short");
  box.selectAll();
  EXPECT_EQ(box.Copied()->text(), "short");
}

TEST_F(NoteBoxTest, AnyTextIsWholeHoweverItIsDivided) {
  // A small generator of its own, so that a failure can be run again.
  uint32_t seed = 54321;
  const auto next = [&](uint32_t below) {
    seed = seed * 1664525 + 1013904223;
    return (seed >> 8) % below;
  };
  const char* pieces[] = {"word ",        "x", "\t", "\xC3\xA9", "e\xCC\x81", "\xF0\x9F\x98\x80",
                          "\xE6\x97\xA5", " ", "\n", "\x0B",     "\xC2\xA0"};
  for (int round = 0; round < 20; ++round) {
    TextParagraph paragraph;
    for (uint32_t run = next(4); run < 5; ++run) {
      TextRun part;
      part.bold = run % 2 == 0;
      const uint32_t kinds = 1 + next(std::size(pieces));
      for (uint32_t i = next(3000); i > 0; --i) part.text += pieces[next(kinds)];
      paragraph.runs.push_back(part);
    }
    RichTextDocument note;
    note.paragraphs = {paragraph, TextParagraph(), paragraph};
    bool cut = false;
    const auto document = MakeNoteDocument(note, true, &cut);
    JoinNoteBlocks(*document);
    ASSERT_EQ(document->blockCount(), 3) << round;
    RichTextDocument single;
    single.paragraphs = {paragraph};
    const QString shown =
        QString::fromStdString(single.PlainText()).replace('\n', QChar::LineSeparator);
    EXPECT_EQ(document->firstBlock().text(), shown) << round;
    EXPECT_EQ(document->lastBlock().text(), shown) << round;
    const auto printed = MakeNoteDocument(note, true, &cut);
    DivideNoteBlocks(*printed, 300);
    // A line's end at which it is divided has become the block's.
    const auto letters = [](QString text) {
      return text.remove(QChar::LineSeparator).remove(QChar::ParagraphSeparator);
    };
    EXPECT_EQ(letters(printed->toRawText()), letters(document->toRawText())) << round;
  }
}

TEST_F(NoteBoxTest, ALongLineIsPrintedAsOne) {
  std::string line;
  for (int i = 0; i < 4000; ++i) line += "w" + std::to_string(i) + " ";
  ShowRich("\\li1440\\fi-720 " + line);
  Print();
  const std::vector<Word> words = Words();
  ASSERT_EQ(words.size(), 4000U);
  // A line that is not the last ends where the next word has no room, and begins at the indent.
  double longest = 0;
  for (const Word& word : words) longest = std::max(longest, word.x);
  int lines = 0;
  for (size_t i = 1; i < words.size(); ++i) {
    ASSERT_EQ(words[i].text, "w" + QString::number(i));
    if (words[i].x > words[i - 1].x) continue;
    ++lines;
    EXPECT_NEAR(words[i].x, kPoints, 0.1);
    EXPECT_GT(words[i - 1].x, longest - 80) << "line " << lines << " ends early";
  }
  EXPECT_GT(lines, 300);
}

TEST_F(NoteBoxTest, LineEndsInsideALongParagraphArePrintedOnce) {
  std::string body;
  for (int i = 0; i < 1000; ++i) body += "w" + std::to_string(i) + "\\line ";
  ShowRich(body + "end");
  Print();
  const std::vector<Word> words = Words();
  ASSERT_EQ(words.size(), 1001U);
  const double line = words[1].y - words[0].y;
  for (size_t i = 1; i < words.size(); ++i) {
    if (words[i].y < words[i - 1].y) continue;  // a new page
    EXPECT_NEAR(words[i].y - words[i - 1].y, line, 0.5) << i;
  }
}

TEST_F(NoteBoxTest, ASelectionKeepsTheFormatOfItsFirstParagraph) {
  ShowRich("zero\\par\\pard\\li1440 one two\\par\\pard three");
  Select(9, 12);
  Print(true);
  ASSERT_EQ(Words().size(), 1U);
  EXPECT_EQ(Words()[0].text, "two");
  EXPECT_NEAR(Words()[0].x, kPoints, 0.1);
  Print(false);
  EXPECT_EQ(Words().size(), 4U);
}

TEST_F(NoteBoxTest, TextWithoutAnIndentBeginsAtTheEdgeInTheSizeThatItSays) {
  ShowRich("a\\par\\pard\\li1440\\ri720 {\\fs40 b}");
  const QTextBlockFormat first = box.document()->firstBlock().blockFormat();
  EXPECT_EQ(first.leftMargin(), 0);
  EXPECT_EQ(first.rightMargin(), 0);
  EXPECT_TRUE(first.tabPositions().isEmpty()) << "without a tab there is no stop";
  const QTextBlockFormat second = box.document()->lastBlock().blockFormat();
  EXPECT_EQ(second.leftMargin(), 96);
  EXPECT_EQ(second.rightMargin(), 48);
  EXPECT_EQ(FormatAt(1).fontPointSize(), 12);
  EXPECT_EQ(FormatAt(3).fontPointSize(), 20);
}

TEST_F(NoteBoxTest, PlainTextIsShownInTheBoxsFont) {
  QFont font = box.font();
  font.setPointSize(23);
  box.setFont(font);
  Show("plain");
  EXPECT_EQ(box.document()->defaultFont().pointSize(), 23);
}

TEST_F(NoteBoxTest, WhatHasRoomInOneBlockIsNotDividedFurther) {
  const QString words = QString("word ").repeated(kLongestBlock / 5 + kLongestBlock / 8);
  Show(words.toStdString());
  ASSERT_EQ(box.document()->blockCount(), 2);
  EXPECT_GT(box.document()->firstBlock().length(), kLongestBlock - 10);
  const QString unbroken(kLongestBlock + 100, 'x');
  Show(unbroken.toStdString());
  ASSERT_EQ(box.document()->blockCount(), 2);
  EXPECT_EQ(box.document()->firstBlock().length(), kLongestBlock + 1);
}

TEST_F(NoteBoxTest, ALongParagraphOnANewPageGoesOnAcrossItsBlocks) {
  std::string line;
  for (int i = 0; i < 2000; ++i) line += "w" + std::to_string(i) + " ";
  ShowRich("one\\par\\pagebb " + line);
  ASSERT_GT(box.document()->blockCount(), 2);
  Print();
  int tops = 0;
  const std::vector<Word> words = Words();
  for (size_t i = 1; i < words.size(); ++i) tops += words[i].y < words[i - 1].y ? 1 : 0;
  EXPECT_EQ(tops + 1, Pages());
  // All but the last page are full.
  const double full = 9.69 * kPoints - 40;
  for (size_t i = 2; i < words.size(); ++i) {
    if (words[i].y >= words[i - 1].y) continue;
    EXPECT_GT(words[i - 1].y, full) << words[i].text.toStdString();
  }
}

TEST_F(NoteBoxTest, ALongLineBehindATabIsPrintedAsOne) {
  std::string line;
  for (int i = 0; i < 1500; ++i) line += "w" + std::to_string(i) + " ";
  ShowRich("\\pard\\tx5760\\tab " + line);
  ASSERT_GT(box.document()->blockCount(), 1);
  Print();
  const std::vector<Word> words = Words();
  ASSERT_EQ(words.size(), 1500U);
  EXPECT_NEAR(words[0].x, 4 * kPoints, 0.1);
  double longest = 0;
  for (const Word& word : words) longest = std::max(longest, word.x);
  for (size_t i = 1; i < words.size(); ++i) {
    if (words[i].x > words[i - 1].x) continue;
    EXPECT_GT(words[i - 1].x, longest - 80) << words[i].text.toStdString() << " begins a line";
  }
}

TEST_F(NoteBoxTest, NoCharacterIsDividedBetweenTwoBlocks) {
  const QString smile = QString::fromUtf8("\xF0\x9F\x98\x80");
  for (const QString& text : {smile.repeated(kLongestBlock), "x" + smile.repeated(kLongestBlock)}) {
    Show(text.toStdString());
    ASSERT_GT(box.document()->blockCount(), 1);
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
      EXPECT_FALSE(block.text().front().isLowSurrogate());
    }
  }
}

TEST_F(NoteBoxTest, NothingIsDrawnAboveAPagesEdge) {
  std::string body;
  for (int i = 0; i < 120; ++i) body += "MMMM\\line ";
  ShowRich(body + "end");
  Print();
  ASSERT_GT(Pages(), 1);
  for (const char* page : {"1", "2"}) {
    const QString stem = Pdf() + ".page";
    OutputOfProgram("pdftoppm",
                    {"-r", "72", "-f", page, "-l", page, "-singlefile", "-png", Pdf(), stem});
    const QImage picture = QImage(stem + ".png").convertToFormat(QImage::Format_Grayscale8);
    ASSERT_FALSE(picture.isNull());
    const auto isWhite = [&](int from, int to) {
      for (int y = from; y < to; ++y) {
        for (int x = 0; x < picture.width(); ++x) {
          if (qGray(picture.pixel(x, y)) < 200) return false;
        }
      }
      return true;
    };
    EXPECT_TRUE(isWhite(0, 71)) << page;
    EXPECT_TRUE(isWhite(picture.height() - 71, picture.height())) << page;
    EXPECT_FALSE(isWhite(72, 100)) << page;
  }
}

}  // namespace
}  // namespace logchecker
