#include "headless/Verdict.h"

#include <limits>

#include "common/GeneralSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

using Kinds = std::vector<WarningKind>;

class VerdictTest : public StationTest {
 protected:
  VerdictTest() { gGeneralSettings.BreakDifferenceMS = 500; }

  // Two splits with adverts.
  static DayReport Day() {
    DayReport day;
    day.splits.resize(2);
    day.splits[0].adverts = 5;
    day.splits[1].adverts = 5;
    return day;
  }
  static DayReport DayWith(std::vector<BreakMismatch::Length> lengths) {
    DayReport day = Day();
    day.splits.resize(lengths.size());
    for (SplitReport& split : day.splits) split.adverts = 5;
    day.mismatches = {{3600, std::move(lengths)}};
    return day;
  }
  static DayReport DayWarnedOf(WarningKind kind) {
    DayReport day = Day();
    day.warnings = {{kind, 1, "text"}};
    return day;
  }
};

TEST_F(VerdictTest, ADayThatMatchesIsNothingToMend) { EXPECT_EQ(kAllMatch, CodeOf(Day(), {})); }

TEST_F(VerdictTest, TroubleIsTwoWhateverElseWasFound) {
  DayReport day = DayWith({{true, 30}, {false, 0}});
  day.trouble = "no log";
  EXPECT_EQ(kTrouble, CodeOf(day, {}));
  EXPECT_EQ(kTrouble, CodeOf(day, {WarningKind::kMissingLog}));
}

TEST_F(VerdictTest, EachKindIsOneUntilItIsAccepted) {
  const Kinds kinds = {WarningKind::kSilent, WarningKind::kMidnight, WarningKind::kPassedOver,
                       WarningKind::kMissingLog};
  for (const WarningKind kind : kinds) {
    EXPECT_EQ(kToMend, CodeOf(DayWarnedOf(kind), {})) << NameOf(kind);
    EXPECT_EQ(kAllMatch, CodeOf(DayWarnedOf(kind), {kind})) << NameOf(kind);
    for (const WarningKind other : kinds) {
      if (other == kind) continue;
      EXPECT_EQ(kToMend, CodeOf(DayWarnedOf(kind), {other})) << NameOf(kind);
    }
  }
}

TEST_F(VerdictTest, WhatTheStoreSaysBesideAdvertsThatCouldBeReadIsNothingToMend) {
  EXPECT_EQ(kAllMatch, CodeOf(DayWarnedOf(WarningKind::kStation), {}));
}

TEST_F(VerdictTest, AMismatchIsOneWhateverIsAccepted) {
  const DayReport day = DayWith({{true, 30}, {false, 0}});
  EXPECT_EQ(kToMend, CodeOf(day, {}));
  EXPECT_EQ(kToMend, CodeOf(day, {WarningKind::kSilent, WarningKind::kMidnight,
                                  WarningKind::kPassedOver, WarningKind::kMissingLog}));
}

TEST_F(VerdictTest, AMismatchForAMissingLogAloneGoesWithIt) {
  struct Case {
    std::vector<BreakMismatch::Length> lengths;
    int code;
  };
  const Case cases[] = {
      {{{true, 30}, {true, 30.5F}, {false, 0}}, kAllMatch},
      {{{true, 30}, {true, 30.51F}, {false, 0}}, kToMend},
      {{{true, 30}, {false, 0}, {false, 0}}, kToMend},
      {{{true, std::numeric_limits<float>::quiet_NaN()}, {true, 30}, {false, 0}}, kToMend},
  };
  for (const Case& row : cases) {
    DayReport day = DayWith(row.lengths);
    day.splits[2].adverts = 0;
    day.warnings = {{WarningKind::kMissingLog, 3, "text"}};
    EXPECT_EQ(kToMend, CodeOf(day, {}));
    EXPECT_EQ(row.code, CodeOf(day, {WarningKind::kMissingLog}));
  }
}

TEST_F(VerdictTest, ADayThatBeginsAtMidnightEverywhereIsNeverGreen) {
  DayReport day = DayWith({{false, 0}, {false, 0}});
  day.mismatches[0].Time = 99999;
  for (SplitReport& split : day.splits) split.adverts = 0;
  EXPECT_EQ(kToMend, CodeOf(day, {WarningKind::kMidnight, WarningKind::kMissingLog,
                                  WarningKind::kPassedOver}));
}

TEST_F(VerdictTest, OfSeveralDaysTheGreatestCounts) {
  DayReport troubled = Day();
  troubled.trouble = "no log";
  EXPECT_EQ(kAllMatch, CodeOf(std::vector<DayReport>{Day(), Day()}, {}));
  EXPECT_EQ(kToMend, CodeOf({Day(), DayWarnedOf(WarningKind::kSilent), Day()}, {}));
  EXPECT_EQ(kTrouble, CodeOf({troubled, DayWarnedOf(WarningKind::kSilent)}, {}));
}

}  // namespace
}  // namespace logchecker
