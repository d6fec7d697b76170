// The panel that tells which splits show the log of another day.
#include <QLabel>
#include <QStatusBar>

#include "common/ui/StationQString.h"
#include "splitlogs/LogWords.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

class OtherDaysTest : public MainTest {
 protected:
  QLabel* Panel() { return Control<QLabel>(main.get(), "otherdays"); }
  static QString Long(int32_t day) { return ToQString(DayInWords(day)); }
};

TEST_F(OtherDaysTest, IsThereOnlyWhileASplitShowsAnotherDay) {
  ASSERT_TRUE(Start());
  EXPECT_TRUE(Panel()->isHidden());
  WriteLog(1, kTomorrow + 1, Log("08:00"));
  WriteLog(2, kTomorrow + 1, Log("08:00"));
  main->LoadLogs(kTomorrow + 1);
  ASSERT_TRUE(Panel()->isVisible());
  const QString words = "Split 3 & <b> shows " + Long(kTomorrow);
  EXPECT_EQ(Panel()->text(), words);
  EXPECT_EQ(Panel()->accessibleName(), words);
  EXPECT_EQ(Panel()->textFormat(), Qt::PlainText);
  EXPECT_FALSE(Panel()->toolTip().contains("<b>"));
  EXPECT_TRUE(Panel()->toolTip().contains(Long(kTomorrow + 1))) << "the day without a log";
  EXPECT_EQ(Panel()->parentWidget(), main->statusBar());
  EXPECT_EQ(Control<QLabel>(main.get(), "splits")->text(), "3 Splits");
  main->LoadLogs(kTomorrow);
  EXPECT_TRUE(Panel()->isHidden());
}

TEST_F(OtherDaysTest, ListsSeveralAndEndsInDotsWhereTheFrameIsNarrow) {
  ASSERT_TRUE(Start());
  WriteLog(1, kTomorrow + 1, Log("08:00"));
  main->LoadLogs(kTomorrow + 1);
  main->LoadLogs(kTomorrow + 2);
  const QString words = "Split 2 & <b>, Split 3 & <b> show " + Long(kTomorrow) +
                        "; Split 1 & <b> shows " + Long(kTomorrow + 1);
  EXPECT_EQ(Panel()->accessibleName(), words);
  main->resize(420, 500);
  QCoreApplication::processEvents();
  EXPECT_EQ(main->width(), 420) << "the text does not hold the frame";
  EXPECT_NE(Panel()->text(), words);
  EXPECT_TRUE(Panel()->text().endsWith(QChar(0x2026)));
  EXPECT_EQ(Panel()->accessibleName(), words);
  EXPECT_TRUE(Panel()->toolTip().contains(Long(kTomorrow + 1)));
}

TEST_F(OtherDaysTest, IsDescribedWithoutMarks) {
  ASSERT_TRUE(Start());
  main->LoadLogs(kTomorrow + 2);
  EXPECT_EQ(Panel()->accessibleDescription(), "There is no log of " + Long(kTomorrow + 2));
}

TEST_F(OtherDaysTest, GoesWithTheSplitThatIsTakenAway) {
  ASSERT_TRUE(Start());
  WriteLog(1, kTomorrow + 1, Log("08:00"));
  WriteLog(2, kTomorrow + 1, Log("08:00"));
  main->LoadLogs(kTomorrow + 1);
  ASSERT_TRUE(Panel()->isVisible());
  gGeneralSettings.NumberActiveSplits = 2;
  main->UpdateSplitInfo();
  EXPECT_TRUE(Panel()->isHidden());
}

}  // namespace
}  // namespace logchecker
