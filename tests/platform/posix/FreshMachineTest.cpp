#include <gtest/gtest.h>

#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "platform/posix/StationPath.h"
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
