// Turns at a folder: who gets it, who waits, and who goes on without it.
#include "platform/posix/FolderLock.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <vector>

#include "platform/Waiting.h"
#include "tests/support/TempFolder.h"
#include "tests/support/posix/AsUser.h"

namespace logchecker {
namespace {

constexpr int kAnHour = 3600000;  // in milliseconds

using Clock = std::chrono::steady_clock;

class FolderLockTest : public ::testing::Test {
 protected:
  // The wait of a test before may have been in vain.
  FolderLockTest() { FolderLock free(folder_.Path("a.ini")); }

  // How long it took to go on without the folder.
  Clock::duration WaitInVain(int patience) const {
    const Clock::time_point start = Clock::now();
    EXPECT_FALSE(FolderLock(folder_.Path("a.ini"), patience).held());
    return Clock::now() - start;
  }

  TempFolder folder_;
};

TEST_F(FolderLockTest, OneAtATimeHasTheFolderWhicheverFileIsMeant) {
  const FolderLock first(folder_.Path("a.ini"));
  EXPECT_TRUE(first.held());
  EXPECT_FALSE(FolderLock(folder_.Path("b.ini"), 0).held());
  const TempFolder other;
  EXPECT_TRUE(FolderLock(other.Path("a.ini"), 0).held());
}

TEST_F(FolderLockTest, ItIsFreeAgainAndNothingIsLeftBehind) {
  { const FolderLock first(folder_.Path("a.ini")); }
  EXPECT_TRUE(FolderLock(folder_.Path("a.ini"), 0).held());
  EXPECT_EQ(0U, folder_.Count());
}

TEST_F(FolderLockTest, TheNextWaitsUntilTheFolderIsFree) {
  auto first = std::make_unique<FolderLock>(folder_.Path("a.ini"));
  auto next = std::async(std::launch::async,
                         [this] { return FolderLock(folder_.Path("a.ini"), kAnHour).held(); });
  first.reset();
  EXPECT_TRUE(next.get());
}

TEST_F(FolderLockTest, AfterAWaitInVainTheNextLooksOnceUntilTheFolderIsFree) {
  auto first = std::make_unique<FolderLock>(folder_.Path("a.ini"));
  EXPECT_GE(WaitInVain(20), std::chrono::milliseconds(20));
  EXPECT_LT(WaitInVain(kAnHour), std::chrono::minutes(10));
  first.reset();
  EXPECT_TRUE(FolderLock(folder_.Path("a.ini")).held());
  first = std::make_unique<FolderLock>(folder_.Path("a.ini"));
  EXPECT_GE(WaitInVain(20), std::chrono::milliseconds(20));
}

TEST_F(FolderLockTest, AFolderThatIsMissingIsNotWaitedFor) {
  EXPECT_FALSE(FolderLock(folder_.Path("none") + "/a.ini", kAnHour).held());
}

TEST_F(FolderLockTest, EveryWayToAFileLeadsToOneLock) {
  const TempFolder real;
  real.WriteFile("a.ini", "");
  std::filesystem::create_symlink(real.Path("a.ini"), folder_.Path("link.ini"));
  std::filesystem::create_symlink("link.ini", folder_.Path("second.ini"));
  std::filesystem::create_symlink(real.Path("later.ini"), folder_.Path("dangling.ini"));
  const TempFolder third;
  std::filesystem::create_hard_link(real.Path("a.ini"), third.Path("other.ini"));
  const FolderLock first(folder_.Path("second.ini"));
  EXPECT_TRUE(first.held());
  for (const std::string& path : {real.Path("a.ini"), real.Path("b.ini"), folder_.Path("link.ini"),
                                  folder_.Path("dangling.ini"), third.Path("other.ini")}) {
    EXPECT_FALSE(FolderLock(path, 0).held()) << path;
  }
  EXPECT_TRUE(FolderLock(folder_.Path("free.ini"), 0).held());
}

TEST_F(FolderLockTest, AFileIsLockedWhereItsFolderCantBe) {
  folder_.WriteFile("a.ini", "");
  chmod(folder_.Path().c_str(), 0311);
  chmod(folder_.Path("a.ini").c_str(), 0644);
  EXPECT_EQ(0, AsUser(kBob, [this] {
              const FolderLock first(folder_.Path("a.ini"));
              return first.held() && !FolderLock(folder_.Path("a.ini"), 0).held() ? 0 : 1;
            }));
  chmod(folder_.Path().c_str(), 0755);
}

TEST_F(FolderLockTest, UsersShareTheLock) {
  folder_.WriteFile("a.ini", "");
  GiveTo(kAlice, folder_.Path("a.ini").c_str());
  chmod(folder_.Path("a.ini").c_str(), 0664);
  chmod(folder_.Path().c_str(), 0755);
  const auto held = [this] { return FolderLock(folder_.Path("a.ini"), 0).held() ? 1 : 0; };
  EXPECT_EQ(1, AsUser(kAlice, held));
  EXPECT_EQ(1, AsUser(kBob, held));
  const FolderLock first(folder_.Path("a.ini"));
  EXPECT_EQ(0, AsUser(kAlice, held));
  EXPECT_EQ(0, AsUser(kBob, held));
}

std::vector<bool>& Signs() {
  static std::vector<bool> signs;
  return signs;
}

TEST_F(FolderLockTest, AWaitThatCanBeNoticedGivesASign) {
  const WaitSign before = UseWaitSign([](bool waiting) { Signs().push_back(waiting); });
  auto first = std::make_unique<FolderLock>(folder_.Path("a.ini"));
  EXPECT_TRUE(Signs().empty());
  WaitInVain(200);
  EXPECT_EQ(std::vector<bool>({true, false}), Signs());
  WaitInVain(200);  // looks once
  EXPECT_EQ(2U, Signs().size());
  UseWaitSign(before);
}

}  // namespace
}  // namespace logchecker
