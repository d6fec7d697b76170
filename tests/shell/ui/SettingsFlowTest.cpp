#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "cartstore/AudiowallParts.h"
#include "shell/ui/frmGeneralSettings.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

class SettingsFlowTest : public MainTest {
 protected:
  SettingsFlowTest() { EXPECT_TRUE(Start()); }

  frmGeneralSettings* Dialog() { return main->findChild<frmGeneralSettings*>(); }
  // Runs `work` on the general settings while the menu entry waits behind them.
  void WithGeneralSettings(const std::function<void(frmGeneralSettings*)>& work) {
    QTimer::singleShot(0, main.get(), [&] {
      ASSERT_NE(Dialog(), nullptr);
      EXPECT_TRUE(Dialog()->isVisible());
      EXPECT_FALSE(Dialog()->isModal());
      work(Dialog());
    });
    Entry("mnuSettingsGeneral")->trigger();
  }
  static QLineEdit* Box(QDialog* dialog, const char* name) {
    return Control<QLineEdit>(dialog, name);
  }
  static void PressIn(QDialog* dialog, const char* button) {
    Control<QPushButton>(dialog, button)->click();
  }
  std::string Setting(const std::string& key) {
    return Os().profiles.GetString("General", key, "missing", 255, "VELKLT.INI");
  }
};

TEST_F(SettingsFlowTest, TheMainWindowFollowsTheGeneralSettingsAtOnce) {
  WithGeneralSettings([](frmGeneralSettings* dialog) {
    Box(dialog, "txtNumberSplits")->setText("2");
    PressIn(dialog, "cmdOK");
  });
  EXPECT_EQ(Dialog(), nullptr) << "unloaded";
  EXPECT_FALSE(gSplits.IsLoaded(3));
  EXPECT_EQ(Control<QLabel>(main.get(), "splits")->text(), "2 Splits");
}

TEST_F(SettingsFlowTest, UpdateSplitInfoRunsAfterCancelToo) {
  Window(1).move(77, 55);
  WithGeneralSettings([](frmGeneralSettings* dialog) { PressIn(dialog, "cmdCancel"); });
  EXPECT_EQ(Window(1).x(), 0);
  EXPECT_EQ(Window(1).y() + Window(1).height(), Area()->viewport()->height());
}

TEST_F(SettingsFlowTest, LogsAreNotLoadedAgain) {
  gSplits(1).gridLog.SetRows(3);
  WithGeneralSettings([](frmGeneralSettings* dialog) { PressIn(dialog, "cmdOK"); });
  EXPECT_EQ(gSplits(1).gridLog.Rows(), 3);
}

TEST_F(SettingsFlowTest, TheWaitSurvivesASecondClickOnItsEntry) {
  WithGeneralSettings([this](frmGeneralSettings* dialog) {
    QTimer::singleShot(0, main.get(), [this, dialog] {
      EXPECT_EQ(Dialog(), dialog) << "the same one";
      PressIn(dialog, "cmdCancel");
    });
    Entry("mnuSettingsGeneral")->trigger();
  });
  EXPECT_EQ(Dialog(), nullptr);
  EXPECT_EQ(StoppedBy(), 0);
}

TEST_F(SettingsFlowTest, TheWaitSurvivesAChangeOfTheDay) {
  WithGeneralSettings([this](frmGeneralSettings* dialog) {
    {
      DialogScript script([](QDialog* picker) {
        QTest::keyClick(Control<QWidget>(picker, "DayScroll"), Qt::Key_Right);
        Control<QPushButton>(picker, "OKB")->click();
      });
      Press("sftLoad");
    }
    EXPECT_EQ(CurrentLogDate, kTomorrow + 1);
    EXPECT_TRUE(dialog->isVisible());
    PressIn(dialog, "cmdOK");
  });
  EXPECT_EQ(StoppedBy(), 0);
}

TEST_F(SettingsFlowTest, TheWaitSurvivesAnExit) {
  WithGeneralSettings([this](frmGeneralSettings*) { Entry("mnuFileExit")->trigger(); });
  EXPECT_TRUE(main->HasEnded());
}

TEST_F(SettingsFlowTest, APastedFractionRoundsToNoSplitsAndStopsTheProgram) {
  WithGeneralSettings([](frmGeneralSettings* dialog) {
    Box(dialog, "txtNumberSplits")->setText("0.4");
    PressIn(dialog, "cmdOK");
  });
  EXPECT_EQ(gGeneralSettings.NumberActiveSplits, 0);
  EXPECT_EQ(Setting("NumberActiveSplits"), "0");
  EXPECT_EQ(StoppedBy(), kInvalidCall);
}

TEST_F(SettingsFlowTest, ASplitsNameChangesInCaptionAndMenuAtOnce) {
  DialogScript script([](QDialog* dialog) {
    Box(dialog, "txtSplitName")->setText("Coast & Co");
    PressIn(dialog, "cmdOK");
  });
  Entry("mnuLogSettings2")->trigger();
  EXPECT_EQ(Window(2).windowTitle(), "Coast & Co");
  EXPECT_EQ(Entry("mnuLogSettings2")->text(), "Change the settings for Coast && Co");
  EXPECT_EQ(Setting("SplitName2"), "Coast & Co");
  EXPECT_TRUE(ui.messages.empty()) << "the settings take effect at once";
}

TEST_F(SettingsFlowTest, ASplitsNewNameLeavesEveryWindowWhereItIs) {
  Window(1).move(77, 55);
  Window(2).setGeometry(120, 33, 300, 280);
  const QRect places[] = {Window(1).geometry(), Window(2).geometry(), Window(3).geometry()};
  DialogScript script([](QDialog* dialog) {
    Box(dialog, "txtSplitName")->setText("Coast");
    PressIn(dialog, "cmdOK");
  });
  Area()->setActiveSubWindow(&Window(3));
  Entry("mnuLogSettings2")->trigger();
  EXPECT_EQ(Window(2).windowTitle(), "Coast");
  for (int16_t n = 1; n <= 3; ++n) EXPECT_EQ(Window(n).geometry(), places[n - 1]) << n;
  EXPECT_EQ(Area()->activeSubWindow(), &Window(3));
}

TEST_F(SettingsFlowTest, AfterOkTheLogIsLoadedByTheNewSettings) {
  Os().directories.MakeDirectory(Path("elsewhere"));
  folder().WriteFile("elsewhere/270115.TXT", Line("09:00", 11) + "\r\n");
  DialogScript script([this](QDialog* dialog) {
    Box(dialog, "txtSourceDirectory")->setText(QString::fromStdString(Path("elsewhere")));
    Box(dialog, "txtFileExtension")->setText("TXT");
    PressIn(dialog, "cmdOK");
  });
  Entry("mnuLogSettings2")->trigger();
  EXPECT_EQ(SettingsOf(2).Extension, "TXT");
  EXPECT_EQ(gSplits(2).gridLog.Rows(), 4);
  EXPECT_EQ(gSplits(2).gridLog.Text(1, kTimeColumn), "09:00");
  EXPECT_EQ(gSplits(1).gridLog.Rows(), 10) << "the others stay as they are";
}

TEST_F(SettingsFlowTest, AfterCancelTheSplitIsReadAndLoadedAllTheSame) {
  gSplits(2).gridLog.SetRows(1);
  WriteSetting("SplitName2", "From the file");
  DialogScript script([](QDialog* dialog) {
    EXPECT_EQ(Box(dialog, "txtSplitName")->text(), "Split 2 & <b>");
    PressIn(dialog, "cmdCancel");
  });
  Entry("mnuLogSettings2")->trigger();
  EXPECT_EQ(Window(2).windowTitle(), "From the file");
  EXPECT_EQ(gSplits(2).gridLog.Rows(), 10);
}

TEST_F(SettingsFlowTest, CartLocationsAreChangedFromTheMenuAndOnlyTheStoreIsOpenedAnew) {
  Os().profiles.WriteString("Audiowall", "NoCarts", "2000", Path("part1") + "\\Audwall.ini");
  DialogScript script([this](QDialog* dialog) {
    EXPECT_EQ(dialog->objectName(), "frmCartLocations");
    EXPECT_TRUE(dialog->isModal());
    EXPECT_EQ(dialog->parentWidget(), main.get());
    PressIn(dialog, "cmdDone");
  });
  Entry("mnuCartLocations")->trigger();
  EXPECT_EQ(Os().profiles.GetString("FileLocations", "Carts11", "missing", 255, "VELMAR.INI"), "");
  EXPECT_EQ(gNumberOfCarts, 1000) << "the number of carts is read at the next start";
  EXPECT_EQ(gAudiowallParts[0].State, kPartUsable);
}

}  // namespace
}  // namespace logchecker
