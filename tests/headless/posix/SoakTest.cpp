// Ten thousand rounds of a day's load, check and export in one process.
#include <gtest/gtest.h>
#include <malloc.h>

#include <filesystem>
#include <string>

#include "checking/ExportListViewToCSV.h"
#include "headless/DayCheck.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46347;
constexpr int kRounds = 10000;
constexpr int kRoundsToWarmUp = 100;
// What the process may hold on to for its own good, beside the ten thousand rounds.
constexpr size_t kSlackBytes = 4096;

using Soak = StationTest;

size_t OpenHandles() {
  size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    count += entry.is_symlink() ? 1 : 0;
  }
  return count;
}

TEST_F(Soak, TenThousandRoundsLeaveMemoryAndHandlesFlat) {
  OpenStore(10);
  PutCart(1, 30.0F);
  PutCart(2, 20.0F);
  WriteLog(1, kDay, "10:30:00|NTH  00000001 ONE\r\n\r\n11:30:00|NTH  00000002 TWO\r\n");
  WriteLog(2, kDay, "10:30:00|NTH  00000001 ONE\r\n\r\n11:30:00|NTH  00000001 ONE\r\n");
  size_t handles = 0;
  size_t bytes = 0;
  for (int round = 0; round < kRounds; ++round) {
    const DayReport report = CheckDay(kDay);
    ASSERT_EQ(1U, report.mismatches.size()) << round;
    ASSERT_EQ(-1, ExportListViewToCSV(&report.results, Path("out.csv"), ",", 0)) << round;
    os.script.Clear();
    if (round == kRoundsToWarmUp) {
      handles = OpenHandles();
      bytes = mallinfo2().uordblks;
    }
  }
  EXPECT_EQ(handles, OpenHandles());
  EXPECT_LE(mallinfo2().uordblks, bytes + kSlackBytes);
}

}  // namespace
}  // namespace logchecker
