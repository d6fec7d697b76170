#include <QHeaderView>
#include <QMdiArea>
#include <QPainter>
#include <QProxyStyle>
#include <QScrollBar>

#include "common/ui/CompactFont.h"
#include "common/ui/Twips.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "splitlogs/ui/LogGridView.h"
#include "splitlogs/ui/frmSplit.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

std::string Line(const char* time, int cart, const char* description = "AN ADVERT") {
  char line[128];
  std::snprintf(line, sizeof line, "%s|NTH  %08d %-30s      REF\r\n", time, cart, description);
  return line;
}

class SplitWindowTest : public WindowTest {
 protected:
  SplitWindowTest() {
    gSplits.SetFactory([this] {
      auto split = std::make_unique<frmSplit>();
      area.addSubWindow(split.get());
      return split;
    });
    gGeneralSettings.NumberActiveSplits = 2;
    area.resize(1000, 700);
    area.show();
    OpenStore(1000);
    PutCart(11, 30.0F);
    PutCart(12, 20.5F);
    const std::string log = Line("06:00:30", 11, "FIRST") + Line("06:00:30", 12, "SECOND") +
                            "\r\n" + Line("07:00:00", 99, "NO AUDIO") + "\r\n" +
                            Line("08:30:00", 11) + "\r\n";
    for (int16_t n = 1; n <= 2; ++n) {
      WriteLog(n, kDay, log);
      SettingsOf(n).SplitName = "Split <b>" + std::to_string(n);
      SettingsOf(n).LogDate = kDay;
      gSplits(n).UpdateInfo();
      Window(n).show();
      gSplits(n).LoadLogFile();
      gSplits(n).SelectBreakByTime(0);
    }
  }
  ~SplitWindowTest() override { gSplits.UnloadAll(); }

  static frmSplit& Window(int16_t n) { return static_cast<frmSplit&>(gSplits(n)); }
  static LogGridView& View(int16_t n) { return *Control<LogGridView>(&Window(n), "gridLog"); }
  static QVariant Cell(int16_t n, int row, int column, int role = Qt::DisplayRole) {
    return View(n).model()->index(row - 1, column).data(role);
  }
  static void Click(int16_t n, int row, int column = kDescriptionColumn) {
    QTest::mouseClick(View(n).viewport(), Qt::LeftButton, {},
                      View(n).visualRect(View(n).model()->index(row - 1, column)).center());
  }
  // The rows that stand selected, counted as the grid does.
  static std::pair<int, int> SelectedRows(int16_t n) {
    const QModelIndexList rows = View(n).selectionModel()->selectedRows();
    if (rows.isEmpty()) return {0, 0};
    return {rows.constFirst().row() + 1, rows.constLast().row() + 1};
  }

  QMdiArea area;
};

TEST_F(SplitWindowTest, ShowsTheGridUnderItsHeadings) {
  EXPECT_EQ(View(1).model()->rowCount(), gSplits(1).gridLog.Rows() - 1);
  const char* headings[] = {"Time", "Description", "Reference", "Cart", "Length", ""};
  for (int column = 0; column < 6; ++column) {
    EXPECT_EQ(View(1).model()->headerData(column, Qt::Horizontal).toString(), headings[column]);
  }
  EXPECT_EQ(Cell(1, 1, 0).toString(), "06:00");
  EXPECT_EQ(Cell(1, 1, 1).toString().trimmed(), "FIRST");
  EXPECT_EQ(Cell(1, 1, 3).toString(), "11");
  EXPECT_EQ(Cell(1, 1, 4).toString(), "  :30");
  EXPECT_EQ(Cell(1, 3, 4).toString(), "  :50.50");
  EXPECT_TRUE(View(1).verticalHeader()->isHidden());
}

TEST_F(SplitWindowTest, ColumnsHaveTheirWidthsAndTwoAreNotSeen) {
  EXPECT_EQ(View(1).columnWidth(0), ToPixels(500));
  EXPECT_EQ(View(1).columnWidth(3), ToPixels(600));
  EXPECT_EQ(View(1).columnWidth(4), ToPixels(800));
  EXPECT_TRUE(View(1).isColumnHidden(2));
  EXPECT_TRUE(View(1).isColumnHidden(5));
}

TEST_F(SplitWindowTest, TheDescriptionFillsWhatTheOthersLeave) {
  Window(1).resize(500, 400);
  const auto* border = Control<QFrame>(&Window(1), "brdMain");
  const QSize inner = Window(1).widget()->size();
  EXPECT_EQ(border->width(), inner.width() - ToPixels(120));
  EXPECT_EQ(border->height(), inner.height() - ToPixels(120));
  EXPECT_EQ(View(1).width(), border->width() - ToPixels(60));
  EXPECT_EQ(View(1).height(), border->height() - ToPixels(60));
  const int others = ToTwips(ToPixels(500) + ToPixels(600) + ToPixels(800));
  EXPECT_EQ(View(1).columnWidth(1), (ToTwips(View(1).width()) - 90 - 225 - others) / 15);
}

TEST_F(SplitWindowTest, ASmallWindowSnapsBackHeightFirst) {
  Window(1).resize(100, 100);
  EXPECT_EQ(Window(1).height(), 134);  // 2000 twips
  EXPECT_EQ(Window(1).width(), 200);   // 3000 twips
}

TEST_F(SplitWindowTest, LengthCellsAreWhiteOrRedAndReadableInAnyTheme) {
  EXPECT_EQ(Cell(1, 1, 4, Qt::BackgroundRole).value<QColor>(), QColor(255, 255, 255));
  EXPECT_EQ(Cell(1, 5, 4).toString(), "--:--");
  EXPECT_EQ(Cell(1, 5, 4, Qt::BackgroundRole).value<QColor>(), QColor(255, 0, 0));
  EXPECT_FALSE(Cell(1, 3, 4, Qt::BackgroundRole).isValid()) << "a total keeps the grid's colour";
  EXPECT_EQ(Cell(1, 1, 4, Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 0));
  EXPECT_EQ(Cell(1, 5, 4, Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 0));
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(30, 30, 30));
  dark.setColor(QPalette::Text, Qt::white);
  View(1).setPalette(dark);
  const QRect cell = View(1).visualRect(View(1).model()->index(4, 4));
  const QImage picture = View(1).viewport()->grab(cell).toImage();
  EXPECT_EQ(picture.pixelColor(picture.width() / 2, 2), QColor(255, 0, 0));
}

TEST_F(SplitWindowTest, ASelectedCellKeepsItsOwnColour) {
  gSplits(1).SelectBreakByTime(7 * 3600);
  const QRect cell = View(1).visualRect(View(1).model()->index(4, 4));
  const QImage picture = View(1).viewport()->grab(cell).toImage();
  EXPECT_EQ(picture.pixelColor(picture.width() / 2, 2), QColor(255, 0, 0));
}

TEST_F(SplitWindowTest, LengthsStandOnTheRight) {
  EXPECT_EQ(Cell(1, 1, 4, Qt::TextAlignmentRole).value<Qt::Alignment>(),
            Qt::AlignRight | Qt::AlignVCenter);
}

TEST_F(SplitWindowTest, TheWholeBreakStandsSelectedAtTheTop) {
  gSplits(1).SelectBreakByTime(7 * 3600);
  EXPECT_EQ(SelectedRows(1), std::pair(5, 5));
  EXPECT_EQ(View(1).verticalScrollBar()->value(), 4);
  gSplits(1).SelectBreakByTime(0);
  EXPECT_EQ(SelectedRows(1), std::pair(1, 2));
  EXPECT_EQ(View(1).verticalScrollBar()->value(), 0);
}

TEST_F(SplitWindowTest, ATimeBehindTheLastBreakLeavesTheTopRow) {
  gSplits(1).SelectBreakByTime(7 * 3600);
  gSplits(1).SelectBreakByTime(20 * 3600);
  EXPECT_EQ(gSplits(1).gridLog.Row(), 0);
  EXPECT_EQ(View(1).verticalScrollBar()->value(), 4);
  EXPECT_EQ(SelectedRows(1), std::pair(1, 2)) << "from the header to the end of the first break";
}

TEST_F(SplitWindowTest, AClickLinesUpAllActiveSplits) {
  Click(1, 8);
  EXPECT_EQ(SelectedRows(1), std::pair(8, 8));
  EXPECT_EQ(SelectedRows(2), std::pair(8, 8));
  EXPECT_EQ(View(2).verticalScrollBar()->value(), 7);
}

TEST_F(SplitWindowTest, AClickOnATotalRowTakesTheBreakAboveIt) {
  Click(1, 6);
  EXPECT_EQ(SelectedRows(1), std::pair(5, 5));
}

TEST_F(SplitWindowTest, AClickOnALaterRowOfTheFirstBreakSendsEverySplitToItsRowOne) {
  gSplits(2).SelectBreakByTime(7 * 3600);
  Click(1, 2);
  EXPECT_EQ(gSplits(1).gridLog.Row(), 1);
  EXPECT_EQ(gSplits(2).gridLog.Row(), 1);
}

TEST_F(SplitWindowTest, EnterLinesUpAsAClickDoesAndArrowsMoveAlone) {
  Click(1, 5);
  for (int i = 0; i < 3; ++i) QTest::keyClick(&View(1), Qt::Key_Down);
  EXPECT_EQ(gSplits(1).gridLog.Row(), 8);
  EXPECT_EQ(gSplits(2).gridLog.Row(), 5);
  QTest::keyClick(&View(1), Qt::Key_Return);
  EXPECT_EQ(gSplits(2).gridLog.Row(), 8);
}

TEST_F(SplitWindowTest, EnterOfTheKeypadIsEnterToo) {
  Click(1, 5);
  for (int i = 0; i < 3; ++i) QTest::keyClick(&View(1), Qt::Key_Down);
  QTest::keyClick(&View(1), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(gSplits(2).gridLog.Row(), 8);
}

TEST_F(SplitWindowTest, AClickIntoAnEmptyGridSendsTheOthersToTheirFirstBreak) {
  WriteLog(1, kDay, "");
  gSplits(1).LoadLogFile();
  ASSERT_EQ(gSplits(1).gridLog.Rows(), 1);
  for (const bool click : {true, false}) {
    gSplits(2).SelectBreakByTime(7 * 3600);
    ASSERT_EQ(gSplits(2).gridLog.Row(), 5);
    if (click) QTest::mouseClick(View(1).viewport(), Qt::LeftButton, {}, QPoint(20, 20));
    if (!click) QTest::keyClick(&View(1), Qt::Key_Return);
    EXPECT_EQ(gSplits(2).gridLog.Row(), 1);
    EXPECT_EQ(gSplits(1).gridLog.Row(), 0);
  }
  EXPECT_EQ(StoppedBy(), 0);
}

TEST_F(SplitWindowTest, AClickBesideTheRowsTakesTheCurrentRow) {
  Click(1, 5);
  gSplits(2).SelectBreakByTime(0);
  QTest::mouseClick(View(1).viewport(), Qt::LeftButton, {},
                    QPoint(20, View(1).viewport()->height() - 3));
  EXPECT_EQ(gSplits(2).gridLog.Row(), 5);
}

TEST_F(SplitWindowTest, InactiveSplitsStayAsTheyAre) {
  gGeneralSettings.NumberActiveSplits = 1;
  Click(1, 8);
  EXPECT_EQ(gSplits(1).gridLog.Row(), 8);
  EXPECT_EQ(gSplits(2).gridLog.Row(), 1);
}

TEST_F(SplitWindowTest, ARunTimeErrorOfAClickGoesToTheStopRoutine) {
  gGeneralSettings.NumberActiveSplits = 11;
  Click(1, 8);
  EXPECT_EQ(StoppedBy(), kSubscriptOutOfRange);
}

TEST_F(SplitWindowTest, ScrollingSetsTheGridsTopRow) {
  View(1).verticalScrollBar()->setValue(3);
  EXPECT_EQ(gSplits(1).gridLog.TopRow(), 4);
}

TEST_F(SplitWindowTest, ClosingMinimises) {
  Window(1).close();
  EXPECT_TRUE(Window(1).isMinimized());
  EXPECT_TRUE(gSplits.IsLoaded(1));
  gSplits.Unload(1);
  EXPECT_FALSE(gSplits.IsLoaded(1));
}

TEST_F(SplitWindowTest, NothingIsPaintedDuringAFill) {
  int resets = 0;
  QObject::connect(View(1).model(), &QAbstractItemModel::modelReset, [&] { ++resets; });
  gSplits(1).LoadLogFile();
  EXPECT_LE(resets, 3) << "once for the emptied grid, once for the full one";
  EXPECT_EQ(View(1).model()->rowCount(), gSplits(1).gridLog.Rows() - 1);
}

TEST_F(SplitWindowTest, TheCaptionIsTheSplitsNameAsPlainText) {
  EXPECT_EQ(Window(1).windowTitle(), "Split <b>1");
  const std::string names[] = {std::string(254, 'W'), "   ",           "A & B",
                               "say \"hi\"",          "<h1>loud</h1>", "changed[*]"};
  for (const std::string& name : names) {
    SettingsOf(1).SplitName = name;
    gSplits(1).UpdateInfo();
    EXPECT_EQ(gSplits(1).Caption(), name);
    EXPECT_FALSE(Window(1).grab().isNull());
  }
  EXPECT_EQ(Window(1).windowTitle(), "changed[*][*]");
}

TEST_F(SplitWindowTest, ANewWindowHasItsDesignCaption) {
  frmSplit fresh;
  EXPECT_EQ(fresh.windowTitle(), "Velmar Split");
}

TEST_F(SplitWindowTest, EverythingHasANameForThoseWhoCantSeeIt) {
  ExpectEverythingNamed(&Window(1));
  EXPECT_EQ(Cell(1, 5, 4, Qt::AccessibleTextRole).toString(), "--:--, no audio");
  EXPECT_EQ(Cell(1, 2, 0, Qt::AccessibleTextRole).toString(), "blank");
}

TEST_F(SplitWindowTest, TextFromALogIsDrawnAsItIs) {
  WriteLog(1, kDay, Line("06:00:30", 11, "<img src=x>\x01&amp;") + "\r\n");
  gSplits(1).LoadLogFile();
  EXPECT_TRUE(Cell(1, 1, 1).toString().startsWith("<img src=x>"));
  EXPECT_FALSE(View(1).grab().isNull());
}

TEST_F(SplitWindowTest, TabLeavesTheGridWhereItStands) {
  View(1).setFocus();
  const int row = View(1).currentIndex().row();
  const int column = View(1).currentIndex().column();
  QTest::keyClick(&View(1), Qt::Key_Tab);
  EXPECT_EQ(View(1).currentIndex().row(), row);
  EXPECT_EQ(View(1).currentIndex().column(), column);
  EXPECT_EQ(gSplits(1).gridLog.Row(), row + 1);
  EXPECT_FALSE(View(1).tabKeyNavigation()) << "it moves the focus on";
}

TEST_F(SplitWindowTest, TheGridFollowsTheFontAndTheStyleOfTheDesktop) {
  class WideFrames : public QProxyStyle {
   public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
      return metric == PM_DefaultFrameWidth ? 7 : QProxyStyle::pixelMetric(metric, option, widget);
    }
  };
  WideFrames wide;
  View(1).setStyle(&wide);
  EXPECT_EQ(View(1).frameWidth(), 7);
  View(1).setStyle(nullptr);
  const QFont before = QApplication::font();
  QFont other = before;
  other.setPixelSize(7);
  // The toolkit tells a child window of it only where its desktop has fonts of its own.
  const auto use = [&](const QFont& font) {
    QApplication::setFont(font);
    QEvent changed(QEvent::ApplicationFontChange);
    QApplication::sendEvent(&View(1), &changed);
  };
  use(other);
  EXPECT_EQ(View(1).font().pixelSize(), 7);
  EXPECT_EQ(View(1).horizontalHeader()->font(), View(1).font());
  EXPECT_EQ(View(1).verticalHeader()->defaultSectionSize(), CompactRowHeight());
  use(before);
  EXPECT_GT(View(1).font().pixelSize(), 7);
}

TEST_F(SplitWindowTest, TheGridBearsTheWindowsCaptionForThoseWhoCantSeeIt) {
  EXPECT_EQ(View(1).accessibleName().toStdString(), Window(1).Caption());
  SettingsOf(1).SplitName = "Other";
  gSplits(1).UpdateInfo();
  EXPECT_TRUE(View(1).accessibleName().contains("Other"));
}

}  // namespace
}  // namespace logchecker
