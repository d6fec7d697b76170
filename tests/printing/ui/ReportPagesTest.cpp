// Real pages: printed to PDF, then read as text and as pictures.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPageSize>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "printing/cPrinting.h"
#include "printing/ui/QtPrintCanvas.h"
#include "tests/support/ui/HostProgram.h"
#include "tests/support/ui/NoPrinters.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

struct Paper {
  QPageSize::PageSizeId size;
  int columns;
  int rows;
};

class ReportTest : public WindowTest {
 protected:
  static ListView ListOf(int columns, int rows) {
    ListView list;
    list.ColumnHeaders.push_back({"Time", 800, ColumnAlignment::kLeft});
    for (int column = 2; column <= columns; ++column) {
      list.ColumnHeaders.push_back(
          {"Split" + std::to_string(column - 1), 900, ColumnAlignment::kCentre});
    }
    for (int row = 0; row < rows; ++row) {
      ListItem item;
      item.text = "r" + std::to_string(row);
      for (int column = 2; column <= columns; ++column) item.ListSubItems.push_back({"1:23.45"});
      list.ListItems.push_back(item);
    }
    return list;
  }
  bool Print(const ListView& list, QPageSize::PageSizeId size) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pdf);
    printer.setPageSize(QPageSize(size));
    QtPrintCanvas canvas(printer, "The title");
    cPrinting printing(canvas);
    const bool printed = printing.PrintListView(&list, "The title", 0) == -1;
    pageHeight = canvas.PageHeight();
    error = printing.GetLastError();
    return printed;
  }
  int Pages() const {
    const auto match =
        QRegularExpression("Pages:\\s+(\\d+)").match(OutputOfProgram("pdfinfo", {pdf}));
    return match.captured(1).toInt();
  }
  QStringList TextOfPages() const {
    QStringList pages = OutputOfProgram("pdftotext", {"-layout", pdf, "-"}).split('\f');
    if (pages.last().trimmed().isEmpty()) pages.removeLast();
    return pages;
  }
  QImage Picture(int page, int dotsPerInch) const {
    const QString stem = folderOfPages.filePath("page");
    OutputOfProgram("pdftoppm", {"-r", QString::number(dotsPerInch), "-f", QString::number(page),
                                 "-l", QString::number(page), "-singlefile", "-png", pdf, stem});
    return QImage(stem + ".png").convertToFormat(QImage::Format_Grayscale8);
  }

  QTemporaryDir folderOfPages;
  QString pdf = folderOfPages.filePath("report.pdf");
  double pageHeight = 0;
  std::string error;
};

class ReportPagesTest : public ReportTest, public testing::WithParamInterface<Paper> {};

TEST_P(ReportPagesTest, EveryPageHasItsHeadingsAndEveryRowIsThere) {
  const Paper& paper = GetParam();
  ASSERT_TRUE(Print(ListOf(paper.columns, paper.rows), paper.size)) << error;
  const QStringList pages = TextOfPages();
  EXPECT_EQ(pages.size(), Pages());
  for (int i = 0; i < pages.size(); ++i) {
    EXPECT_TRUE(pages[i].contains("Time")) << i;
    // At eleven columns a heading is cut at its column.
    EXPECT_TRUE(pages[i].contains(paper.columns > 8 ? "Spl" : "Split1")) << i;
    EXPECT_EQ(pages[i].contains("The title"), i == 0) << i;
  }
  const QString text = pages.join('\n');
  int found = 0;
  static const QRegularExpression rowMark("^\\s*r\\d+\\b", QRegularExpression::MultilineOption);
  for (auto marks = rowMark.globalMatch(text); marks.hasNext(); marks.next()) ++found;
  EXPECT_EQ(found, paper.rows);
  EXPECT_EQ(pages.size() == 1, paper.rows <= 1 || paper.rows == 40) << pages.size();
  EXPECT_EQ(pages.size() > 50, paper.rows == 5000) << pages.size();
}

INSTANTIATE_TEST_SUITE_P(Sizes, ReportPagesTest,
                         testing::Values(Paper{QPageSize::A4, 2, 0}, Paper{QPageSize::A4, 3, 1},
                                         Paper{QPageSize::A4, 11, 40},
                                         Paper{QPageSize::A4, 4, 5000},
                                         Paper{QPageSize::Letter, 2, 1},
                                         Paper{QPageSize::Letter, 11, 40},
                                         Paper{QPageSize::Letter, 6, 5000}));

TEST_F(ReportTest, TheRuleRunsFromMarginToMarginUnderTheHeadings) {
  ASSERT_TRUE(Print(ListOf(3, 2), QPageSize::A4));
  const QImage page = Picture(1, 200);
  // The longest dark run of any line of the picture is the rule.
  int longest = 0;
  int line = 0;
  int begin = 0;
  for (int y = 0; y < page.height(); ++y) {
    int run = 0;
    for (int x = 0; x < page.width(); ++x) {
      run = page.constScanLine(y)[x] < 160 ? run + 1 : 0;
      if (run > longest) {
        longest = run;
        line = y;
        begin = x - run + 1;
      }
    }
  }
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageSize(QPageSize(QPageSize::A4));
  const double inch = 200;
  const QRectF printable = printer.pageLayout().paintRect(QPageLayout::Inch);
  const double margin = 20.0 / 1200;  // device pixels in inches
  EXPECT_NEAR(begin, (printable.left() + margin) * inch, 3);
  EXPECT_NEAR(longest, (printable.width() - 2 * margin) * inch, 4);
  EXPECT_GT(line, printable.top() * inch + 60) << "under title and headings";
  EXPECT_LT(line, printable.top() * inch + 200);
}

TEST_F(ReportTest, ALongTextDoesNotRunIntoTheNextColumn) {
  ListView list = ListOf(3, 1);
  list.ListItems[0].ListSubItems[0].text = std::string(300, 'W');
  ASSERT_TRUE(Print(list, QPageSize::A4));
  const QString row = TextOfPages()[0];
  EXPECT_TRUE(row.contains("WWW"));
  EXPECT_FALSE(row.contains(QString(200, 'W')));
  EXPECT_TRUE(row.contains(QRegularExpression("W\\s*1:23.45"))) << "the next cell is whole";
}

TEST_F(ReportTest, ATextIsAsWideAsItsCharactersTogether) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(pdf);
  QtPrintCanvas canvas(printer, "T");
  canvas.SetFontName("DejaVu Sans");  // which draws some characters together
  canvas.SetFontSize(40);
  const double twips = canvas.TextWidth("officefflAVATo.");
  canvas.Print("officefflAVATo.");
  canvas.EndDoc();
  static const QRegularExpression box("xMin=\"([0-9.]+)\".*xMax=\"([0-9.]+)\"");
  const auto match = box.match(OutputOfProgram("pdftotext", {"-bbox", pdf, "-"}));
  ASSERT_TRUE(match.hasMatch());
  const double points = match.captured(2).toDouble() - match.captured(1).toDouble();
  EXPECT_NEAR(points * 20, twips, 4);
}

TEST_F(ReportTest, AnInchHas1440Twips) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(pdf);
  printer.setPageSize(QPageSize(QPageSize::A4));
  QtPrintCanvas canvas(printer, "T");
  EXPECT_DOUBLE_EQ(canvas.TwipsPerPixelX() * printer.logicalDpiX(), 1440);
  EXPECT_DOUBLE_EQ(canvas.TwipsPerPixelY() * printer.logicalDpiY(), 1440);
}

TEST_F(ReportTest, AccentedAndControlCharactersPrint) {
  ListView list = ListOf(2, 1);
  list.ListItems[0].ListSubItems[0].text = "caf\xE9 \x01\x7F\t\x80";
  ASSERT_TRUE(Print(list, QPageSize::A4));
  EXPECT_TRUE(TextOfPages()[0].contains(QString::fromUtf8("caf\xC3\xA9")));
  EXPECT_TRUE(TextOfPages()[0].contains(QString::fromUtf8("\xE2\x82\xAC")));
}

TEST_F(ReportTest, WithoutAPrinterTheReasonIsClear) {
  const ListView list = ListOf(2, 1);
  const NoPrinters noPrinters;
  QPrinter none;
  QtPrintCanvas canvas(none, "T");
  cPrinting printing(canvas);
  EXPECT_EQ(printing.PrintListView(&list, "T", 0), 0);
  EXPECT_EQ(printing.GetLastError(), "There is no printer");
}

TEST_F(ReportTest, AJobThatWasNotEndedLeavesNothingBehind) {
  ListView list = ListOf(100, 1);  // more columns than a report can have
  EXPECT_FALSE(Print(list, QPageSize::A4));
  EXPECT_EQ(error, "Subscript out of range");
  EXPECT_FALSE(QFile::exists(pdf));
}

TEST_F(ReportTest, APdfFileThatIsThereStaysWhenTheReportFails) {
  QFile old(pdf);
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("old");
  old.close();
  ListView list = ListOf(100, 1);
  EXPECT_FALSE(Print(list, QPageSize::A4));
  ASSERT_TRUE(old.open(QIODevice::ReadOnly));
  EXPECT_EQ(old.readAll(), "old");
}

}  // namespace
}  // namespace logchecker
