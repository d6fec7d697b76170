#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QTimerEvent>
#include <QToolBar>

#include "checking/ui/frmCheckBreaks.h"
#include "common/ui/ClickableLabel.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "dialogs/ui/frmSelectHour.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

using MainWindowTest = MainTest;

TEST_F(MainWindowTest, MenusStandInTheirOrder) {
  ASSERT_TRUE(Start());
  QStringList captions;
  QStringList names;
  for (QAction* menu : main->findChild<QWidget*>("mnuFile")->parentWidget()->actions()) {
    captions.push_back(menu->text());
    if (menu->menu()->objectName() == "mnuWindow") continue;
    for (QAction* entry : menu->menu()->actions()) {
      names.push_back(entry->objectName());
      captions.push_back(entry->isSeparator() ? "-" : entry->text());
    }
  }
  EXPECT_EQ(names,
            QStringList({"mnuPrint", "mnuExitSep", "mnuFileExit", "mnuSettingsGeneral",
                         "mnuCartLocations", "mnuLogSettingsSep", "mnuLogSettings1",
                         "mnuLogSettings2", "mnuLogSettings3", "mnuLogSettings4", "mnuLogSettings5",
                         "mnuLogSettings6", "mnuLogSettings7", "mnuLogSettings8", "mnuLogSettings9",
                         "mnuLogSettings10", "mnuAbout"}));
  EXPECT_EQ(captions, QStringList({"&File",
                                   "&Print",
                                   "-",
                                   "E&xit",
                                   "&Settings",
                                   "&General Settings",
                                   "&Cart Locations",
                                   "-",
                                   "Change the settings for Split 1 && <b>",
                                   "Change the settings for Split 2 && <b>",
                                   "Change the settings for Split 3 && <b>",
                                   "",
                                   "",
                                   "",
                                   "",
                                   "",
                                   "",
                                   "",
                                   "&Window",
                                   "&Help",
                                   "&About"}));
  EXPECT_EQ(Entry("mnuPrint")->shortcut(), QKeySequence("Ctrl+P"));
}

TEST_F(MainWindowTest, BeforeTheStartTheEntriesHaveTheirDesignCaptions) {
  main = std::make_unique<frmMain>();
  EXPECT_EQ(Entry("mnuLogSettings10")->text(), "Split 10 Log Settings");
  EXPECT_EQ(main->windowTitle(), "Velmar KLT Log Checker");
  EXPECT_EQ(Control<QLabel>(main.get(), "splits")->text(), "# Splits");
}

TEST_F(MainWindowTest, OnASmallScreenThereIsRoomLeftForItsFrame) {
  main = std::make_unique<frmMain>();
  const QSize room = main->screen()->availableSize() - main->size();
  EXPECT_GE(room.width(), 16);
  EXPECT_GE(room.height(), 48);
}

TEST_F(MainWindowTest, TheToolbarHasTheTwoJobs) {
  ASSERT_TRUE(Start());
  const struct {
    const char* button;
    const char* tip;
    const char* label;
    const char* caption;
  } jobs[] = {{"sftLoad", "Load a days log", "lblLoadDay", "Load Day"},
              {"sftCheckBreaks", "Test each advert break to see if matches in each split",
               "lblCheckDay", "Check Day"}};
  for (const auto& job : jobs) {
    auto* button = Control<QToolButton>(main.get(), job.button);
    EXPECT_EQ(button->toolTip(), job.tip);
    EXPECT_EQ(button->accessibleName(), job.caption);
    EXPECT_FALSE(button->icon().isNull());
    EXPECT_EQ(Control<QLabel>(main.get(), job.label)->text(), job.caption);
    EXPECT_TRUE(Control<QToolBar>(main.get(), "picToolbar")->isAncestorOf(button));
  }
  EXPECT_EQ(Control<QToolBar>(main.get(), "picToolbar")->windowTitle(), "Jobs");
}

TEST_F(MainWindowTest, TheStatusBarCountsTheSplits) {
  ASSERT_TRUE(Start());
  auto* panel = Control<QLabel>(main.get(), "splits");
  EXPECT_EQ(panel->text(), "3 Splits");
  EXPECT_EQ(panel->toolTip(),
            "This is the number of splits that can be controlled from this terminal");
  EXPECT_EQ(Control<QStatusBar>(main.get(), "StatusBar1"), main->statusBar());
}

TEST_F(MainWindowTest, TheTimersDoNothingAndOnlyStopThemselves) {
  ASSERT_TRUE(Start());
  for (const char* name : {"tmrCartList", "tmrAdbreak"}) {
    auto* timer = Control<QTimer>(main.get(), name);
    EXPECT_EQ(timer->interval(), 1000);
    EXPECT_FALSE(timer->isActive());
    timer->start();
    QTimerEvent tick(timer->timerId());
    QCoreApplication::sendEvent(timer, &tick);
    EXPECT_FALSE(timer->isActive());
  }
}

TEST_F(MainWindowTest, LoadDayOffersTheDayAndLoadsTheOneChosen) {
  ASSERT_TRUE(Start());
  WriteLog(1, kTomorrow + 5, Line("09:00", 11) + "\r\n");
  SettingsOf(1).LogDate = kTomorrow;
  {
    DialogScript script([](QDialog* dialog) {
      auto* picker = qobject_cast<frmSelectHour*>(dialog);
      ASSERT_NE(picker, nullptr);
      EXPECT_EQ(picker->Tag, "4640200");
      EXPECT_EQ(Control<QLineEdit>(picker, "txtMinutes")->text(), "00");
      EXPECT_EQ(Control<QLineEdit>(picker, "TimeT")->text(), "0");
      for (int i = 0; i < 5; ++i) {
        QTest::keyClick(Control<QWidget>(picker, "DayScroll"), Qt::Key_Right);
      }
      Control<QLineEdit>(picker, "TimeT")->setText("17");
      Control<QPushButton>(picker, "OKB")->click();
    });
    Press("sftLoad");
  }
  EXPECT_EQ(CurrentLogDate, kTomorrow + 5);
  EXPECT_EQ(gSplits(1).gridLog.Rows(), 4);
  EXPECT_EQ(gSplits(2).gridLog.Rows(), 10) << "without a log of its own, the older is shown again";
  EXPECT_EQ(main->windowTitle().toStdString(), CaptionOfDay(kTomorrow + 5));
}

TEST_F(MainWindowTest, ACancelledPickerLoadsNothing) {
  ASSERT_TRUE(Start());
  gSplits(1).gridLog.SetRows(1);
  DialogScript script([](QDialog* dialog) { dialog->reject(); });
  QTest::mouseClick(Control<QWidget>(main.get(), "lblLoadDay"), Qt::LeftButton);
  EXPECT_EQ(gSplits(1).gridLog.Rows(), 1);
  EXPECT_EQ(CurrentLogDate, kTomorrow);
}

TEST_F(MainWindowTest, CheckDayOpensTheResultsOnceAndReusesThem) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(Results(), nullptr);
  Press("sftCheckBreaks");
  auto* results = Results();
  ASSERT_NE(results, nullptr);
  EXPECT_EQ(Control<QAbstractItemView>(results, "lvwResults")->model()->rowCount(), 2);
  QTest::mouseClick(Control<QWidget>(main.get(), "lblCheckDay"), Qt::LeftButton);
  EXPECT_EQ(Results(), results);
  results->showMinimized();
  Area()->setActiveSubWindow(&Window(1));
  Press("sftCheckBreaks");
  EXPECT_FALSE(results->isMinimized());
  EXPECT_EQ(Area()->activeSubWindow(), results) << "it comes to the front";
}

TEST_F(MainWindowTest, PrintBeginsEnabledAndThenFollowsTheResultsWindow) {
  ASSERT_TRUE(Start());
  EXPECT_TRUE(Entry("mnuPrint")->isEnabled());
  Area()->setActiveSubWindow(&Window(2));
  EXPECT_TRUE(Entry("mnuPrint")->isEnabled());
  Entry("mnuPrint")->trigger();
  EXPECT_EQ(StoppedBy(), 0) << "no suitable window, nothing happens";
  Press("sftCheckBreaks");
  EXPECT_TRUE(Entry("mnuPrint")->isEnabled());
  Area()->setActiveSubWindow(&Window(1));
  EXPECT_FALSE(Entry("mnuPrint")->isEnabled());
  Area()->setActiveSubWindow(Results());
  EXPECT_TRUE(Entry("mnuPrint")->isEnabled());
  Results()->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Results(), nullptr);
  EXPECT_FALSE(Entry("mnuPrint")->isEnabled());
}

TEST_F(MainWindowTest, FewerSplitsTakeTheirWindowsAndTheirGridsAway) {
  ASSERT_TRUE(Start());
  gGeneralSettings.NumberActiveSplits = 2;
  main->UpdateSplitInfo();
  EXPECT_FALSE(gSplits.IsLoaded(3));
  EXPECT_FALSE(Entry("mnuLogSettings3")->isVisible());
  EXPECT_EQ(Entry("mnuLogSettings3")->text(), "");
  EXPECT_EQ(Control<QLabel>(main.get(), "splits")->text(), "2 Splits");
  EXPECT_GT(SettingsOf(3).LogFileNumber, 0) << "its log stays open";
  gGeneralSettings.NumberActiveSplits = 3;
  main->UpdateSplitInfo();
  EXPECT_TRUE(Window(3).isVisible());
  EXPECT_EQ(gSplits(3).gridLog.Rows(), 1) << "empty until the next load";
  main->LoadLogs(kTomorrow);
  EXPECT_EQ(gSplits(3).gridLog.Rows(), 10);
}

TEST_F(MainWindowTest, WindowsAreArrangedByRowsTheFirstLowestAndOnTop) {
  ASSERT_TRUE(Start());
  const int inner = Area()->viewport()->width();
  const int width = inner * 2 / 5;  // two in a row
  for (int16_t n = 1; n <= 3; ++n) Window(n).resize(width, 300);
  main->UpdateSplitInfo();
  EXPECT_EQ(Window(1).pos(), QPoint(0, 40));  // 600 twips
  EXPECT_EQ(Window(2).pos(), QPoint(width, 40));
  EXPECT_EQ(Window(3).pos(), QPoint(0, 0));
  EXPECT_EQ(Window(1).height(), Area()->viewport()->height() - 40);
  EXPECT_EQ(Window(3).height(), Area()->viewport()->height());
  EXPECT_EQ(Area()->activeSubWindow(), &Window(1));
  const QList<QMdiSubWindow*> stack = Area()->subWindowList(QMdiArea::StackingOrder);
  EXPECT_EQ(stack.last(), &Window(1));
  EXPECT_LT(stack.indexOf(&Window(3)), stack.indexOf(&Window(2)));
}

TEST_F(MainWindowTest, AMinimisedWindowStandsInItsPlaceAgain) {
  ASSERT_TRUE(Start());
  Window(2).close();
  EXPECT_TRUE(Window(2).isMinimized());
  main->UpdateSplitInfo();
  EXPECT_FALSE(Window(2).isMinimized());
  EXPECT_GT(Window(2).height(), 200);
}

TEST_F(MainWindowTest, ASplitWindowWiderThanTheFrameStopsTheProgram) {
  ASSERT_TRUE(Start());
  Window(1).resize(Area()->viewport()->width() + 40, 300);
  Guarded([&] { main->UpdateSplitInfo(); });
  EXPECT_EQ(StoppedBy(), kDivisionByZero);
}

TEST_F(MainWindowTest, TheWindowListHasTheOpenChildrenInPlainText) {
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  auto* menu = Control<QMenu>(main.get(), "mnuWindow");
  emit menu->aboutToShow();
  emit menu->aboutToShow();  // each time anew
  QStringList entries;
  for (QAction* entry : menu->actions()) entries.push_back(entry->text());
  EXPECT_EQ(entries, QStringList({"&1 Split 1 && <b>", "&2 Split 2 && <b>", "&3 Split 3 && <b>",
                                  "&4 Check Split Times"}));
  EXPECT_TRUE(menu->actions()[3]->isChecked());
  Window(2).close();
  menu->actions()[1]->trigger();
  EXPECT_EQ(Area()->activeSubWindow(), &Window(2));
  EXPECT_FALSE(Window(2).isMinimized());
}

TEST_F(MainWindowTest, AnEntryOfTheWindowListBringsItsWindowToTheFront) {
  ASSERT_TRUE(Start());
  Window(2).showMinimized();
  auto* menu = Control<QMenu>(main.get(), "mnuWindow");
  for (const int16_t n : {int16_t{3}, int16_t{2}, int16_t{1}}) {
    emit menu->aboutToShow();
    QAction* entry = nullptr;
    for (QAction* action : menu->actions()) {
      if (action->text().endsWith(AsMenuText(Window(n).windowTitle()))) entry = action;
    }
    ASSERT_NE(entry, nullptr) << n;
    entry->trigger();
    EXPECT_EQ(Area()->activeSubWindow(), &Window(n)) << n;
    EXPECT_FALSE(Window(n).isMinimized()) << n;
  }
}

TEST_F(MainWindowTest, TheFrameIsNeverLowerThan3000Twips) {
  ASSERT_TRUE(Start());
  main->resize(700, 120);
  EXPECT_EQ(main->frameGeometry().height(), ToPixels(3000));
}

TEST_F(MainWindowTest, AMinimisedFrameHasNoLeastHeight) {
  ASSERT_TRUE(Start());
  main->showMinimized();
  main->resize(700, 160);
  EXPECT_EQ(main->height(), 160);
  main->showNormal();
  main->resize(700, 161);
  EXPECT_EQ(main->frameGeometry().height(), ToPixels(3000));
}

TEST_F(MainWindowTest, TheKeyboardReachesToolbarAndWindows) {
  ASSERT_TRUE(Start());
  Area()->setActiveSubWindow(&Window(2));
  QTest::keyClick(main.get(), Qt::Key_F6);
  EXPECT_EQ(main->focusWidget(), Control<QWidget>(main.get(), "sftLoad"));
  QTest::keyClick(main->focusWidget(), Qt::Key_F6);
  EXPECT_TRUE(Window(2).isAncestorOf(main->focusWidget()));
  QTest::keyClick(main.get(), Qt::Key_D, Qt::ControlModifier);
  EXPECT_NE(Results(), nullptr);
}

TEST_F(MainWindowTest, EverythingHasANameForThoseWhoCantSeeIt) {
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  ExpectEverythingNamed(main.get());
  ExpectFocusSeen(main.get());
}

TEST_F(MainWindowTest, ManySplitsAndHostileNamesHarmNothing) {
  const std::string names[] = {std::string(254, 'W'),
                               "   ",
                               "A & B & C",
                               "say \"hi\"",
                               "<h1>loud</h1>",
                               "[*][*]",
                               "\x01\x02",
                               "&&&",
                               "%1 %n",
                               "split\t10"};
  for (int n = 1; n <= 10; ++n) {
    WriteSetting("SplitName" + std::to_string(n), "\"" + names[n - 1] + "\"");
  }
  SetNumberOfSplits(10);
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  for (int16_t n = 1; n <= 10; ++n) EXPECT_TRUE(Window(n).isVisible()) << n;
  EXPECT_FALSE(main->grab().isNull());
  EXPECT_EQ(StoppedBy(), 0);
}

}  // namespace
}  // namespace logchecker
