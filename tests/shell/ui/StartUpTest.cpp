#include <QLineEdit>
#include <QPushButton>
#include <filesystem>

#include "cartstore/AudiowallParts.h"
#include "common/GeneralSettings.h"
#include "shell/ui/frmSplash.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

class StartUpTest : public MainTest {
 protected:
  // Whether there is a splash at all.
  static bool SplashIsLoaded() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (qobject_cast<frmSplash*>(window) != nullptr) return true;
    }
    return false;
  }
  static bool SplashStands() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (qobject_cast<frmSplash*>(window) != nullptr && window->isVisible()) return true;
    }
    return false;
  }

  // Puts down what the splash says, and whether the main window is seen, at each yield.
  class Watcher : public UserInterface {
   public:
    Watcher(StartUpTest& test, UserInterface& inner)
        : test_(test), inner_(inner), before_(UseUserInterface(*this)) {}
    ~Watcher() override { UseUserInterface(before_); }

    MessageAnswer Show(const Message& message) override {
      splashUnderMessages.push_back(SplashStands());
      return inner_.Show(message);
    }
    void SetMousePointer(MousePointer pointer) override { inner_.SetMousePointer(pointer); }
    MousePointer CurrentMousePointer() override { return inner_.CurrentMousePointer(); }
    void ShowProgress(int32_t value, int32_t maximum) override {
      inner_.ShowProgress(value, maximum);
    }
    void Yield() override {
      for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* splash = qobject_cast<frmSplash*>(window);
        if (splash == nullptr || !splash->isVisible()) continue;
        // It also yields when it is activated, with the text that it has then.
        const QString text = Control<QLabel>(splash, "lblCurrentAction")->text();
        if (!text.isEmpty() && !said.contains(text)) said.push_back(text);
        EXPECT_TRUE(Control<QWidget>(splash, "cmdOK")->isHidden());
      }
      if (test_.main->isVisible()) mainSeen = true;
    }

    QStringList said;
    bool mainSeen = false;
    std::vector<bool> splashUnderMessages;

   private:
    StartUpTest& test_;
    UserInterface& inner_;
    UserInterface& before_;
  };
};

TEST_F(StartUpTest, TheSplashSaysWhatIsDoneAndTheMainWindowStaysHiddenUntilTheStoreIsOpen) {
  Watcher watcher(*this, ui);
  ASSERT_TRUE(Start());
  EXPECT_EQ(watcher.said, QStringList({"Getting Velmar KLT Settings...",
                                       "Getting Audio Settings...", "Opening Audiowall..."}));
  EXPECT_FALSE(watcher.mainSeen);
  EXPECT_TRUE(main->isVisible());
  EXPECT_TRUE(main->StartupComplete);
  EXPECT_FALSE(SplashIsLoaded()) << "the splash is unloaded";
}

TEST_F(StartUpTest, TomorrowIsLoadedIntoAllTenSplits) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(CurrentLogDate, kTomorrow);
  EXPECT_EQ(main->windowTitle().toStdString(), CaptionOfDay(kTomorrow));
  EXPECT_TRUE(main->windowTitle().startsWith("Velmar KLT Log Checker : "));
  for (int16_t n = 1; n <= 10; ++n) {
    EXPECT_EQ(SettingsOf(n).LogDate, kTomorrow);
    EXPECT_EQ(gSplits(n).gridLog.Rows(), 10) << n;
    EXPECT_EQ(Window(n).isVisible(), n <= 3) << n;
  }
}

TEST_F(StartUpTest, TheWindowsStandSideBySide) {
  ASSERT_TRUE(Start());
  const QSize inner = Area()->viewport()->size();
  for (int16_t n = 1; n <= 3; ++n) {
    EXPECT_EQ(Window(n).x(), inner.width() * (n - 1) / 3);
    EXPECT_EQ(Window(n).y(), 0);
    EXPECT_EQ(Window(n).height(), inner.height());
  }
}

TEST_F(StartUpTest, SettingsThatCannotBeReadAreToldAndEndTheProgram) {
  const std::string carts = folder().ReadFile("part1/Carts1.lst");
  for (const char* name : {"VELKLT.INI", "VELMAR.INI", "part1/Audwall.ini"}) {
    if (folder().Exists(name)) std::filesystem::rename(Path(name), Path("kept"));
    std::filesystem::create_directory(Path(name));
    ui.messages.clear();
    EXPECT_FALSE(Start()) << name;
    EXPECT_TRUE(main->HasEnded());
    ASSERT_EQ(ui.Texts().size(), 1U) << name;
    const std::string file = std::filesystem::path(name).filename().string();
    EXPECT_NE(ui.Texts()[0].find(file + " is a directory"), std::string::npos) << ui.Texts()[0];
    std::filesystem::remove(Path(name));
    if (folder().Exists("kept")) std::filesystem::rename(Path("kept"), Path(name));
  }
  EXPECT_EQ(folder().ReadFile("part1/Carts1.lst"), carts);
}

TEST_F(StartUpTest, AStoreThatCantBeHadEndsTheProgramAfterOneTryOfTheDialog) {
  Os().profiles.WriteString("FileLocations", "Carts1", "", "VELMAR.INI");
  DialogScript script([](QDialog* dialog) {
    EXPECT_EQ(dialog->objectName(), "frmCartLocations");
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  EXPECT_FALSE(Start());
  EXPECT_TRUE(main->HasEnded());
  EXPECT_FALSE(main->isVisible());
  EXPECT_EQ(
      ui.Texts(),
      std::vector<std::string>(
          2, "10 locations of the AudioWall have not been set : Please check your configuration."));
}

TEST_F(StartUpTest, TheLocationsDialogCanSaveTheStart) {
  Os().profiles.WriteString("FileLocations", "Carts1", "", "VELMAR.INI");
  DialogScript script([this](QDialog* dialog) {
    Control<QLineEdit>(dialog, "txtCartLocations1")->setText(QString::fromStdString(Path("part1")));
    Control<QPushButton>(dialog, "cmdDone")->click();
  });
  // The number of carts is not read again, so ten parts are in use, now all in one directory.
  for (int part = 2; part <= 10; ++part) ui.answers.push_back(MessageAnswer::kYes);
  EXPECT_TRUE(Start());
  for (int part = 0; part < 10; ++part) EXPECT_EQ(gAudiowallParts[part].State, kPartUsable);
  EXPECT_TRUE(folder().Exists("part1/Carts10.lst"));
}

TEST_F(StartUpTest, WithoutSettingsACancelledFirstRunEndsWithItsMessage) {
  folder().WriteFile("VELKLT.INI", "");
  DialogScript script([](QDialog* dialog) {
    EXPECT_EQ(dialog->objectName(), "frmLogFileSettings");
    EXPECT_TRUE(dialog->isModal());
    Control<QPushButton>(dialog, "cmdCancel")->click();
  });
  EXPECT_FALSE(Start());
  EXPECT_TRUE(main->HasEnded());
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text, "There was no configuration information entered");
  EXPECT_EQ(ui.messages[0].icon, MessageIcon::kCritical);
}

TEST_F(StartUpTest, TheSplashStandsUnderTheFirstRunAndItsMessageAndIsGoneAfterIt) {
  folder().WriteFile("VELKLT.INI", "");
  Watcher watcher(*this, ui);
  DialogScript script([](QDialog* dialog) {
    EXPECT_TRUE(SplashStands());
    Control<QPushButton>(dialog, "cmdCancel")->click();
  });
  EXPECT_FALSE(Start());
  EXPECT_EQ(watcher.splashUnderMessages, std::vector<bool>({true}));
  EXPECT_FALSE(SplashIsLoaded());
}

TEST_F(StartUpTest, TheSplashIsGoneWhenTheStoreIsRefused) {
  Os().profiles.WriteString("FileLocations", "Carts1", "", "VELMAR.INI");
  DialogScript script([](QDialog* dialog) {
    EXPECT_TRUE(SplashStands());
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  EXPECT_FALSE(Start());
  EXPECT_FALSE(SplashIsLoaded());
}

TEST_F(StartUpTest, AConfirmedFirstRunWritesSplitOneAndGoesOnWithIt) {
  folder().WriteFile("VELKLT.INI", "");
  DialogScript script([this](QDialog* dialog) {
    Control<QLineEdit>(dialog, "txtSplitName")->setText("Larkfield");
    Control<QLineEdit>(dialog, "txtSourceDirectory")
        ->setText(QString::fromStdString(Path("logs1")));
    Control<QPushButton>(dialog, "cmdOK")->click();
  });
  ui.answers = {MessageAnswer::kYes};
  EXPECT_TRUE(Start());
  EXPECT_EQ(gSplitSettings[0].SplitName, "Larkfield");
  EXPECT_EQ(gSplitSettings[1].SplitName, "Split 2");
  EXPECT_EQ(gGeneralSettings.NumberActiveSplits, 2);
  EXPECT_FALSE(SplashIsLoaded());
}

TEST_F(StartUpTest, TheFirstRunTestLooksForTheFixedNameWhateverTheSwitchSays) {
  gRawCommandLine = "/LI:OTHER.INI";
  gCommandLine = "/LI:OTHER.INI";
  ASSERT_TRUE(Start());
  EXPECT_EQ(gSettingsFile, ".INI");
}

TEST_F(StartUpTest, NoActiveSplitStopsTheProgramAfterTheMenusAreHidden) {
  SetNumberOfSplits(0);
  EXPECT_FALSE(Start());
  EXPECT_EQ(StoppedBy(), kInvalidCall);
  for (int n = 1; n <= 10; ++n) {
    EXPECT_FALSE(Entry(qPrintable(QString("mnuLogSettings%1").arg(n)))->isVisible());
  }
  EXPECT_FALSE(Entry("mnuLogSettingsSep")->isVisible());
  for (const QMdiSubWindow* child : Area()->subWindowList()) EXPECT_FALSE(child->isVisible());
}

TEST_F(StartUpTest, MoreSplitsThanThereAreStopTheProgram) {
  SetNumberOfSplits(11);
  EXPECT_FALSE(Start());
  EXPECT_EQ(StoppedBy(), kSubscriptOutOfRange);
}

TEST_F(StartUpTest, ALogThatCantBeOpenedStopsTheProgramAndIsNamed) {
  os.script.FailNamed("Files.OpenForInput", 2, kPermissionDenied);
  Start();
  EXPECT_EQ(StoppedBy(), kBadFileNumber);
  EXPECT_NE(StoppedConcerning().find("split 2"), std::string::npos) << StoppedConcerning();
}

TEST_F(StartUpTest, ExitClosesTheStoreAndAllFilesAndAsksNothing) {
  ASSERT_TRUE(Start());
  Entry("mnuFileExit")->trigger();
  EXPECT_TRUE(main->HasEnded());
  EXPECT_FALSE(main->isVisible());
  EXPECT_EQ(gAudiowallParts[0].State, kPartUnchecked);
  int16_t file = 0;
  EXPECT_EQ(Os().files.FreeFile(&file), kNoError);
  EXPECT_EQ(file, 1) << "every file is closed";
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(StartUpTest, ClosingTheWindowIsExit) {
  ASSERT_TRUE(Start());
  main->close();
  EXPECT_TRUE(main->HasEnded());
}

}  // namespace
}  // namespace logchecker
