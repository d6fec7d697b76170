// What a split's window says of its log and of a break that is not there.
#include <QHelpEvent>
#include <QMdiArea>
#include <QToolTip>

#include "common/ui/Contrast.h"
#include "common/ui/StationQString.h"
#include "splitlogs/LogWords.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "splitlogs/ui/LogGridView.h"
#include "splitlogs/ui/frmSplit.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class SplitTellsTest : public WindowTest {
 protected:
  SplitTellsTest() {
    gSplits.SetFactory([this] {
      auto split = std::make_unique<frmSplit>();
      area.addSubWindow(split.get());
      return split;
    });
    gGeneralSettings.NumberActiveSplits = 1;
    area.resize(1000, 700);
    area.show();
    OpenStore(100);
    PutCart(11, 30.0F);
    WriteLog(1, kDay,
             "06:00:00|NTH  00000011 A\r\n\r\n"
             "07:30:00|NTH  00000011 B\r\n07:30:30|NTH  00000011 C\r\n\r\n");
    SettingsOf(1).SplitName = "Split <b>1";
    SettingsOf(1).LogDate = kDay;
    gSplits(1).UpdateInfo();
    Window().show();
    gSplits(1).LoadLogFile();
    gSplits(1).SelectBreakByTime(0);
  }
  ~SplitTellsTest() override {
    QToolTip::hideText();
    gSplits.UnloadAll();
  }

  static frmSplit& Window() { return static_cast<frmSplit&>(gSplits(1)); }
  static LogGridView& View() { return *Control<LogGridView>(&Window(), "gridLog"); }
  // What the pointer is told after a rest at a place in a widget.
  static QString TipAt(QWidget* widget, const QPoint& place) {
    QToolTip::showText({}, "none", widget);
    QHelpEvent help(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &help);
    return QToolTip::text() == "none" ? QString() : QToolTip::text();
  }
  static QPoint MiddleOf(int row, int column = kDescriptionColumn) {
    return View().visualRect(View().model()->index(row - 1, column)).center();
  }
  static QImage Picture(int row) {
    return View()
        .viewport()
        ->grab(View().visualRect(View().model()->index(row - 1, kDescriptionColumn)))
        .toImage();
  }

  QMdiArea area;
};

TEST_F(SplitTellsTest, TheTitleBarTellsTheLogAsPlainText) {
  const QPoint title(Window().width() / 2, 10);
  const QString words = ToQString(LogInWords(Window()));
  EXPECT_EQ(TipAt(&Window(), title), AsToolTip(words));
  EXPECT_FALSE(QToolTip::text().contains("<b>"));
  EXPECT_TRUE(QToolTip::text().contains("2 breaks, 3 adverts"));
  EXPECT_EQ(Window().accessibleDescription(), words);
  SettingsOf(1).LogDate = kDay + 1;
  gSplits(1).LoadLogFile();
  EXPECT_EQ(TipAt(&Window(), title), AsToolTip(ToQString(LogInWords(Window()))));
  EXPECT_EQ(Window().accessibleDescription(), ToQString(LogInWords(Window())));
}

TEST_F(SplitTellsTest, ItsButtonsAndTheRestOfTheWindowKeepTheirOwn) {
  const QString words = AsToolTip(ToQString(LogInWords(Window())));
  EXPECT_NE(TipAt(&Window(), {Window().width() - 12, 12}), words);
  EXPECT_NE(TipAt(&Window(), {Window().width() / 2, Window().height() - 3}), words);
  EXPECT_NE(TipAt(View().viewport(), MiddleOf(1)), words);
}

TEST_F(SplitTellsTest, ABreakThatStandsInIsHollowAndSaysSo) {
  const QColor highlight = View().palette().color(QPalette::Active, QPalette::Highlight);
  const auto filled = [&](int row) {
    const QImage cell = Picture(row);
    const QColor inner = cell.pixelColor(cell.width() - 3, cell.height() / 2);
    const auto fill = [&](QPalette::ColorGroup group) {
      const QPalette& colours = View().palette();
      return ReadableUnder(colours.color(group, QPalette::HighlightedText),
                           colours.color(group, QPalette::Highlight));
    };
    return inner == fill(QPalette::Active) || inner == fill(QPalette::Inactive);
  };
  gSplits(1).SelectBreakByTime(7 * 3600 + 1800);
  EXPECT_TRUE(filled(4));
  EXPECT_TRUE(filled(5));
  EXPECT_TRUE(View().accessibleDescription().startsWith("Keys: "));
  EXPECT_EQ(TipAt(View().viewport(), MiddleOf(4)), "");

  gSplits(1).SelectBreakByTime(7 * 3600);
  EXPECT_EQ(gSplits(1).gridLog.Row(), 4) << "it is the next break all the same";
  EXPECT_EQ(View().selectionModel()->selectedRows().size(), 2);
  EXPECT_FALSE(filled(4));
  EXPECT_FALSE(filled(5));
  EXPECT_EQ(Picture(4).pixelColor(2, 0), highlight) << "a line above the first row";
  EXPECT_NE(Picture(5).pixelColor(2, 0), highlight);
  const QString words = "No break at 07:00: this is the next, at 07:30";
  EXPECT_TRUE(View().accessibleDescription().startsWith(words + ". Keys: "));
  EXPECT_EQ(TipAt(View().viewport(), MiddleOf(4)), AsToolTip(words));
  EXPECT_EQ(TipAt(View().viewport(), MiddleOf(6)), "") << "a row that is not selected";

  gSplits(1).SelectBreakByTime(7 * 3600 + 1800);
  EXPECT_TRUE(filled(4)) << "asked for, the same break is a hit";
  EXPECT_TRUE(View().accessibleDescription().startsWith("Keys: "));
}

TEST_F(SplitTellsTest, AnArrowEndsTheStandIn) {
  gSplits(1).SelectBreakByTime(7 * 3600);
  View().setFocus();
  QTest::keyClick(&View(), Qt::Key_Down);
  EXPECT_FALSE(gSplits(1).gridLog.MissedTime());
  EXPECT_TRUE(View().accessibleDescription().startsWith("Keys: "));
}

}  // namespace
}  // namespace logchecker
