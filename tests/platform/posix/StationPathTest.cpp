#include "platform/posix/StationPath.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <filesystem>
#include <fstream>

#include "platform/Platform.h"
#include "platform/StationText.h"
#include "tests/support/OwnWindowsFolder.h"
#include "tests/support/posix/PlainUser.h"

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

TEST_F(StationPathTest, OfTwoThatFitEquallyTheFirstIsTakenAndBothAreNamed) {
  MakeFile("Srv/Carts 2/x");
  MakeFile("Srv/carts 2/x");
  MakeFile("Srv/cArts 2/x");
  MakeFile("Srv/Carts 3/x");
  Lookalike found;
  Directories& directories = Os().directories;
  ASSERT_TRUE(directories.FindLookalike(folder().Path("Srv") + "\\CARTS 2\\X", &found));
  EXPECT_EQ(folder().Path("Srv/Carts 2"), found.taken);
  EXPECT_EQ(folder().Path("Srv/cArts 2"), found.other);
  EXPECT_EQ(folder().Path("Srv/Carts 2/x"), HostPath(folder().Path("Srv/CARTS 2/X")));
  for (const char* path : {"Srv/carts 2/x", "Srv/carts 2/X", "Srv/CARTS 3/X", "Srv/CARTS 4/X"}) {
    EXPECT_FALSE(directories.FindLookalike(folder().Path(path), &found)) << path;
  }
}

// Where it lies is settled once, and a path in it no longer shows that there was a choice.
TEST_F(StationPathTest, AWindowsFolderThatCouldBeTwoIsNamedByThePathsInIt) {
  MakeFile("Desk/VELKLT.INI");
  MakeFile("desk/VELKLT.INI");
  SetHostWindowsFolder(folder().Path("DESK"));
  Lookalike found;
  EXPECT_TRUE(Os().directories.FindLookalike(folder().Path("Desk") + "\\VELKLT.INI", &found));
  EXPECT_EQ(folder().Path("Desk"), found.taken);
  EXPECT_EQ(folder().Path("desk"), found.other);
  EXPECT_FALSE(Os().directories.FindLookalike(folder().Path("desk/VELKLT.INI"), &found));
  SetHostWindowsFolder(folder().Path("desk"));
  EXPECT_FALSE(Os().directories.FindLookalike(folder().Path("desk/VELKLT.INI"), &found));
  SetHostWindowsFolder(folder().Path());
}

TEST_F(StationPathTest, LookalikesOnADriveAreNamedByTheDrive) {
  MakeFile("drives/x/Audio/Carts1.lst");
  MakeFile("drives/x/Audio/carts1.lst");
  Lookalike found;
  ASSERT_TRUE(Os().directories.FindLookalike("X:\\AUDIO\\CARTS1.LST", &found));
  EXPECT_EQ("x:\\Audio\\Carts1.lst", found.taken);
  EXPECT_EQ("x:\\Audio\\carts1.lst", found.other);
}

// Nobody can tell how a name is spelled there, so the usual spelling is tried.
TEST_F(StationPathTest, InAFolderThatCannotBeListedNamesAreTriedInLowerCase) {
  MakeFile("srv/caf\xC3\xA9/Carts/x");
  OpenToAll(folder());
  const std::string closed = folder().Path("srv");
  std::filesystem::permissions(closed, std::filesystem::perms::owner_exec |
                                           std::filesystem::perms::group_exec |
                                           std::filesystem::perms::others_exec);
  {
    const WithoutRights plainUser;
    EXPECT_EQ(folder().Path("srv/caf\xC3\xA9/Carts/x"),
              HostPath(folder().Path("SRV/CAF\xC9/CARTS/X")));
    EXPECT_EQ(folder().Path("srv/OTHER"), HostPath(folder().Path("SRV/OTHER")));
  }
  std::filesystem::permissions(closed, std::filesystem::perms::owner_all);
  EXPECT_EQ(folder().Path("srv/caf\xC3\xA9"), HostPath(folder().Path("SRV/CAF\xC9")));
}

TEST_F(StationPathTest, FullStopsAndBlanksAtTheEndOfANameAreDroppedUnlessItIsSo) {
  MakeFile("drives/c/Logs/260302");
  MakeFile("drives/c/Logs/260303.");
  MakeFile("drives/c/Logs/260303");
  MakeFile("drives/c/Logs/a. b/x");
  struct Case {
    const char* station;
    const char* host;
  };
  const Case cases[] = {
      {"C:\\LOGS\\260302.", "drives/c/Logs/260302"},
      {"C:\\LOGS. .\\260302. ", "drives/c/Logs/260302"},
      {"C:\\LOGS\\260303.", "drives/c/Logs/260303."},
      {"C:\\LOGS\\260303", "drives/c/Logs/260303"},
      {"C:\\LOGS\\A. B.\\X", "drives/c/Logs/a. b/x"},
      {"C:\\LOGS\\NEW.\\260304.", "drives/c/Logs/NEW/260304"},
      {"C:\\NEW\\..\\LOGS\\.", "drives/c/NEW/../LOGS/."},
      {"C:\\LOGS\\.", "drives/c/Logs/."},
      {"C:\\LOGS.\\", "drives/c/Logs/"},
      {"C:\\LOGS\\...", "drives/c/Logs/..."},
  };
  for (const Case& row : cases)
    EXPECT_EQ(folder().Path(row.host), HostPath(row.station)) << row.station;
}

TEST_F(StationPathTest, AFileIsMadeWithoutTheFullStopThatItsNameEndsIn) {
  MakeFile("drives/c/Logs/x");
  Files& files = Os().files;
  int16_t number = 0;
  ASSERT_EQ(kNoError, files.FreeFile(&number));
  EXPECT_EQ(kNoError, files.OpenForAppend(number, "C:\\LOGS\\260302."));
  EXPECT_EQ(kNoError, files.Close(number));
  EXPECT_TRUE(folder().Exists("drives/c/Logs/260302"));
  EXPECT_FALSE(folder().Exists("drives/c/Logs/260302."));
  EXPECT_EQ(kNoError, Os().directories.MakeDirectory("C:\\LOGS\\SUB. "));
  EXPECT_TRUE(folder().Exists("drives/c/Logs/SUB"));
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
