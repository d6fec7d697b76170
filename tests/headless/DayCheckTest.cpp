#include "headless/DayCheck.h"

#include "cartstore/AudiowallParts.h"
#include "common/GeneralSettings.h"
#include "headless/Station.h"
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
  EXPECT_NE(std::string::npos, report.trouble.find(GetLogSourcePath(2, kDay + 1, false)));
}

TEST_F(DayCheckTest, ALogThatStopsTheCheckIsTroubleThatNamesSplitAndFile) {
  WriteLog(1, kDay, kBreak);
  WriteLog(2, kDay, kBreak);
  os.script.FailNamed("Files.Seek", 2, kDeviceIoError);
  const DayReport report = CheckDay(kDay);
  EXPECT_NE(std::string::npos, report.trouble.find("Run-time error 57: Device I/O error"));
  EXPECT_NE(std::string::npos, report.trouble.find("split 2 \"South\""));
  EXPECT_NE(std::string::npos, report.trouble.find(GetLogSourcePath(2, kDay, false)));
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
