#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "platform/posix/StationPath.h"
#include "platform/posix/UserFolders.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

class FreshMachineTest : public testing::Test {
 protected:
  FreshMachineTest() : before(HostWindowsFolder()) {
    SetHostWindowsFolder(ToHostPath(folder.Path()) + "/config/velmar");
  }
  ~FreshMachineTest() override { SetHostWindowsFolder(before); }

  TempFolder folder;
  std::string before;
};

TEST_F(FreshMachineTest, TheFirstSettingMakesTheFolderOfTheSettings) {
  EXPECT_EQ(Os().profiles.WriteString("General", "A", "1", "VELKLT.INI"), kNoError);
  EXPECT_EQ(folder.ReadFile("config/velmar/VELKLT.INI"), "[General]\r\nA=1\r\n");
}

TEST_F(FreshMachineTest, AFolderOfTheStationsOwnIsNotMadeForASetting) {
  EXPECT_NE(Os().profiles.WriteString("General", "A", "1", folder.Path("elsewhere") + "/X.INI"),
            kNoError);
  EXPECT_FALSE(folder.Exists("elsewhere"));
}

TEST_F(FreshMachineTest, AConfigurationFolderThatIsNoAbsolutePathIsNone) {
  const std::string home = std::getenv("HOME") == nullptr ? "" : std::getenv("HOME");
  const char* kept = std::getenv("XDG_CONFIG_HOME");
  const std::string config = kept == nullptr ? "" : kept;
  setenv("HOME", "/home/x", 1);
  unsetenv("XDG_CONFIG_HOME");
  EXPECT_EQ(UserConfigFolder(), "/home/x/.config");
  for (const char* none : {"", "config", "./config", "~/config"}) {
    setenv("XDG_CONFIG_HOME", none, 1);
    EXPECT_EQ(UserConfigFolder(), "/home/x/.config") << none;
  }
  setenv("XDG_CONFIG_HOME", "/etc/x", 1);
  EXPECT_EQ(UserConfigFolder(), "/etc/x");
  setenv("HOME", home.c_str(), 1);
  if (kept == nullptr) {
    unsetenv("XDG_CONFIG_HOME");
  } else {
    setenv("XDG_CONFIG_HOME", config.c_str(), 1);
  }
}

TEST_F(FreshMachineTest, AHostPathBelowADriveComesBackAsTheStationWritesIt) {
  const std::string drives = HostWindowsFolder() + "/drives/";
  EXPECT_EQ(FromHostPath(drives + "c/Logs/In"), "c:\\Logs\\In");
  EXPECT_EQ(FromHostPath(drives + "c"), "c:\\");
  EXPECT_EQ(FromHostPath(drives + "unc/server/share/x"), "\\\\server\\share\\x");
  EXPECT_EQ(FromHostPath(drives + "long/x"), drives + "long/x");
  EXPECT_EQ(FromHostPath("/srv/logs"), "/srv/logs");
}

}  // namespace
}  // namespace logchecker
