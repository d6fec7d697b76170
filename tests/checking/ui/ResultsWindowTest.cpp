#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QProgressBar>
#include <QToolButton>
#include <QTreeView>

#include "checking/ui/ResultsView.h"
#include "checking/ui/frmCheckBreaks.h"
#include "common/Numbers.h"
#include "common/ui/QtUserInterface.h"
#include "common/ui/Twips.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/checking/ui/ResultsTest.h"
#include "tests/support/ui/SizeRecorder.h"

namespace logchecker {
namespace {

TEST_F(ResultsTest, ShowsARowForEachTimeThatDiffers) {
  Check();
  EXPECT_EQ(window->windowTitle(), "Check Split Times");
  EXPECT_EQ(Rows(), 3);
  EXPECT_EQ(Cell(0, 0), "07:00");
  EXPECT_EQ(Cell(0, 1), "  :30.00");
  EXPECT_EQ(Cell(0, 2), "Not Found");
  EXPECT_TRUE(Button("cmdSave")->isEnabled());
  EXPECT_TRUE(Button("cmdPrint")->isEnabled());
  EXPECT_TRUE(Part("picNoResults")->isHidden());
  EXPECT_EQ(Control<QLabel>(window, "Label1")->text(),
            "These ad breaks did not match in all splits:");
}

TEST_F(ResultsTest, WithoutRowsThePanelCoversTheList) {
  SecondSplitAsTheFirst();
  Check();
  EXPECT_EQ(Rows(), 0);
  EXPECT_FALSE(Button("cmdSave")->isEnabled());
  EXPECT_FALSE(Button("cmdPrint")->isEnabled());
  EXPECT_TRUE(Part("picNoResults")->isVisible());
  EXPECT_EQ(Part("picNoResults")->geometry(), List()->geometry());
  EXPECT_EQ(window->widget()->childAt(List()->geometry().topLeft() + QPoint(5, 5)),
            Part("picNoResults"));
  EXPECT_EQ(Control<QLabel>(window, "lblNoResultsDesc")->text(), "There were no problems found.");
  EXPECT_TRUE(Part("Label1")->isVisible());
}

TEST_F(ResultsTest, TheListIsCalledByTheOutcomeForEars) {
  Check();
  EXPECT_EQ(List()->accessibleName(), "These ad breaks did not match in all splits:");
  SecondSplitAsTheFirst();
  window->CheckBreaks();
  EXPECT_EQ(List()->accessibleName(), "There were no problems found.");
}

TEST_F(ResultsTest, ALaterCheckReusesTheWindowAndItsColumns) {
  Check();
  gGeneralSettings.NumberActiveSplits = 1;
  window->CheckBreaks();
  EXPECT_EQ(Rows(), 0);
  EXPECT_EQ(List()->model()->columnCount(), 3) << "columns are built when the window loads";
  EXPECT_TRUE(Part("picNoResults")->isVisible());
  gGeneralSettings.NumberActiveSplits = 2;
  window->CheckBreaks();
  EXPECT_EQ(Rows(), 3);
  EXPECT_TRUE(Part("picNoResults")->isHidden());
}

TEST_F(ResultsTest, ColumnsAreTheTimeAndTheSplitsNamesCentred) {
  Check();
  const auto heading = [this](int column, int role) {
    return List()->model()->headerData(column, Qt::Horizontal, role);
  };
  EXPECT_EQ(heading(0, Qt::DisplayRole).toString(), "Time");
  EXPECT_EQ(heading(1, Qt::DisplayRole).toString(), "North & <b>");
  EXPECT_EQ(heading(1, Qt::TextAlignmentRole).value<Qt::Alignment>(), Qt::AlignCenter);
  EXPECT_EQ(List()->columnWidth(0), ToPixels(800));
}

TEST_F(ResultsTest, StandsInTheMiddleAndIs5000TwipsWide) {
  Check();
  EXPECT_EQ(window->width(), ToPixels(5000));
  EXPECT_EQ(window->x(), (area.viewport()->width() - window->width()) / 2);
  EXPECT_EQ(window->y(), (area.viewport()->height() - window->height()) / 2);
}

TEST_F(ResultsTest, ItBeginsAt5000TwipsWhateverWidthItHadBefore) {
  window = new frmCheckBreaks([] { return kDay; });
  area.addSubWindow(window);
  window->resize(600, 500);
  window->Load(area.viewport()->size());
  EXPECT_EQ(window->size(), QSize(ToPixels(5000), 500));
}

TEST_F(ResultsTest, ResizeLaysEverythingOutToTheTwip) {
  Check();
  for (const QSize size : {QSize(600, 400), QSize(333, 320), QSize(801, 501)}) {
    window->resize(size);
    const QSize inner = window->widget()->size();
    const auto* save = Button("cmdSave");
    const auto* print = Button("cmdPrint");
    const auto* bar = Part("ProgressBar1");
    EXPECT_EQ(print->size(), QSize(25, 25));
    EXPECT_EQ(print->x(), inner.width() - 8 - 25);
    EXPECT_EQ(save->x(), print->x() - 4 - 25);
    EXPECT_EQ(bar->y(), inner.height() - bar->height() - 4);
    EXPECT_EQ(bar->width(), inner.width() - 8);
    EXPECT_EQ(List()->width(), inner.width() - 16);
    EXPECT_EQ(List()->height(), bar->y() - 4 - List()->y());
    const int share = (ToTwips(List()->width()) - 90 - 255 - 800 + 5) / 2;
    EXPECT_NEAR(List()->columnWidth(1), share / 15, 1);
    EXPECT_EQ(List()->columnWidth(1), List()->columnWidth(2));
    EXPECT_EQ(Part("picNoResults")->geometry(), List()->geometry());
  }
}

TEST_F(ResultsTest, TheFirstColumnKeepsTheWidthThatItHas) {
  Check();
  List()->setColumnWidth(0, 90);
  window->resize(700, 400);
  EXPECT_EQ(List()->columnWidth(0), 90);
}

TEST_F(ResultsTest, AWidthThatTheUserGivesAColumnIsTheListsOwn) {
  ListView list;
  list.ColumnHeaders = {{"Time", 800}, {"North", 1400}, {"South", 1400}};
  ResultsView view(list);
  const auto share = [&](int width) {
    return ToInt32((ToTwips(view.width()) - 90 - 255 - width) / 2.0);
  };
  view.resize(300, 200);
  view.ShareColumns(false);
  EXPECT_EQ(list.ColumnHeaders[0].width, 800) << "as it is given, whatever pixels make of it";
  EXPECT_EQ(list.ColumnHeaders[1].width, share(800));
  view.header()->resizeSection(1, 150);
  EXPECT_EQ(list.ColumnHeaders[1].width, ToTwips(150));
  view.header()->resizeSection(0, 90);
  view.ShareColumns(true);
  EXPECT_EQ(list.ColumnHeaders[0].width, ToTwips(90));
  EXPECT_EQ(list.ColumnHeaders[2].width, share(ToTwips(90)));
}

TEST_F(ResultsTest, ASmallWindowSnapsBackHeightFirst) {
  Check();
  window->resize(50, 50);
  EXPECT_EQ(window->height(), 134);
  EXPECT_EQ(window->width(), 200);
}

TEST_F(ResultsTest, TheHeightIsSetAndTellsTheWindowBeforeTheWidthIs) {
  Check();
  const SizeRecorder recorder(window);
  window->resize(150, 100);
  EXPECT_EQ(recorder.sizes,
            (std::vector<QSize>{QSize(150, 100), QSize(150, 134), QSize(200, 134)}));
}

TEST_F(ResultsTest, AMaximisedWindowIsNotHeldToTheLeastSizes) {
  Check();
  area.resize(190, 130);
  window->showMaximized();
  EXPECT_EQ(window->size(), area.viewport()->size());
  EXPECT_LT(window->height(), 134);
  EXPECT_LT(window->width(), 200);
  EXPECT_EQ(List()->width(), window->widget()->width() - 16) << "and is laid out all the same";
  window->showNormal();
  EXPECT_GE(window->height(), 134);
}

TEST_F(ResultsTest, AMinimisedWindowIsLeftAsItIs) {
  Check();
  const QRect list = List()->geometry();
  window->showMinimized();
  EXPECT_LT(window->height(), 134);
  EXPECT_EQ(List()->geometry(), list);
  window->resize(120, window->height());
  EXPECT_EQ(window->width(), 120);
  EXPECT_EQ(List()->geometry(), list);
}

TEST_F(ResultsTest, WithOneSplitTheSecondColumnTakesAllTheRest) {
  gGeneralSettings.NumberActiveSplits = 1;
  Check();
  EXPECT_EQ(List()->model()->columnCount(), 2);
  EXPECT_NEAR(ToTwips(List()->columnWidth(0) + List()->columnWidth(1)),
              ToTwips(List()->width()) - 90 - 255, 15);
}

TEST_F(ResultsTest, AClickLinesUpEverySplit) {
  Check();
  ClickRow(1);
  EXPECT_EQ(gSplits(1).gridLog.TopRow(), 7) << "08:00";
  EXPECT_EQ(gSplits(2).gridLog.TopRow(), 4) << "08:01, the next there is";
}

TEST_F(ResultsTest, ADoubleClickDoesNothingMore) {
  Check();
  ClickRow(1);
  gSplits(1).SelectBreakByTime(6 * 3600);
  ASSERT_EQ(gSplits(1).gridLog.TopRow(), 1);
  // The press that makes it a double one, which follows the click.
  QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {},
                     List()->visualRect(List()->model()->index(1, 0)).center());
  EXPECT_EQ(gSplits(1).gridLog.TopRow(), 1);
  ASSERT_FALSE(window.isNull());
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(List()->findChild<QLineEdit*>(), nullptr) << "nothing is edited";
  EXPECT_EQ(List()->selectionModel()->selectedRows().size(), 1);
}

TEST_F(ResultsTest, EnterDoesWhatAClickDoes) {
  Check();
  ClickRow(0);
  QTest::keyClick(List(), Qt::Key_Down);
  QTest::keyClick(List(), Qt::Key_Return);
  EXPECT_EQ(gSplits(1).gridLog.TopRow(), 7);
}

TEST_F(ResultsTest, AClickWhereNoRowWasEverGoneToLeavesTheSplitsAlone) {
  Check();
  gSplits(1).SelectBreakByTime(7 * 3600);
  QTest::mouseClick(List()->viewport(), Qt::LeftButton, {},
                    QPoint(10, List()->viewport()->height() - 5));
  EXPECT_EQ(gSplits(1).gridLog.TopRow(), 4);
}

TEST_F(ResultsTest, AFocusThatSelectsNoRowLeavesTheSplitsAlone) {
  Check();
  gSplits(1).SelectBreakByTime(7 * 3600);
  Part("cmdSave")->setFocus();
  List()->setFocus(Qt::TabFocusReason);
  ASSERT_TRUE(List()->currentIndex().isValid()) << "the toolkit goes to the first row";
  QTest::mouseClick(List()->viewport(), Qt::LeftButton, {},
                    QPoint(10, List()->viewport()->height() - 5));
  QTest::keyClick(List(), Qt::Key_Return);
  EXPECT_EQ(gSplits(1).gridLog.TopRow(), 4);
  List()->selectionModel()->select(List()->model()->index(1, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
  QTest::keyClick(List(), Qt::Key_Return);
  EXPECT_EQ(gSplits(1).gridLog.TopRow(), 7) << "the row that is selected";
}

TEST_F(ResultsTest, TheTimeIsLookedUpAnewInAChangedLog) {
  Check();
  WriteLog(1, kDay, Line("06:30", 11) + "\r\n" + Line("09:00", 11) + "\r\n");
  gSplits(1).LoadLogFile();
  ClickRow(0);
  EXPECT_EQ(gSplits(1).gridLog.TopRow(), 4) << "09:00";
}

TEST_F(ResultsTest, TheRowThatIsOutOfTheDayRaisesNoError) {
  for (int16_t n = 1; n <= 2; ++n) {
    WriteLog(n, kDay, Line("00:00", 11) + "\r\n");
    gSplits(n).LoadLogFile();
  }
  Check();
  ASSERT_EQ(Rows(), 1);
  EXPECT_EQ(Cell(0, 0), "--:--");
  ClickRow(0);
  EXPECT_EQ(StoppedBy(), 0);
  EXPECT_EQ(gSplits(1).gridLog.Row(), 0);
}

TEST_F(ResultsTest, AClickOnAHeadingSortsNothing) {
  Check();
  QTest::mouseClick(List()->header()->viewport(), Qt::LeftButton, {}, QPoint(10, 8));
  EXPECT_EQ(Cell(0, 0), "07:00");
  EXPECT_FALSE(List()->isSortingEnabled());
}

TEST_F(ResultsTest, EscapeUnloadsTheWindow) {
  Check();
  QTest::keyClick(List(), Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(window.isNull());
}

TEST_F(ResultsTest, TheBarMovesForwardAndEndsAtZeroUnderTheHourglass) {
  Check();
  const auto* bar = Control<QProgressBar>(window, "ProgressBar1");
  EXPECT_EQ(bar->value(), 0);
  EXPECT_GT(ui.progress.size(), 1U);
  EXPECT_EQ(ui.pointers.back(), MousePointer::kDefault);
  EXPECT_NE(std::find(ui.pointers.begin(), ui.pointers.end(), MousePointer::kHourglass),
            ui.pointers.end());
}

TEST_F(ResultsTest, TheWindowsBarIsEmptyAfterAWalkOfOneStep) {
  std::string log;
  for (int i = 0; i < 60; ++i) log += Line("00:00", 11) + "\r\n";
  for (int16_t n = 1; n <= 2; ++n) {
    WriteLog(n, kDay, log);
    gSplits(n).LoadLogFile();
  }
  QtUserInterface real;
  Check();
  const auto* bar = Control<QProgressBar>(window, "ProgressBar1");
  EXPECT_GT(bar->maximum(), 100);
  EXPECT_EQ(bar->value(), 0);
}

// Counts the rows that the list shows at each step of a check.
class RowWatchingUi : public QtUserInterface {
 public:
  explicit RowWatchingUi(const QAbstractItemModel* rows) : rows_(rows) {}
  void ShowProgress(int32_t value, int32_t maximum) override {
    QtUserInterface::ShowProgress(value, maximum);
    if (value > 0) shown.push_back(rows_->rowCount());
  }

  std::vector<int> shown;

 private:
  const QAbstractItemModel* rows_;
};

TEST_F(ResultsTest, RowsAreSeenWhileTheCheckRuns) {
  Check();
  RowWatchingUi watching(List()->model());
  window->CheckBreaks();
  ASSERT_FALSE(watching.shown.empty());
  EXPECT_GT(watching.shown.back(), 0);
  EXPECT_EQ(Rows(), 3);
}

// Looks at the buttons of the window at each step of a check.
class ButtonWatchingUi : public RecordingUi {
 public:
  ButtonWatchingUi(const QWidget* save, const QWidget* print) : save_(save), print_(print) {}
  void ShowProgress(int32_t value, int32_t maximum) override {
    RecordingUi::ShowProgress(value, maximum);
    EXPECT_FALSE(save_->isEnabled());
    EXPECT_FALSE(print_->isEnabled());
  }

 private:
  const QWidget* save_;
  const QWidget* print_;
};

TEST_F(ResultsTest, BothButtonsAreDisabledWhileACheckRuns) {
  Check();
  ASSERT_TRUE(Button("cmdSave")->isEnabled());
  ASSERT_TRUE(Button("cmdPrint")->isEnabled());
  const ButtonWatchingUi watching(Button("cmdSave"), Button("cmdPrint"));
  window->CheckBreaks();
  EXPECT_GT(watching.progress.size(), 1U);
  EXPECT_TRUE(Button("cmdSave")->isEnabled());
  EXPECT_TRUE(Button("cmdPrint")->isEnabled());
}

TEST_F(ResultsTest, TheWindowIsShownBeforeTheComparisonBegins) {
  Check();
  EXPECT_EQ(ui.yields, 1);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ResultsTest, EverythingHasANameAndTheButtonsTheirTips) {
  Check();
  EXPECT_EQ(Button("cmdSave")->toolTip(), "Export to a CSV File");
  EXPECT_EQ(Button("cmdPrint")->toolTip(), "Print the Report");
  EXPECT_EQ(Button("cmdSave")->accessibleName(), "Save");
  EXPECT_EQ(Button("cmdPrint")->accessibleName(), "Print");
  ExpectEverythingNamed(window);
  ExpectFocusSeen(window);
}

}  // namespace
}  // namespace logchecker
