#include "sample/SampleStation.h"

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/GeneralSettings.h"
#include "headless/DayCheck.h"
#include "headless/Station.h"
#include "sample/SamplePlan.h"
#include "shell/LoadGeneralSettings.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46347;

class SampleStationTest : public StationTest {
 protected:
  void Write(const SampleSizes& sizes, int32_t days = 1) {
    SampleStation station;
    station.firstDay = kDay;
    station.days = days;
    station.sizes = sizes;
    WriteSampleStation(folder().Path("station"), station);
  }
  static void Open() {
    LoadGeneralSettings();
    LoadAudioSettings(kFamilySettingsFile, "");
    ASSERT_EQ(0, OpenAudiowall(0, false));
  }
};

TEST_F(SampleStationTest, ThePlantedMistakesAreWhatTheCheckFinds) {
  Write({}, 2);
  Open();
  for (const int32_t day : {kDay, kDay + 1}) {
    const DayReport report = CheckDay(day);
    ASSERT_EQ("", report.trouble);
    std::vector<std::string> rows;
    for (const ListItem& item : report.results.ListItems) {
      std::string row = item.text;
      for (const ListSubItem& subItem : item.ListSubItems) {
        row += subItem.text == "Not Found" ? " -" : " +";
      }
      rows.push_back(row);
    }
    EXPECT_EQ((std::vector<std::string>{"04:01 - + + + +", "08:01 + + + + +", "16:01 + + + + +",
                                        "20:01 + + + + -", "20:02 - - - - +"}),
              rows);
    ASSERT_EQ(5U, report.splits.size());
    EXPECT_EQ(59, report.splits[0].breaks);
    EXPECT_EQ(300, report.splits[1].adverts);
    ASSERT_EQ(1U, report.splits[3].silentAdverts.size());
    EXPECT_EQ(kUnusedAdvert, report.splits[3].silentAdverts[0].cart);
    EXPECT_EQ("16:01", report.splits[3].silentAdverts[0].time);
  }
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(SampleStationTest, TheLengthsOfTheMistakesAreThePlannedOnes) {
  Write({});
  Open();
  const DayReport report = CheckDay(kDay);
  ASSERT_EQ(5U, report.mismatches.size());
  const BreakMismatch& over = report.mismatches[1];
  EXPECT_NEAR(kOverTolerance, over.Lengths[1].seconds - over.Lengths[0].seconds, 0.01);
  const BreakMismatch& silent = report.mismatches[2];
  EXPECT_LT(silent.Lengths[3].seconds, silent.Lengths[0].seconds - 5);
}

TEST_F(SampleStationTest, TheStoreHasCartsOfEveryKind) {
  Write({});
  Open();
  EXPECT_EQ(kSampleCarts, gNumberOfCarts);
  CartInfo info;
  EXPECT_EQ(0, LoadCartInfo(info, kFirstAdvert));
  EXPECT_GT(info.PlayLength, 0);
  EXPECT_EQ(0, LoadCartInfo(info, kFirstSilentCart));
  EXPECT_EQ(0, info.PlayLength);
  EXPECT_NE(' ', info.Line1[0]);
  EXPECT_EQ(0, LoadCartInfo(info, kUnusedAdvert));
  EXPECT_EQ(kUnusedLength, info.TotalLength);
  bool exists = false;
  EXPECT_NE(std::string::npos, GetCartNotesFile(1001, exists).find(".RTF"));
  EXPECT_TRUE(exists);
  EXPECT_NE(std::string::npos, GetCartNotesFile(1002, exists).find(".TXT"));
  EXPECT_TRUE(exists);
  EXPECT_TRUE(gAudioSettings.UseIndividualCartListFiles);
  EXPECT_TRUE(folder().Exists("station/audio/carts 1/VEL00042.LST"));
}

TEST_F(SampleStationTest, WithSizesTheStoreHasPartListFilesAlone) {
  Write({2, 12, 3});
  Open();
  EXPECT_FALSE(gAudioSettings.UseIndividualCartListFiles);
  EXPECT_FALSE(folder().Exists("station/audio/carts 1/VEL00042.LST"));
  EXPECT_EQ(2, gGeneralSettings.NumberActiveSplits);
}

TEST_F(SampleStationTest, ASizeThatWouldStopTheProgramIsRefusedBeforeAnythingIsWritten) {
  // Breaks of five adverts take seven rows, so the 206th break has an advert in row 1440.
  EXPECT_THROW(Write({1, 206, 5}), Trouble);
  EXPECT_FALSE(folder().Exists("station"));
  Write({1, 205, 5});
  EXPECT_TRUE(folder().Exists("station/VELKLT.INI"));
}

TEST_F(SampleStationTest, AStationOfAnySizeThatIsTakenCanBeChecked) {
  int taken = 0;
  for (const int32_t breaks : {1, 11, 12, 97, 205, 240, 720, 1440}) {
    for (const int32_t adverts : {1, 2, 5, 8}) {
      try {
        Write({3, breaks, adverts});
      } catch (const Trouble&) {
        continue;
      }
      ++taken;
      Open();
      const DayReport report = CheckDay(kDay);
      EXPECT_EQ("", report.trouble) << breaks << " breaks of " << adverts;
      EXPECT_EQ(breaks * adverts, report.splits[2].adverts);
      EXPECT_EQ(breaks >= 12, !report.mismatches.empty()) << breaks;
      CloseStation();
      ResetGlobals();
    }
  }
  EXPECT_GE(taken, 20);
}

TEST_F(SampleStationTest, ABreakIsNeverBefore0001NorAfter2400) {
  for (const int32_t breaks : {1, 60, 1440}) {
    SamplePlan plan;
    plan.breaks = breaks;
    EXPECT_EQ(1, plan.MinuteOf(0));
    EXPECT_LE(plan.MinuteOf(breaks - 1), 1440);
  }
}

TEST_F(SampleStationTest, TheSettingsOfAnotherStationAreNotReplaced) {
  folder().WriteFile("VELKLT.INI", "[General]\r\nNumberActiveSplits=3\r\n");
  SampleStation station;
  station.firstDay = kDay;
  EXPECT_THROW(WriteSampleStation(folder().Path(), station), Trouble);
  EXPECT_EQ("[General]\r\nNumberActiveSplits=3\r\n", folder().ReadFile("VELKLT.INI"));
  Write({});
  Write({});  // its own it does
}

TEST_F(SampleStationTest, AWriteThatFailsIsTroubleWhicheverItIs) {
  int n = 0;
  bool failed = true;
  while (failed) {
    os.script.Clear();
    os.script.FailNamed("Files.Write", ++n, kDiskFull);
    failed = false;
    try {
      Write({2, 12, 3});
    } catch (const Trouble& trouble) {
      failed = true;
      EXPECT_NE(std::string::npos, std::string(trouble.what()).find("Disk full"));
    }
    EXPECT_EQ(failed, os.script.HasFailed());
  }
  EXPECT_GT(n, 10);
}

}  // namespace
}  // namespace logchecker
