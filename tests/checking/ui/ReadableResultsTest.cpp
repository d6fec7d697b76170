// That every text of the results can be read, on the screen and on paper.
#include <QAbstractPrintDialog>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>

#include "common/ui/CellDelegate.h"
#include "common/ui/CompactFont.h"
#include "common/ui/CompactHeader.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "platform/HostPaths.h"
#include "tests/checking/ui/ResultsTest.h"
#include "tests/support/ui/PrintedFile.h"

namespace logchecker {
namespace {

// At 07:00 split 2 has no break, and split 3 a longer one.
class ReadableResultsTest : public ResultsTest {
 protected:
  void CheckSplits(int16_t splits) {
    const char* names[] = {"Larkfield", "Easton", "Weston",  "Coast", "Hill Country",
                           "Valley",    "Moors",  "Harbour", "Lakes", "Borders"};
    gGeneralSettings.NumberActiveSplits = splits;
    PutCart(13, 125.05F);
    PutCart(14, 126.55F);
    for (int16_t n = 1; n <= splits; ++n) {
      WriteLog(n, kDay,
               n == 2 ? Line("06:00", 11) + "\r\n"
                      : Line("06:00", 11) + "\r\n" + Line("07:00", n == 3 ? 14 : 13) + "\r\n");
      SettingsOf(n).SplitName = names[n - 1];
      SettingsOf(n).LogDate = kDay;
      gSplits(n).LoadLogFile();
    }
    Check();
  }
  int EvenShare() {
    const int columns = List()->model()->columnCount() - 1;
    return (ToTwips(List()->width()) - 90 - 255 - 800) / columns / kTwipsPerPixel;
  }
  // What of the headings and cells ends in dots.
  QStringList CutTexts() {
    QStringList cut;
    const QFontMetrics metrics(List()->font());
    const auto* headings = qobject_cast<CompactHeader*>(List()->header());
    for (int column = 0; column < List()->model()->columnCount(); ++column) {
      const QString heading = List()->model()->headerData(column, Qt::Horizontal).toString();
      if (headings->WidthFor(heading, metrics) > List()->columnWidth(column)) cut += heading;
      for (int row = 0; row < Rows(); ++row) {
        const QString text = List()->model()->index(row, column).data().toString().trimmed();
        const int room = List()->columnWidth(column) - 2 * CellMargin(metrics);
        if (metrics.horizontalAdvance(text) > room) cut += text;
      }
    }
    return cut;
  }
  QStringList MissingOnPaper(const char* paper, bool landscape);
  QImage Picture(int column) {
    const QRect cell = List()->visualRect(List()->model()->index(0, column));
    return List()->viewport()->grab(cell).toImage();
  }
};

TEST_F(ReadableResultsTest, FiveSplitsAreReadInEvenSharesOfTheFirstWidth) {
  CheckSplits(5);
  ASSERT_EQ(window->width(), ToPixels(5000));
  for (int column = 1; column <= 5; ++column) {
    EXPECT_NEAR(List()->columnWidth(column), EvenShare(), 1);
  }
  EXPECT_EQ(CutTexts(), QStringList());
  EXPECT_EQ(List()->horizontalScrollBar()->maximum(), 0);
  EXPECT_LT(List()->font().stretch(), 100) << "a condensed face";
  EXPECT_EQ(List()->font().pixelSize(), CompactFont().pixelSize());
}

TEST_F(ReadableResultsTest, TenSplitsHaveAScrollBarRatherThanDots) {
  CheckSplits(10);
  ASSERT_EQ(window->width(), ToPixels(5000));
  EXPECT_EQ(CutTexts(), QStringList());
  EXPECT_GT(List()->horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(List()->columnWidth(0), ToPixels(800));
}

TEST_F(ReadableResultsTest, LeftAndRightMoveWhatIsSeen) {
  CheckSplits(10);
  QTest::keyClick(List(), Qt::Key_Down);
  QTest::keyClick(List(), Qt::Key_Right);
  const int moved = List()->horizontalScrollBar()->value();
  EXPECT_GT(moved, 0);
  QTest::keyClick(List(), Qt::Key_Left);
  EXPECT_LT(List()->horizontalScrollBar()->value(), moved);
  EXPECT_EQ(List()->selectionModel()->selectedRows().size(), 1);
}

TEST_F(ReadableResultsTest, WithRoomForThemColumnsAreEvenAndTheFaceIsThePlainOne) {
  area.resize(1400, 900);
  CheckSplits(10);
  window->resize(1200, 500);
  EXPECT_EQ(CutTexts(), QStringList());
  for (int column = 1; column <= 10; ++column) {
    EXPECT_NEAR(List()->columnWidth(column), EvenShare(), 1);
  }
  EXPECT_EQ(List()->font(), CompactFont());
  EXPECT_EQ(List()->header()->font(), CompactFont());
}

TEST_F(ReadableResultsTest, AHeadingOfSeveralWordsTakesTwoLinesWhereItHasTo) {
  CheckSplits(5);
  QCoreApplication::processEvents();
  const int two = List()->header()->height();
  window->resize(800, 400);
  QCoreApplication::processEvents();
  EXPECT_GT(two, List()->header()->height());
}

TEST_F(ReadableResultsTest, AWidthThatTheUserGaveStaysOverTheNextCheck) {
  CheckSplits(10);
  List()->header()->resizeSection(3, 120);
  window->CheckBreaks();
  EXPECT_EQ(List()->columnWidth(3), 120);
}

TEST_F(ReadableResultsTest, ALongNameDoesNotPushTheOthersOut) {
  CheckSplits(2);
  SettingsOf(1).SplitName = std::string(200, 'W');
  delete window;
  Check();
  EXPECT_LT(List()->columnWidth(1), List()->width());
}

TEST_F(ReadableResultsTest, WhatStandsOutIsFramedAndSaysSo) {
  CheckSplits(5);
  const auto data = [&](int column, int role) {
    return List()->model()->index(0, column).data(role);
  };
  EXPECT_EQ(data(2, Qt::AccessibleTextRole).toString(), "Not Found, no break at this time");
  EXPECT_EQ(data(2, Qt::ToolTipRole).toString(),
            AsToolTip("Easton, 07:00: Not Found, no break at this time"));
  EXPECT_EQ(data(3, Qt::AccessibleTextRole).toString().trimmed(),
            data(3, Qt::DisplayRole).toString().trimmed() + ", differs from most splits");
  List()->clearSelection();
  for (const bool selected : {false, true}) {
    if (selected) List()->selectAll();
    QCoreApplication::processEvents();
    for (const int column : {1, 2, 3, 4}) {
      const bool framed = column == 2 || column == 3;
      EXPECT_EQ(data(column, kSetOffRole).toBool(), framed);
      const QImage cell = Picture(column);
      // The frame's upper line is one colour from side to side, and not that of the cell.
      const QColor line = cell.pixelColor(2, 0);
      EXPECT_EQ(line, cell.pixelColor(cell.width() - 4, 0));
      EXPECT_EQ(line != cell.pixelColor(2, 1), framed) << column << selected;
    }
  }
}

// What of the headings and lengths, as often as each of them stands in the list, a page has not.
QStringList ReadableResultsTest::MissingOnPaper(const char* paper, bool landscape) {
  const QString pdf = QString::fromStdString(ToHostPath(folder().Path()) + "/report.pdf");
  DialogScript script([&](QDialog* dialog) {
    auto* printers = Control<QComboBox>(dialog, "printers");
    printers->setCurrentIndex(printers->count() - 1);
    Control<QPushButton>(dialog, "properties")->click();
    AnswerWithFile(dialog, pdf);
  });
  script.Then([&](QDialog* properties) {
    auto* sizes = Control<QComboBox>(properties, "pageSizeCombo");
    const int size = sizes->findText(paper, Qt::MatchStartsWith);
    EXPECT_GE(size, 0) << paper;
    sizes->setCurrentIndex(size);
    Control<QRadioButton>(properties, landscape ? "landscape" : "portrait")->click();
    properties->accept();
  });
  window->PrintDetails();
  const QString text = TextOfFile(pdf);
  QMap<QString, int> wanted;
  for (int column = 0; column < List()->model()->columnCount(); ++column) {
    ++wanted[List()->model()->headerData(column, Qt::Horizontal).toString()];
    for (int row = 0; row < Rows(); ++row) {
      ++wanted[List()->model()->index(row, column).data().toString().trimmed()];
    }
  }
  QStringList missing;
  for (auto one = wanted.cbegin(); one != wanted.cend(); ++one) {
    if (text.count(one.key()) < one.value()) missing += one.key();
  }
  return missing;
}

struct Page {
  const char* paper;
  bool landscape;
  int16_t splits;
  int letters;  // of each split's name; 0 for names of several lengths
  int width;    // of the window, in pixels; 0 as it opens
};

void PrintTo(const Page& page, std::ostream* out) {
  *out << page.paper << (page.landscape ? " landscape, " : " upright, ") << page.splits << " of "
       << page.letters << " letters, " << page.width;
}

class PrintedResultsTest : public ReadableResultsTest, public testing::WithParamInterface<Page> {};

TEST_P(PrintedResultsTest, AllOfItIsOnThePage) {
  const Page& page = GetParam();
  area.resize(1400, 900);
  CheckSplits(page.splits);
  if (page.letters > 0) {
    for (int16_t n = 1; n <= page.splits; ++n) {
      const std::string name = "Westmoreland Coast";
      SettingsOf(n).SplitName =
          name.substr(0, static_cast<size_t>(page.letters - 1)) + static_cast<char>('A' + n);
    }
    delete window;
    Check();
  }
  if (page.width > 0) window->resize(page.width, 400);
  EXPECT_EQ(MissingOnPaper(page.paper, page.landscape), QStringList());
}

INSTANTIATE_TEST_SUITE_P(AsTheGuideSays, PrintedResultsTest,
                         testing::Values(Page{"A4", true, 10, 0, 0}, Page{"Letter", true, 10, 0, 0},
                                         Page{"A4", false, 6, 0, 0}, Page{"Letter", false, 6, 0, 0},
                                         Page{"A4", true, 10, 8, 0}, Page{"Letter", true, 10, 8, 0},
                                         Page{"A3", true, 10, 14, 0}, Page{"A4", true, 10, 0, 1200},
                                         Page{"Letter", true, 10, 0, 1200},
                                         Page{"A4", false, 6, 0, 800},
                                         Page{"Letter", false, 6, 0, 800}));

}  // namespace
}  // namespace logchecker
