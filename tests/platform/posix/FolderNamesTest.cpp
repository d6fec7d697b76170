#include "platform/posix/FolderNames.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/Platform.h"
#include "platform/posix/StationPath.h"
#include "tests/support/TempFolder.h"
#include "tests/support/posix/PlainUser.h"

namespace logchecker {
namespace {

time_t now = 0;
int64_t tick = 0;
int looks = 0;
const TempFolder* changing = nullptr;

class FolderNamesTest : public ::testing::Test {
 protected:
  FolderNamesTest() {
    now = time(nullptr) + 3600;
    gFolderCalls.time = [](time_t*) { return now; };
  }
  ~FolderNamesTest() override { gFolderCalls = FolderCalls(); }

  // Counts the looks at folders, by a clock that the test turns on.
  static void CountLooks() {
    looks = 0;
    tick = 1;
    gFolderCalls.tick = [] { return tick; };
    gFolderCalls.stat = [](const char* path, struct stat* facts) {
      ++looks;
      return stat(path, facts);
    };
  }

  FolderStamp StampOf(const std::string& path) const {
    struct stat facts {};
    EXPECT_EQ(0, stat(path.c_str(), &facts));
    return {facts.st_dev, facts.st_ino, facts.st_mtim, facts.st_ctim};
  }

  TempFolder folder;
};

// A share's stamps are often in whole seconds.
TEST_F(FolderNamesTest, NamesOfAFolderThatChangedWithinTwoSecondsAreNotKept) {
  struct Case {
    time_t modified;
    time_t changed;
    bool settled;
  };
  const Case cases[] = {
      {1000, 1000, false}, {999, 999, false}, {998, 998, false}, {997, 997, true},
      {998, 900, false},   {900, 998, false}, {900, 997, true},  {2000, 900, false},
  };
  now = 1000;
  for (const Case& row : cases) {
    FolderStamp stamp = StampOf(folder.Path());
    stamp.modified = {row.modified, 0};
    stamp.changed = {row.changed, 0};
    FolderNames names;
    names.Read(folder.Path(), stamp);
    EXPECT_EQ(row.settled, names.IsSettled()) << row.modified << " " << row.changed;
  }
}

TEST_F(FolderNamesTest, FineStampsOfThisMachineAreSettledATickLater) {
  struct Case {
    timespec modified;
    timespec changed;
    bool settled;
  };
  const Case cases[] = {
      {{1000, 4}, {1000, 4}, true},  {{1000, 5}, {1000, 4}, false}, {{1000, 4}, {1000, 5}, false},
      {{1000, 6}, {1000, 4}, false}, {{1001, 4}, {1000, 4}, false}, {{1000, 0}, {1000, 4}, false},
      {{1000, 4}, {1000, 0}, false},
  };
  now = 1000;
  gFolderCalls.tick = [] { return int64_t{1000} * 1'000'000'000 + 5; };
  for (const Case& row : cases) {
    FolderStamp stamp = StampOf(folder.Path());
    stamp.modified = row.modified;
    stamp.changed = row.changed;
    FolderNames names;
    names.Read(folder.Path(), stamp);
    EXPECT_EQ(row.settled, names.IsSettled()) << row.modified.tv_nsec << " " << row.changed.tv_nsec;
  }
}

// What comes while the names are read, and is not among them, must not count as long ago.
TEST_F(FolderNamesTest, TheTimeIsThatBeforeTheNamesAreRead) {
  changing = &folder;
  gFolderCalls.time = [](time_t*) {
    changing->WriteFile("late", "");
    return now;
  };
  FolderNames names;
  names.Read(folder.Path(), StampOf(folder.Path()));
  EXPECT_TRUE(names.Has("LATE"));
}

// Two folders that were made at one time, as copies can be.
TEST_F(FolderNamesTest, AnotherFolderUnderTheSameStampIsAnother) {
  gFolderCalls.stat = [](const char* path, struct stat* facts) {
    const int result = stat(path, facts);
    facts->st_mtim = {};
    facts->st_ctim = {};
    return result;
  };
  namespace fs = std::filesystem;
  for (const char* name : {"first", "second"}) fs::create_directory(folder.Path(name));
  folder.WriteFile("first/A.LST", "");
  folder.WriteFile("second/a.lst", "");
  fs::create_directory_symlink("first", folder.Path("link"));
  EXPECT_EQ(folder.Path("link/A.LST"), HostPath(folder.Path("link/A.lst")));
  fs::remove(folder.Path("link"));
  fs::create_directory_symlink("second", folder.Path("link"));
  EXPECT_EQ(folder.Path("link/a.lst"), HostPath(folder.Path("link/A.lst")));
}

// A share can have a file under a name that it does not list.
TEST_F(FolderNamesTest, OnlyOnAFileSystemOfThisMachineIsAListingTakenForAll) {
  folder.WriteFile("a.lst", "");
  EXPECT_FALSE(IsSurelyMissing(folder.Path(), "b.lst"));
  ASSERT_NE(nullptr, NamesIn(folder.Path()));
  EXPECT_TRUE(NamesIn(folder.Path())->IsWhole());
  EXPECT_TRUE(IsSurelyMissing(folder.Path(), "b.lst"));
  EXPECT_FALSE(IsSurelyMissing(folder.Path(), "A.LST"));
  ASSERT_NE(nullptr, NamesIn("/proc"));
  EXPECT_FALSE(NamesIn("/proc")->IsWhole());
  EXPECT_FALSE(IsSurelyMissing("/proc", "b.lst"));
}

TEST_F(FolderNamesTest, NothingIsSurelyMissingInAFolderThatCannotBeSearched) {
  using std::filesystem::perms;
  OpenToAll(folder);
  std::filesystem::permissions(folder.Path(),
                               perms::owner_read | perms::group_read | perms::others_read);
  {
    const WithoutRights plainUser;
    ASSERT_NE(nullptr, NamesIn(folder.Path()));
    EXPECT_TRUE(NamesIn(folder.Path())->IsWhole());
    EXPECT_FALSE(IsSurelyMissing(folder.Path(), "b.lst"));
    int64_t length = 0;
    EXPECT_EQ(kPermissionDenied, Os().files.FileLength(folder.Path("b.lst"), &length));
  }
  std::filesystem::permissions(folder.Path(), perms::owner_all);
}

// Within a tick no stamp tells a change, so a second look could not be trusted more than the first.
TEST_F(FolderNamesTest, AFolderIsLookedAtOnceATickForWhatIsNotThere) {
  CountLooks();
  folder.WriteFile("A.LST", "");
  ASSERT_NE(nullptr, NamesIn(folder.Path()));
  looks = 0;
  for (int look = 0; look < 3; ++look) EXPECT_TRUE(IsSurelyMissing(folder.Path(), "b.lst"));
  EXPECT_EQ(1, looks);
  folder.WriteFile("B.LST", "");
  ++tick;
  EXPECT_FALSE(IsSurelyMissing(folder.Path(), "b.lst"));
  EXPECT_EQ(2, looks);
}

TEST_F(FolderNamesTest, AWayThatWasSpelledOtherwiseIsLookedAtOnceATick) {
  CountLooks();
  for (const char* name : {"carts", "other"}) {
    std::filesystem::create_directory(folder.Path(name));
    folder.WriteFile(std::string(name) + "/A.LST", "");
  }
  const std::string asked = folder.Path("CARTS/A.LST");
  EXPECT_EQ(folder.Path("carts/A.LST"), HostPath(asked));
  EXPECT_EQ(folder.Path("carts/A.LST"), HostPath(asked));
  looks = 0;
  EXPECT_EQ(folder.Path("carts/A.LST"), HostPath(asked));
  EXPECT_EQ(0, looks);
  std::filesystem::rename(folder.Path("other"), folder.Path("CARTS"));
  ++tick;
  EXPECT_EQ(folder.Path("CARTS/A.LST"), HostPath(asked));
}

}  // namespace
}  // namespace logchecker
