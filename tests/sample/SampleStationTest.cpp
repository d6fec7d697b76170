#include "sample/SampleStation.h"

#include <cstdio>
#include <filesystem>
#include <map>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/GeneralSettings.h"
#include "headless/DayCheck.h"
#include "headless/Station.h"
#include "platform/Platform.h"
#include "sample/SamplePlan.h"
#include "shell/LoadGeneralSettings.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46347;

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

// FNV-1a, 32 bits wide.
std::string Checksum(const std::string& bytes) {
  uint32_t sum = 2166136261U;
  for (const char c : bytes) sum = (sum ^ static_cast<unsigned char>(c)) * 16777619U;
  char text[9];
  std::snprintf(text, sizeof text, "%08x", static_cast<unsigned>(sum));
  return text;
}

std::string WithoutBase(std::string text, const std::string& base) {
  for (size_t at = text.find(base); at != std::string::npos; at = text.find(base, at)) {
    text.erase(at, base.size());
  }
  return text;
}

// What the settings say of where the station lies is taken out before.
const std::map<std::string, std::string> kChecksumsOfTheStation = {
    {"VELKLT.INI", "8cdbdcf3"},
    {"VELMAR.INI", "46e4af37"},
    {"audio/carts 1/Audwall.ini", "029ea3c2"},
    {"audio/carts 1/Carts1.lst", "0f140ef1"},
    {"audio/carts 1/VEL00007.TXT", "011b39a2"},
    {"audio/carts 1/VEL00042.LST", "a0bc1193"},
    {"audio/carts 2/Carts2.lst", "fdbbf65a"},
    {"audio/carts 2/VEL01001.RTF", "ce916a46"},
    {"audio/carts 2/VEL01002.TXT", "19d8e81c"},
    {"audio/carts 2/VEL01003.LST", "5ba9117b"},
    {"audio/carts 2/VEL01207.LST", "d981b937"},
    {"audio/carts 2/VEL01207.RTF", "c90fd75a"},
    {"audio/carts 3/Carts3.lst", "d758e5ee"},
    {"audio/carts 3/VEL02010.LST", "f0e0d12a"},
    {"audio/carts 3/VEL02500.RTF", "ee7c7fb6"},
    {"audio/carts 4/Carts4.lst", "5c1e2004"},
    {"audio/carts 4/VEL03020.LST", "e0d53044"},
    {"audio/carts 4/VEL03901.TXT", "1f3daa58"},
    {"logs/Coast/211126CST.LOG", "4c2f2012"},
    {"logs/Easton and Weston/261121.LOG", "3935c2a1"},
    {"logs/Hill Country/HIL20261121.TXT", "20e2b77d"},
    {"logs/Larkfield/261121.LOG", "0d33f809"},
};

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

TEST_F(SampleStationTest, ItsTextTellsTheDaysTheSizesAndEachMistakeWithItsTime) {
  Write({}, 2);
  EXPECT_EQ(
      "Larkfield Radio, a made-up station to try Log Checker on\n"
      "\n"
      "Logs for 2026-11-21 to 2026-11-22: 5 splits with 60 breaks of 5 adverts a day.\n"
      "\n"
      "Larkfield's log has lines of the old form. Easton and Weston share one file, told apart\n"
      "by the TX chain codes EST and WST. Coast's file names end in a suffix.\n"
      "\n"
      "Mistakes planted on every day:\n"
      "  04:01  Larkfield: the break is missing.\n"
      "  08:01  Easton: 1.5 seconds longer than in the other splits, over the tolerance.\n"
      "  12:01  Weston: 0.3 seconds longer, within the tolerance, and not reported.\n"
      "  16:01  Coast: the last advert's cart, 3950, has no audio, so the break is short.\n"
      "  20:01  Hill Country: starts a minute late, at 20:02, so both times differ.\n"
      "\n"
      "The store has 4000 carts in four parts. Carts 1 to 60 are jingles, adverts begin at 1001, "
      "carts 3960 to 3963 have texts and no audio, and some carts have notes.\n"
      "Five carts have list files of their own, which are read before the part's.\n",
      folder().ReadFile("station/SAMPLE.TXT"));
}

TEST_F(SampleStationTest, ItsTextTellsOfAStationOfGivenSizesWhatIsTrueOfIt) {
  Write({2, 12, 3});
  const std::string small = folder().ReadFile("station/SAMPLE.TXT");
  EXPECT_TRUE(
      Contains(small, "\nLogs for 2026-11-21: 2 splits with 12 breaks of 3 adverts a day.\n"));
  EXPECT_TRUE(Contains(small, "\n  12:01  Easton: 0.3 seconds longer, "));
  EXPECT_TRUE(Contains(small, "\n  16:01  Larkfield: the last advert's cart, 3950, "));
  EXPECT_TRUE(Contains(small, "\n  20:01  Larkfield: starts a minute late, at 20:02, "));
  EXPECT_TRUE(Contains(small, "\nSizes were given, so the store has part list files alone.\n"));
  Write({2, 11, 3});
  const std::string smallest = folder().ReadFile("station/SAMPLE.TXT");
  EXPECT_TRUE(
      Contains(smallest, "\nNo mistakes are planted: there is no room for them.\n\nThe store"));
}

TEST_F(SampleStationTest, TheSameSizesAndDayWriteTheSameStationByteForByte) {
  // The documents' samples rely on it.
  Write({});
  const std::string base = Os().system.WindowsFolder();
  const std::string station = folder().Path("station");
  std::map<std::string, std::string> found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(station)) {
    if (!entry.is_regular_file() || entry.path().filename() == "SAMPLE.TXT") continue;
    const std::string name = std::filesystem::relative(entry.path(), station).generic_string();
    found[name] = Checksum(WithoutBase(folder().ReadFile("station/" + name), base));
  }
  EXPECT_EQ(kChecksumsOfTheStation, found);
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

TEST_F(SampleStationTest, DrawnMistakesAreFoundEachByTheCheck) {
  for (const SampleSizes& sizes : {SampleSizes{1, 60, 5}, SampleSizes{2, 30, 3},
                                   SampleSizes{5, 60, 5}, SampleSizes{3, 1440, 8}}) {
    for (const int32_t mistakes : {0, 1, 30}) {
      SampleStation station;
      station.firstDay = kDay;
      station.sizes = sizes;
      station.mistakes = mistakes;
      station.seed = 7;
      WriteSampleStation(folder().Path("station"), station);
      Open();
      const DayReport report = CheckDay(kDay);
      const std::vector<SampleMistake> planted = MistakesOf(PlanSample(station), kDay);
      ASSERT_EQ(static_cast<size_t>(mistakes), planted.size());
      size_t rows = 0;
      size_t silent = 0;
      for (const SampleMistake& mistake : planted) {
        silent += mistake.kind == SampleMistake::kNoAudio;
        if (sizes.splits > 1) rows += mistake.kind == SampleMistake::kLate ? 2 : 1;
      }
      EXPECT_EQ(rows, report.mismatches.size());
      size_t found = 0;
      for (const SplitReport& split : report.splits) found += split.silentAdverts.size();
      EXPECT_EQ(silent, found);
      EXPECT_TRUE(Contains(
          folder().ReadFile("station/SAMPLE.TXT"),
          "\n" + std::to_string(mistakes) + " mistakes planted on each day, drawn with seed 7.\n"));
      CloseStation();
      ResetGlobals();
    }
  }
}

TEST_F(SampleStationTest, TheLastDaysHaveNoLogWhereThatIsAsked) {
  SampleStation station;
  station.firstDay = kDay;
  station.days = 3;
  station.missingDays = 2;
  WriteSampleStation(folder().Path("station"), station);
  Open();
  EXPECT_FALSE(CheckDay(kDay).noLogYet);
  EXPECT_TRUE(CheckDay(kDay + 1).noLogYet);
  EXPECT_TRUE(CheckDay(kDay + 2).noLogYet);
  EXPECT_TRUE(Contains(folder().ReadFile("station/SAMPLE.TXT"),
                       "\nThere are no logs yet for the last 2 days.\n"));
}

TEST_F(SampleStationTest, AnotherSeedDrawsAnotherStation) {
  SampleStation station;
  station.firstDay = kDay;
  station.mistakes = 10;
  WriteSampleStation(folder().Path("station"), station);
  const std::string first = folder().ReadFile("station/logs/Larkfield/261121.LOG");
  WriteSampleStation(folder().Path("station"), station);
  EXPECT_EQ(first, folder().ReadFile("station/logs/Larkfield/261121.LOG"));
  station.seed = 1;
  WriteSampleStation(folder().Path("station"), station);
  EXPECT_NE(first, folder().ReadFile("station/logs/Larkfield/261121.LOG"));
}

TEST_F(SampleStationTest, MoreMistakesThanBreaksAreRefused) {
  SampleStation station;
  station.firstDay = kDay;
  station.mistakes = 61;
  EXPECT_THROW(WriteSampleStation(folder().Path("station"), station), Trouble);
  station.mistakes = 60;
  station.missingDays = 2;
  EXPECT_THROW(WriteSampleStation(folder().Path("station"), station), Trouble);
  EXPECT_FALSE(folder().Exists("station"));
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
