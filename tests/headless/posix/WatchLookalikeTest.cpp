// Names that differ in letter case alone, which this system can hold side by side.
#include <filesystem>

#include "tests/headless/WatchStation.h"

namespace logchecker {
namespace {

namespace fs = std::filesystem;

TEST_F(WatchTest, ASecondNameForAFileIsAChangeOfWhatTheReportWarnsOf) {
  fs::rename(Path("station/logs/Larkfield"), Path("station/logs/LARKFIELD"));
  Settle();
  fs::create_directory(Path("station/logs/larkfield"));
  Round();
  EXPECT_EQ("warning ", Round());
  EXPECT_NE(std::string::npos, last_.find("fits two entries"));
}

}  // namespace
}  // namespace logchecker
