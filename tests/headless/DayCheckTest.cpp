#include "headless/DayCheck.h"

#include <filesystem>

#include "cartstore/AudiowallParts.h"
#include "common/GeneralSettings.h"
#include "common/PathText.h"
#include "headless/Output.h"
#include "headless/Station.h"
#include "platform/HostPaths.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46347;
constexpr char kBreak[] = "10:30:00|NTH  00000001 ONE\r\n\r\n";

class DayCheckTest : public StationTest {
 protected:
  DayCheckTest() {
    OpenStore(10);
    PutCart(1, 30.0F);
    SettingsOf(1).SplitName = "North";
    SettingsOf(2).SplitName = "South";
  }
};

TEST_F(DayCheckTest, TheStationsEndClosesTheStore) {
  EXPECT_TRUE(PartEntry(1).IsOpen);
  CloseStation();
  EXPECT_FALSE(PartEntry(1).IsOpen);
}

// A directory in its place is what nobody can read, whatever the user's rights.
TEST_F(DayCheckTest, APartThatCanNoLongerBeReadIsAWarningOnceEachTime) {
  WriteLog(1, kDay, kBreak);
  const auto warnings = [] {
    ::testing::internal::CaptureStderr();
    CheckDay(kDay);
    WarnOfUnreadableParts();
    return ::testing::internal::GetCapturedStderr();
  };
  const std::string file = ToHostPath(PartEntry(1).FullFileName);
  ASSERT_TRUE(std::filesystem::exists(file));
  const auto told = [&](const std::string& text) {
    return text.find(
               "part 1 of the cart store can't be read: " + ShownPath(PartEntry(1).FullFileName) +
               ": Path/File access error\n") != std::string::npos;
  };
  EXPECT_FALSE(told(warnings()));
  for (int time = 0; time < 2; ++time) {
    std::filesystem::rename(file, file + ".kept");
    std::filesystem::create_directory(file);
    EXPECT_TRUE(told(warnings()));
    EXPECT_FALSE(told(warnings())) << "it is known";
    std::filesystem::remove(file);
    std::filesystem::rename(file + ".kept", file);
    EXPECT_FALSE(told(warnings())) << "it is back";
  }
}

TEST_F(DayCheckTest, EachDayStartsWithAllLogsClosed) {
  WriteLog(1, kDay, kBreak);
  WriteLog(2, kDay, kBreak);
  WriteLog(1, kDay + 1, kBreak);
  EXPECT_EQ("", CheckDay(kDay).trouble);
  const DayReport next = CheckDay(kDay + 1);
  EXPECT_TRUE(next.splits[0].loaded);
  EXPECT_FALSE(next.splits[1].loaded);
  ASSERT_EQ(1U, next.mismatches.size());
  EXPECT_FALSE(next.mismatches[0].Lengths[1].found);
}

TEST_F(DayCheckTest, AListFileThatWasReplacedSinceTheDayBeforeIsReadAnew) {
  WriteLog(1, kDay, kBreak);
  WriteLog(2, kDay, "");
  EXPECT_EQ(30.0F, CheckDay(kDay).mismatches.at(0).Lengths[0].seconds);
  ReplaceListFile(1, 40.0F);
  EXPECT_EQ(40.0F, CheckDay(kDay).mismatches.at(0).Lengths[0].seconds);
}

TEST_F(DayCheckTest, ADayWithoutAnyLogIsTroubleThatNamesSplitsAndFiles) {
  WriteLog(1, kDay, kBreak);
  WriteLog(2, kDay, kBreak);
  const DayReport report = CheckDay(kDay + 1);
  EXPECT_NE(std::string::npos, report.trouble.find("no active split has a log for 2026-11-22"));
  EXPECT_NE(std::string::npos, report.trouble.find("split 1 \"North\": "));
  EXPECT_NE(std::string::npos,
            report.trouble.find(ShownPath(GetLogSourcePath(2, kDay + 1, false))));
}

TEST_F(DayCheckTest, ALogThatStopsTheCheckIsTroubleThatNamesSplitAndFile) {
  WriteLog(1, kDay, kBreak);
  WriteLog(2, kDay, kBreak);
  os.script.FailNamed("Files.Seek", 2, kDeviceIoError);
  const DayReport report = CheckDay(kDay);
  EXPECT_NE(std::string::npos, report.trouble.find("Run-time error 57: Device I/O error"));
  EXPECT_NE(std::string::npos, report.trouble.find("split 2 \"South\""));
  EXPECT_NE(std::string::npos, report.trouble.find(ShownPath(GetLogSourcePath(2, kDay, false))));
}

TEST_F(DayCheckTest, TheReportCountsBreaksAndAdvertsAndNamesCartsWithoutAudio) {
  WriteLog(1, kDay,
           "10:30:00|NTH  00000001 ONE\r\n10:30:30|NTH  00000002 TWO                           "
           "      REF-2\r\n\r\n11:30:00|NTH  00000001 ONE\r\n\r\n");
  WriteLog(2, kDay, kBreak);
  const DayReport report = CheckDay(kDay);
  EXPECT_EQ(2, report.splits[0].breaks);
  EXPECT_EQ(3, report.splits[0].adverts);
  ASSERT_EQ(1U, report.splits[0].silentAdverts.size());
  const SilentAdvert& advert = report.splits[0].silentAdverts[0];
  EXPECT_EQ(2, advert.row);
  EXPECT_EQ("10:30", advert.time);
  EXPECT_EQ(2, advert.cart);
  EXPECT_EQ("TWO", advert.description);
  EXPECT_EQ("REF-2", advert.reference);
  EXPECT_EQ("29", advert.position);
}

}  // namespace
}  // namespace logchecker
