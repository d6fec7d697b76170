#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <filesystem>

#include "shell/LoadGeneralSettings.h"
#include "shell/ui/frmGeneralSettings.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

// A program whose switch leads to the file ".INI", which has the station's settings.
class SettingsSwitchTest : public MainTest {
 protected:
  SettingsSwitchTest() {
    folder().WriteFile(".INI", folder().ReadFile("VELKLT.INI"));
    SetCommandLine("/LI:OTHER.INI");
  }
  std::string Setting(const std::string& key, const char* file) {
    return Os().profiles.GetString("General", key, "missing", 255, file);
  }
  // Changes the name of the split in hand and presses OK.
  static void Rename(QDialog* dialog) {
    EXPECT_EQ(dialog->objectName(), "frmLogFileSettings");
    Control<QLineEdit>(dialog, "txtSplitName")->setText("Renamed");
    Control<QPushButton>(dialog, "cmdOK")->click();
  }
};

TEST_F(SettingsSwitchTest, WithoutTheFileOfTheFixedNameAConfirmedFirstRunStillEndsTheProgram) {
  std::filesystem::remove(Path("VELKLT.INI"));
  DialogScript script(Rename);
  EXPECT_FALSE(Start());
  EXPECT_TRUE(main->HasEnded());
  EXPECT_EQ(ui.Texts(),
            std::vector<std::string>(1, "There was no configuration information entered"));
  EXPECT_EQ(Setting("SplitName1", ".INI"), "Renamed");
  EXPECT_FALSE(folder().Exists("VELKLT.INI"));
}

TEST_F(SettingsSwitchTest, BothSettingsDialogsWriteToTheFileOfTheSwitch) {
  const std::string fixed = folder().ReadFile("VELKLT.INI");
  ASSERT_TRUE(Start());
  QTimer::singleShot(0, main.get(), [this] {
    auto* dialog = main->findChild<frmGeneralSettings*>();
    ASSERT_NE(dialog, nullptr);
    Control<QLineEdit>(dialog, "txtNumberSplits")->setText("2");
    Control<QLineEdit>(dialog, "txtSecondsDifference")->setText("1.5");
    Control<QPushButton>(dialog, "cmdOK")->click();
  });
  Entry("mnuSettingsGeneral")->trigger();
  EXPECT_EQ(Setting("NumberActiveSplits", ".INI"), "2");
  EXPECT_EQ(Setting("BreakDifferenceMS", ".INI"), "1500");
  DialogScript script(Rename);
  Entry("mnuLogSettings2")->trigger();
  EXPECT_EQ(Setting("SplitName2", ".INI"), "Renamed");
  EXPECT_EQ(Window(2).windowTitle(), "Renamed") << "and it is read from there";
  EXPECT_EQ(folder().ReadFile("VELKLT.INI"), fixed);
  EXPECT_FALSE(folder().Exists("OTHER.INI"));
}

}  // namespace
}  // namespace logchecker
