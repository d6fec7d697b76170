// That a day is only called good when all of it was looked at.
#include "cartstore/AudiowallParts.h"
#include "cartstore/OpenAudiowall.h"
#include "headless/DayCheck.h"
#include "headless/Verdict.h"
#include "platform/HostPaths.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46347;

class GreenTest : public StationTest {
 protected:
  GreenTest() {
    OpenStore(1010);
    PutCart(1, 30.0F);
    PutCart(1001, 30.0F);
    SettingsOf(1).SplitName = "North";
    SettingsOf(2).SplitName = "South";
  }

  // A log of breaks of one advert, cart 1, at the given times.
  static std::string Log(const std::vector<std::string>& times) {
    std::string log;
    for (const std::string& time : times) log += time + "|NTH  00000001 ONE\r\n\r\n";
    return log;
  }
  DayReport Check(const std::string& north, const std::string& south) {
    WriteLog(1, kDay, north);
    WriteLog(2, kDay, south);
    return CheckDay(kDay);
  }
  static const Warning* Find(const DayReport& report, WarningKind kind) {
    for (const Warning& warning : report.warnings) {
      if (warning.kind == kind) return &warning;
    }
    return nullptr;
  }
};

TEST_F(GreenTest, ADayThatMatchesHasNoWarning) {
  const DayReport report = Check(Log({"10:30:00", "11:30:00"}), Log({"10:30:30", "11:30:00"}));
  EXPECT_EQ(kAllMatch, CodeOf(report, {}));
  EXPECT_TRUE(report.warnings.empty());
}

TEST_F(GreenTest, ABreakAtMidnightIsSaid) {
  const DayReport report = Check(Log({"00:00:10", "10:30:00"}), Log({"10:30:00"}));
  EXPECT_TRUE(report.mismatches.empty()) << "the comparison passes over it";
  const Warning* warning = Find(report, WarningKind::kMidnight);
  ASSERT_NE(nullptr, warning);
  EXPECT_EQ(1, warning->split);
  EXPECT_EQ(
      "split 1 \"North\": a break is not compared, at 00:00 (row 1): the comparison passes over "
      "that time",
      warning->text);
  EXPECT_EQ(kToMend, CodeOf(report, {}));
  EXPECT_EQ(kAllMatch, CodeOf(report, {WarningKind::kMidnight}));
}

TEST_F(GreenTest, ADayThatBeginsAtMidnightInEverySplitIsNotCompared) {
  const DayReport report =
      Check(Log({"00:00:00", "10:30:00"}), Log({"00:00:00", "10:30:00", "12:00:00"}));
  ASSERT_EQ(1U, report.mismatches.size());
  EXPECT_TRUE(HasNoTime(report.mismatches[0]));
  const Warning* warning = Find(report, WarningKind::kPassedOver);
  ASSERT_NE(nullptr, warning);
  EXPECT_NE(std::string::npos, warning->text.find("every split begins at 00:00"));
  EXPECT_EQ(kToMend, CodeOf(report, {WarningKind::kMidnight, WarningKind::kPassedOver}));
}

TEST_F(GreenTest, BreaksThatTheComparisonNeverComesToAreSaid) {
  struct Case {
    std::vector<std::string> north;
    const char* words;
  };
  const Case cases[] = {
      {{"10:30:00", "10:30:50", "11:30:00"}, "another one begins in the same minute"},
      {{"10:30:00", "11:30:00", "09:00:00"}, "it stands behind a later one"},
      {{"10:30:00", "11:30:00", "25:00:00"}, "its time can't be read"},
  };
  for (const Case& row : cases) {
    const DayReport report = Check(Log(row.north), Log({"10:30:00", "11:30:00"}));
    EXPECT_TRUE(report.mismatches.empty());
    const Warning* warning = Find(report, WarningKind::kPassedOver);
    ASSERT_NE(nullptr, warning) << row.words;
    EXPECT_NE(std::string::npos, warning->text.find(row.words)) << warning->text;
    EXPECT_EQ(kToMend, CodeOf(report, {}));
    EXPECT_EQ(kToMend, CodeOf(report, {WarningKind::kMidnight}));
    EXPECT_EQ(kAllMatch, CodeOf(report, {WarningKind::kPassedOver}));
  }
}

TEST_F(GreenTest, SeveralBreaksOfAKindAreOneWarning) {
  const DayReport report = Check(Log({"10:30:00", "10:30:10", "10:30:20"}), Log({"10:30:00"}));
  ASSERT_EQ(1U, report.warnings.size());
  EXPECT_EQ(
      "split 1 \"North\": 2 breaks are not compared, the first at 10:30 (row 4): another one "
      "begins in the same minute",
      report.warnings[0].text);
}

TEST_F(GreenTest, ALogOutOfOrderThatIsComparedAllTheSameIsNoWarning) {
  const DayReport report = Check(Log({"10:30:00", "09:00:00"}), Log({"09:00:00", "10:30:00"}));
  EXPECT_EQ(nullptr, Find(report, WarningKind::kPassedOver));
}

TEST_F(GreenTest, AdvertsWithoutAudioAreSaid) {
  const std::string log = "10:30:00|NTH  00000002 TWO\r\n10:30:10|NTH  00009999 FAR\r\n\r\n";
  const DayReport report = Check(log, log);
  EXPECT_TRUE(report.mismatches.empty()) << "both last 0 seconds";
  const Warning* warning = Find(report, WarningKind::kSilent);
  ASSERT_NE(nullptr, warning);
  EXPECT_EQ("split 1 \"North\": 2 adverts, the first without audio at 10:30: cart 2 TWO",
            warning->text);
  EXPECT_EQ(kToMend, CodeOf(report, {}));
  EXPECT_EQ(kAllMatch, CodeOf(report, {WarningKind::kSilent}));
}

TEST_F(GreenTest, ASplitWithoutAdvertsBesideOthersIsSaid) {
  struct Case {
    const char* south;
    const char* words;
  };
  const Case cases[] = {{"", "an empty log for 2026-11-21: split 2 \"South\""},
                        {"\r\n\r\n", "no advert for 2026-11-21: split 2 \"South\""}};
  for (const Case& row : cases) {
    const DayReport report = Check(Log({"10:30:00"}), row.south);
    const Warning* warning = Find(report, WarningKind::kMissingLog);
    ASSERT_NE(nullptr, warning) << row.words;
    EXPECT_EQ(2, warning->split);
    EXPECT_EQ(0U, warning->text.find(row.words)) << warning->text;
    EXPECT_EQ(kToMend, CodeOf(report, {}));
    EXPECT_EQ(kAllMatch, CodeOf(report, {WarningKind::kMissingLog}));
  }
}

TEST_F(GreenTest, ADayWithoutAnyAdvertCannotBeChecked) {
  const DayReport report = Check("\r\n", "");
  EXPECT_NE(std::string::npos,
            report.trouble.find("no active split has an advert in its log for 2026-11-21"));
  EXPECT_FALSE(report.noLogYet);
  EXPECT_EQ(kTrouble, CodeOf(report, {WarningKind::kMissingLog}));
  const DayReport next = CheckDay(kDay + 1);
  EXPECT_TRUE(next.noLogYet);
}

TEST_F(GreenTest, AStorePartThatAnAdvertNeedsAndThatCannotBeReadIsTrouble) {
  const std::string log = Log({"10:30:00"}) + "11:30:00|NTH  00001001 FAR\r\n\r\n";
  EXPECT_EQ(kAllMatch, CodeOf(Check(log, log), {}));
  CloseAudiowall();
  std::filesystem::rename(ToHostPath(Path("part2")), ToHostPath(Path("away")));
  const DayReport report = Check(log, log);
  EXPECT_EQ("cart 1001 can't be read: " + Path("part2") +
                ": the directory can't be reached, wanted by split 1 \"North\"",
            report.trouble);
  EXPECT_EQ(kAllMatch, CodeOf(Check(Log({"10:30:00"}), Log({"10:30:00"})), {}))
      << "no advert needs it";
}

TEST_F(GreenTest, AListFileThatCannotBeReadIsTrouble) {
  os.script.FailNamed("Files.GetRecord", 1, kDeviceIoError);
  const DayReport report = Check(Log({"10:30:00"}), Log({"10:30:00"}));
  EXPECT_NE(std::string::npos, report.trouble.find("cart 1 can't be read: ")) << report.trouble;
  EXPECT_NE(std::string::npos, report.trouble.find("Carts1.lst: Device I/O error"));
}

TEST_F(GreenTest, AMismatchBringsTheAdvertsOfItsBreakInEachSplit) {
  const std::string north =
      "10:30:00|NTH  00000001 ONE                                 REF-1\r\n"
      "10:30:30|NTH  00000002 TWO\r\n\r\n";
  const DayReport report =
      Check(north + Log({"11:30:00"}), Log({"10:30:00"}) + "11:30:00|NTH  00000002 TWO\r\n");
  ASSERT_EQ(1U, report.mismatches.size());
  ASSERT_EQ(1U, report.adverts.size());
  ASSERT_EQ(2U, report.adverts[0].size());
}

}  // namespace
}  // namespace logchecker
