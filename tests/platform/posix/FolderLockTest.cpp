// Turns at a folder: who gets it, who waits, and who goes on without it.
#include "platform/posix/FolderLock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <memory>

#include "tests/support/TempFolder.h"

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

}  // namespace
}  // namespace logchecker
