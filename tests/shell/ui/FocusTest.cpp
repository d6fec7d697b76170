// Whose the keys are, and which window belongs to which.
#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "shell/ui/frmGeneralSettings.h"
#include "shell/ui/frmSplash.h"
#include "splitlogs/ui/LogGridView.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

class FocusTest : public MainTest {
 protected:
  QWidget* Grid(int16_t n) { return Control<QWidget>(&Window(n), "gridLog"); }
  QWidget* List() { return Control<QWidget>(Results(), "lvwResults"); }
  // As if by Tab.
  void FocusToolbar() {
    Control<QWidget>(main.get(), "sftCheckBreaks")->setFocus(Qt::TabFocusReason);
  }
  void LoadNextDay() {
    DialogScript script([](QDialog* picker) {
      QTest::keyClick(Control<QWidget>(picker, "DayScroll"), Qt::Key_Right);
      Control<QPushButton>(picker, "OKB")->click();
    });
    Press("sftLoad");
  }
};

TEST_F(FocusTest, TheStartEndsInSplitOne) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(Area()->activeSubWindow(), &Window(1));
  EXPECT_EQ(main->focusWidget(), Grid(1));
}

TEST_F(FocusTest, EachCheckEndsInItsResultsWhereEscClosesThem) {
  ASSERT_TRUE(Start());
  for (int check = 0; check < 2; ++check) {
    FocusToolbar();
    Press("sftCheckBreaks");
    EXPECT_EQ(main->focusWidget(), List()) << check;
  }
  QTest::keyClick(main->focusWidget(), Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Results(), nullptr);
}

TEST_F(FocusTest, TheFirstArrowInTheResultsSelectsTheFirstRow) {
  ASSERT_TRUE(Start());
  for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Up}) {
    gSplits(1).SelectBreakByTime(0);
    FocusToolbar();
    Press("sftCheckBreaks");
    auto* list = static_cast<QAbstractItemView*>(List());
    list->setCurrentIndex({});
    list->selectionModel()->setCurrentIndex(list->model()->index(0, 0),
                                            QItemSelectionModel::NoUpdate);
    QTest::keyClick(list, arrow);
    const QModelIndexList rows = list->selectionModel()->selectedRows();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0].row(), 0);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(gSplits(1).gridLog.Text(gSplits(1).gridLog.Row(), kTimeColumn), "08:00");
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(list->selectionModel()->selectedRows()[0].row(), 1) << "and the next the second";
  }
}

TEST_F(FocusTest, ALoadedDayEndsInAGrid) {
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  LoadNextDay();
  EXPECT_EQ(main->focusWidget(), Grid(1)) << "not in the results of the day before";
  Area()->setActiveSubWindow(&Window(2));
  FocusToolbar();
  LoadNextDay();
  EXPECT_EQ(main->focusWidget(), Grid(2));
  Window(1).showMinimized();
  Area()->setActiveSubWindow(Results());
  LoadNextDay();
  EXPECT_EQ(main->focusWidget(), Grid(2)) << "split 1 can't be seen";
}

TEST_F(FocusTest, ACancelledPickerLeavesItWhereItWas) {
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  DialogScript script([](QDialog* picker) { picker->reject(); });
  QTest::mouseClick(Control<QWidget>(main.get(), "sftLoad"), Qt::LeftButton);
  EXPECT_EQ(main->focusWidget(), List());
}

TEST_F(FocusTest, PrintingStaysAsItIsWhileAnotherProgramHasTheFocus) {
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  QApplication::setActiveWindow(nullptr);
  // As the area does when it has no active window for a time.
  emit Area()->subWindowActivated(nullptr);
  EXPECT_TRUE(Entry("mnuPrint")->isEnabled());
  QApplication::setActiveWindow(main.get());
  EXPECT_TRUE(Entry("mnuPrint")->isEnabled());
  Area()->setActiveSubWindow(&Window(1));
  QApplication::setActiveWindow(nullptr);
  EXPECT_FALSE(Entry("mnuPrint")->isEnabled());
}

TEST_F(FocusTest, DialogsBelongToTheMainWindow) {
  ASSERT_TRUE(Start());
  for (const char* entry : {"mnuLogSettings2", "mnuCartLocations"}) {
    DialogScript script([this](QDialog* dialog) {
      EXPECT_EQ(dialog->parentWidget(), main.get());
      dialog->reject();
    });
    Entry(entry)->trigger();
  }
  {
    DialogScript script([this](QDialog* picker) {
      EXPECT_EQ(picker->parentWidget(), main.get());
      picker->reject();
    });
    Press("sftLoad");
  }
  QTimer::singleShot(0, main.get(), [this] {
    auto* settings = main->findChild<frmGeneralSettings*>();
    ASSERT_NE(settings, nullptr);
    EXPECT_EQ(settings->parentWidget(), main.get());
    settings->reject();
  });
  Entry("mnuSettingsGeneral")->trigger();
  Entry("mnuAbout")->trigger();
  auto* about = main->findChild<frmSplash*>();
  ASSERT_NE(about, nullptr);
  EXPECT_EQ(about->parentWidget(), main.get());
}

TEST_F(FocusTest, DialogsOfTheStartBelongToTheSplash) {
  folder().WriteFile("VELKLT.INI", "");
  DialogScript script([](QDialog* dialog) {
    EXPECT_NE(qobject_cast<frmSplash*>(dialog->parentWidget()), nullptr);
    dialog->reject();
  });
  EXPECT_FALSE(Start());
}

TEST_F(FocusTest, TheLocationsAskedForAtTheStartBelongToTheSplash) {
  Os().profiles.WriteString("FileLocations", "Carts1", "", "VELMAR.INI");
  DialogScript script([](QDialog* dialog) {
    EXPECT_NE(qobject_cast<frmSplash*>(dialog->parentWidget()), nullptr);
    dialog->reject();
  });
  EXPECT_FALSE(Start());
}

using EndTest = MainTest;

TEST_F(EndTest, ExitClosesTheLogsOfAllTenSplits) {
  ASSERT_TRUE(Start());
  std::vector<int16_t> logs;
  for (int16_t n = 1; n <= 10; ++n) {
    logs.push_back(SettingsOf(n).LogFileNumber);
    ASSERT_EQ(Os().files.Seek(logs.back(), 1), kNoError) << n;
  }
  Entry("mnuFileExit")->trigger();
  for (const int16_t log : logs) EXPECT_EQ(Os().files.Seek(log, 1), kBadFileNumber) << log;
}

TEST_F(EndTest, AnExitBehindTheGeneralSettingsEndsTheirEntryToo) {
  ASSERT_TRUE(Start());
  Window(1).move(77, 55);
  QTimer::singleShot(0, main.get(), [this] {
    gGeneralSettings.NumberActiveSplits = 2;
    Entry("mnuFileExit")->trigger();
  });
  Entry("mnuSettingsGeneral")->trigger();
  EXPECT_TRUE(main->HasEnded());
  EXPECT_EQ(Window(1).pos(), QPoint(77, 55)) << "nothing is arranged any more";
  EXPECT_TRUE(gSplits.IsLoaded(3));
}

using BeginningTest = MainTest;

// A splash that is not painted is waited for: a timer that its showing starts runs out before the
// first step is named.
TEST_F(BeginningTest, TheSplashIsWaitedForBeforeTheFirstStep) {
  class ShowWatcher : public QObject {
   public:
    bool eventFilter(QObject* watched, QEvent* event) override {
      auto* splash = qobject_cast<frmSplash*>(watched);
      if (splash == nullptr || event->type() != QEvent::Show) return false;
      splash->setUpdatesEnabled(false);
      QTimer::singleShot(20, splash, [this, splash] {
        waited = Control<QLabel>(splash, "lblCurrentAction")->text().isEmpty();
      });
      return false;
    }
    bool waited = false;
  };
  ShowWatcher watcher;
  qApp->installEventFilter(&watcher);
  ASSERT_TRUE(Start());
  EXPECT_TRUE(watcher.waited);
}

using SplashLayerTest = WindowTest;

TEST_F(SplashLayerTest, ANewLayerDoesNotActivateTheWindow) {
  class ShowWatcher : public QObject {
   public:
    bool eventFilter(QObject* watched, QEvent* event) override {
      if (event->type() == QEvent::Show) {
        quiet.push_back(
            static_cast<QWidget*>(watched)->testAttribute(Qt::WA_ShowWithoutActivating));
      }
      return false;
    }
    std::vector<bool> quiet;
  };
  frmSplash splash;
  ShowWatcher watcher;
  splash.installEventFilter(&watcher);
  splash.show();
  splash.SetFloating(-1);
  splash.SetFloating(0);
  EXPECT_EQ(watcher.quiet, std::vector<bool>({false, true, true}));
  EXPECT_FALSE(splash.testAttribute(Qt::WA_ShowWithoutActivating)) << "for its own showing alone";
}

TEST_F(SplashLayerTest, AtTheStartItIsPaintedBeforeTheProgramGoesOn) {
  frmSplash splash;
  int paintings = 0;
  QObject::connect(&splash, &frmSplash::painted, [&paintings] { ++paintings; });
  splash.ShowAtStart();
  EXPECT_GT(paintings, 0);
}

TEST_F(SplashLayerTest, AScreenThatNeverPaintsItDoesNotHoldTheStart) {
  frmSplash splash;
  splash.setUpdatesEnabled(false);
  splash.ShowAtStart();
  EXPECT_TRUE(splash.isVisible());
}

}  // namespace
}  // namespace logchecker
