#include "platform/posix/StationPath.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <filesystem>
#include <fstream>

#include "platform/Platform.h"
#include "platform/StationText.h"
#include "tests/support/OwnWindowsFolder.h"

namespace logchecker {
namespace {

class StationPathTest : public ::testing::Test {
 protected:
  void MakeFile(const std::string& name) const {
    const std::filesystem::path path = folder().Path(name);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path) << "x";
  }
  const TempFolder& folder() const { return windows_.folder(); }

  OwnWindowsFolder windows_;
};

TEST_F(StationPathTest, DrivesAndSharesAreFoldersOfTheWindowsFolder) {
  MakeFile("drives/z/Audio/Carts1.lst");
  MakeFile("drives/c/Logs/North/270115.log");
  MakeFile("drives/unc/server/Logs/North/270115.log");
  struct Case {
    const char* station;
    const char* host;
  };
  const Case cases[] = {
      {"Z:\\AUDIO", "drives/z/Audio"},
      {"z:\\audio\\CARTS1.LST", "drives/z/Audio/Carts1.lst"},
      {"Z:", "drives/z"},
      {"Z:\\", "drives/z/"},
      {"C:/Logs\\North", "drives/c/Logs/North"},
      {"C:\\LOGS\\NORTH\\270115.LOG", "drives/c/Logs/North/270115.log"},
      {"C:LOGS", "drives/c/Logs"},
      {"\\\\SERVER\\LOGS\\NORTH", "drives/unc/server/Logs/North"},
      {"//server/logs/north/270115.LOG", "drives/unc/server/Logs/North/270115.log"},
      {"C:\\LOGS\\SOUTH\\X.LOG", "drives/c/Logs/SOUTH/X.LOG"},
  };
  for (const Case& row : cases)
    EXPECT_EQ(folder().Path(row.host), HostPath(row.station)) << row.station;
}

TEST_F(StationPathTest, PathsFromTheRootAndOfTheHostWorkWithEitherSeparator) {
  MakeFile("Srv/Logs/North/270115.log");
  std::string upper = ToUpper(folder().Path("Srv/Logs/North"));
  EXPECT_EQ(folder().Path("Srv/Logs/North"), HostPath(upper));
  std::replace(upper.begin(), upper.end(), '/', '\\');
  EXPECT_EQ(folder().Path("Srv/Logs/North"), HostPath(upper));
  EXPECT_EQ(folder().Path("Srv/Logs/North/270115.log"), HostPath(upper + "\\270115.LOG"));
}

TEST_F(StationPathTest, NamesThatDifferOnlyInCaseAreBothReached) {
  MakeFile("drives/c/Log.txt");
  MakeFile("drives/c/LOG.txt");
  EXPECT_EQ(folder().Path("drives/c/Log.txt"), HostPath("C:\\Log.txt"));
  EXPECT_EQ(folder().Path("drives/c/LOG.txt"), HostPath("C:\\LOG.txt"));
  EXPECT_EQ(folder().Path("drives/c/LOG.txt"), HostPath("C:\\log.TXT"));  // the first in byte order
}

TEST_F(StationPathTest, LettersOfTheCodePageFoldToo) {
  MakeFile("drives/c/Caf\xC3\xA9/x");
  EXPECT_EQ(folder().Path("drives/c/Caf") + "\xC3\xA9/x", HostPath("C:\\CAF\xC9\\X"));
}

TEST_F(StationPathTest, AMissingDriveIsNotFound) {
  int64_t length = 0;
  EXPECT_EQ(kPathNotFound, Os().files.FileLength("Q:\\A.LOG", &length));
  EXPECT_EQ(kPathNotFound, Os().directories.ChangeDrive("Q:\\A"));
}

TEST_F(StationPathTest, AFileThatComesLaterIsFoundAlthoughTheFolderWasRead) {
  MakeFile("drives/c/other");
  EXPECT_EQ(folder().Path("drives/c/LATE.LOG"), HostPath("C:\\LATE.LOG"));
  MakeFile("drives/c/late.log");
  EXPECT_EQ(folder().Path("drives/c/late.log"), HostPath("C:\\LATE.LOG"));
  std::filesystem::remove(folder().Path("drives/c/late.log"));
  EXPECT_EQ(folder().Path("drives/c/LATE.LOG"), HostPath("C:\\LATE.LOG"));
}

TEST_F(StationPathTest, ProfileFilesAreFoundWhateverTheirCase) {
  folder().WriteFile("Velklt.Ini", "[General]\nSplitName1=North\n");
  EXPECT_EQ("North", Os().profiles.GetString("general", "splitname1", "", 255, "VELKLT.INI"));
  EXPECT_EQ(kNoError, Os().profiles.WriteString("General", "SplitName2", "South", "VELKLT.INI"));
  EXPECT_EQ("[General]\nSplitName1=North\nSplitName2=South\n", folder().ReadFile("Velklt.Ini"));
  EXPECT_FALSE(folder().Exists("VELKLT.INI"));
}

}  // namespace
}  // namespace logchecker
