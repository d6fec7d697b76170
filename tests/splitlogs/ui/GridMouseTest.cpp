// What the mouse does to a split's grid.
#include <QMdiArea>

#include "common/GeneralSettings.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "splitlogs/ui/LogGridView.h"
#include "splitlogs/ui/frmSplit.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

// Two splits of four breaks, each of three rows: the first rows are 1, 4, 7 and 10.
class GridMouseTest : public WindowTest {
 protected:
  GridMouseTest() {
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
    std::string log;
    for (const char* time : {"06:00", "07:00", "08:00", "09:00"}) {
      char line[128];
      std::snprintf(line, sizeof line, "%s:00|NTH  %08d %-30s      REF\r\n\r\n", time, 11,
                    "ADVERT");
      log += line;
    }
    for (int16_t n = 1; n <= 2; ++n) {
      WriteLog(n, kDay, log);
      SettingsOf(n).LogDate = kDay;
      gSplits(n).UpdateInfo();
      static_cast<frmSplit&>(gSplits(n)).show();
      gSplits(n).LoadLogFile();
      gSplits(n).SelectBreakByTime(0);
    }
  }
  ~GridMouseTest() override { gSplits.UnloadAll(); }

  static LogGridView& View() {
    return *Control<LogGridView>(&static_cast<frmSplit&>(gSplits(1)), "gridLog");
  }
  // The middle of a row, counted as the grid does, where it stands now.
  static QPoint Place(int row) {
    return View().visualRect(View().model()->index(row - 1, kDescriptionColumn)).center();
  }
  static void Press(Qt::MouseButton button, QPoint place) {
    QTest::mousePress(View().viewport(), button, {}, place);
  }
  static void Release(Qt::MouseButton button, QPoint place) {
    QTest::mouseRelease(View().viewport(), button, {}, place);
  }
  static std::pair<int, int> Rows() { return {gSplits(1).gridLog.Row(), gSplits(2).gridLog.Row()}; }

  QMdiArea area;
};

TEST_F(GridMouseTest, ADoubleClickIsOneClick) {
  const QPoint place = Place(4);
  Press(Qt::LeftButton, place);
  Release(Qt::LeftButton, place);
  ASSERT_EQ(Rows(), std::pair(4, 4));
  // The row is the top one now, and another lies under the pointer.
  QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Rows(), std::pair(4, 4));
  EXPECT_EQ(View().selectionModel()->selectedRows().size(), 1);
}

TEST_F(GridMouseTest, ADragTakesTheRowThatWasPressed) {
  const QPoint from = Place(4);
  const QPoint to = Place(10);
  Press(Qt::LeftButton, from);
  for (int step = 1; step <= 4; ++step) {
    const QPoint place = from + (to - from) * step / 4;
    QMouseEvent move(QEvent::MouseMove, place, View().viewport()->mapToGlobal(place), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(View().viewport(), &move);
  }
  Release(Qt::LeftButton, to);
  EXPECT_EQ(Rows(), std::pair(4, 4));
}

TEST_F(GridMouseTest, TheOtherButtonsDoNothing) {
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    const QPoint place = Place(7);
    Press(button, place);
    Release(button, place);
    QTest::mouseDClick(View().viewport(), button, {}, place);
    EXPECT_EQ(Rows(), std::pair(1, 1));
    EXPECT_EQ(View().currentIndex().row(), 0);
  }
}

}  // namespace
}  // namespace logchecker
