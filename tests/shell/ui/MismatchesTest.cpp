// F8 and Shift+F8: from one mismatch to the next without leaving the grid.
#include <QAbstractItemView>
#include <QToolTip>

#include "common/ui/StationQString.h"
#include "splitlogs/ui/LogGridView.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

// Split 3 has its last break at 08:01, the others at 08:00; split 2 lacks that of 07:00 too.
class MismatchesTest : public MainTest {
 protected:
  MismatchesTest() {
    WriteLog(2, kTomorrow, Line("06:00", 11) + "\r\n" + Line("08:00", 12) + "\r\n");
  }
  ~MismatchesTest() override { QToolTip::hideText(); }

  QWidget* Grid(int16_t n) { return Control<QWidget>(&Window(n), "gridLog"); }
  QAbstractItemView* List() { return Control<QAbstractItemView>(Results(), "lvwResults"); }
  void Go(Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(main->focusWidget(), Qt::Key_F8, modifiers);
  }
  void GoBack() { Go(Qt::ShiftModifier); }
  static std::string At(int16_t split) {
    const LogGrid& grid = gSplits(split).gridLog;
    return std::string(grid.Text(grid.Row(), kTimeColumn));
  }
  // Which row of the results is selected, from 0; -1 for none or several.
  int Row() {
    const QModelIndexList rows = List()->selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.front().row() : -1;
  }
};

TEST_F(MismatchesTest, WithoutResultsTheDayIsCheckedAndTheFocusStays) {
  ASSERT_TRUE(Start());
  Go();
  ASSERT_NE(Results(), nullptr);
  EXPECT_EQ(List()->model()->rowCount(), 3) << "07:00, 08:00 and 08:01";
  EXPECT_EQ(main->focusWidget(), Grid(1));
  EXPECT_EQ(Area()->activeSubWindow(), &Window(1));
  EXPECT_EQ(Area()->subWindowList(QMdiArea::StackingOrder).last(), Results()) << "seen beside it";
  EXPECT_EQ(Row(), 0);
  EXPECT_EQ(At(1), "07:00");
}

TEST_F(MismatchesTest, EachKeyGoesOnFromWhereTheUserIs) {
  ASSERT_TRUE(Start());
  Go();
  Go();
  EXPECT_EQ(Row(), 1);
  EXPECT_EQ(At(1), "08:00");
  EXPECT_EQ(At(3), "08:01") << "a split without a break there shows the next";
  Go();
  EXPECT_EQ(Row(), 2);
  GoBack();
  EXPECT_EQ(Row(), 1);
  GoBack();
  EXPECT_EQ(Row(), 0);
  EXPECT_EQ(main->focusWidget(), Grid(1));
  // Elsewhere in the day by hand.
  gSplits(1).SelectBreakByTime(8 * 3600);
  Go();
  EXPECT_EQ(Row(), 2);
  gSplits(1).SelectBreakByTime(6 * 3600);
  Go();
  EXPECT_EQ(Row(), 0);
}

// Split 2 shows the break of 08:00 for that of 07:00, which is where the user is all the same.
TEST_F(MismatchesTest, ABreakThatStandsInIsNotWhereTheUserIs) {
  ASSERT_TRUE(Start());
  Area()->setActiveSubWindow(&Window(2));
  Go();
  EXPECT_EQ(Row(), 0);
  EXPECT_EQ(At(2), "08:00");
  Go();
  EXPECT_EQ(Row(), 1) << "not past the one that is shown already";
  GoBack();
  EXPECT_EQ(Row(), 0) << "nor back to the same";
}

TEST_F(MismatchesTest, AMismatchAtTheFirstBreakIsNotPassedOver) {
  WriteLog(2, kTomorrow, Line("07:00", 11) + "\r\n");
  ASSERT_TRUE(Start());
  Go();
  EXPECT_EQ(Row(), 0);
  EXPECT_EQ(At(1), "06:00");
}

TEST_F(MismatchesTest, InTheResultsItGoesFromRowToRow) {
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  ASSERT_EQ(main->focusWidget(), List());
  GoBack();
  EXPECT_EQ(Row(), 2) << "without a selected row the last one is the previous";
  GoBack();
  EXPECT_EQ(Row(), 1);
  EXPECT_EQ(At(1), "08:00");
  EXPECT_EQ(main->focusWidget(), List());
}

TEST_F(MismatchesTest, AtTheEndItSaysSoAndStays) {
  ASSERT_TRUE(Start());
  for (int i = 0; i < 3; ++i) Go();
  EXPECT_EQ(QToolTip::text(), "");
  Go();
  EXPECT_EQ(Row(), 2);
  EXPECT_EQ(QToolTip::text(), AsToolTip("No mismatch after 08:01"));
  for (int i = 0; i < 3; ++i) GoBack();
  EXPECT_EQ(Row(), 0);
  EXPECT_EQ(QToolTip::text(), AsToolTip("No mismatch before 07:00"));
}

TEST_F(MismatchesTest, ADayThatMatchesSaysSo) {
  for (int16_t n = 1; n <= 3; ++n) WriteLog(n, kTomorrow, Log("08:00"));
  ASSERT_TRUE(Start());
  Go();
  EXPECT_EQ(QToolTip::text(), AsToolTip("There were no problems found."));
  EXPECT_EQ(main->focusWidget(), Grid(1));
}

}  // namespace
}  // namespace logchecker
