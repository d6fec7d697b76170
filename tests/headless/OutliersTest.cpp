#include "headless/pages/Outliers.h"

#include <gtest/gtest.h>

#include "common/GeneralSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr float kMissing = -1;

class OutliersTest : public StationTest {
 protected:
  OutliersTest() { gGeneralSettings.BreakDifferenceMS = 500; }

  static Outliers Of(const std::vector<float>& lengths) {
    BreakMismatch mismatch;
    for (const float length : lengths) {
      mismatch.Lengths.push_back({length >= 0, length >= 0 ? length : 0});
    }
    return OutliersOf(mismatch);
  }

  static std::vector<AdvertReport> Adverts(const std::vector<float>& lengths) {
    std::vector<AdvertReport> adverts;
    for (const float length : lengths) adverts.push_back({1, 7, "A", "R", length, length > 0});
    return adverts;
  }
};

TEST_F(OutliersTest, WhatMostSplitsShareIsUsualAndTheRestIsOdd) {
  struct Case {
    std::vector<float> lengths;
    std::vector<bool> odd;
    std::optional<size_t> usual;
  };
  const Case cases[] = {
      {{60, 60, 61, 60}, {false, false, true, false}, 0},
      {{61, 60.2F, 60}, {true, false, false}, 1},
      {{kMissing, 60, 60}, {true, false, false}, 1},
      // Where most have no break, the break is odd.
      {{kMissing, kMissing, kMissing, 60}, {false, false, false, true}, std::nullopt},
      // No length is shared more often than another.
      {{60, 70}, {true, true}, std::nullopt},
      {{60, 60, 70, 70}, {true, true, true, true}, std::nullopt},
      // Of two, the one without it lacks it.
      {{60, kMissing}, {false, true}, 0},
  };
  for (const Case& one : cases) {
    const Outliers outliers = Of(one.lengths);
    EXPECT_EQ(one.odd, outliers.odd);
    EXPECT_EQ(one.usual, outliers.usual);
  }
}

TEST_F(OutliersTest, TheAdvertsThatDifferFromTheUsualOnesAreOdd) {
  struct Case {
    std::vector<float> adverts;
    std::vector<float> usual;
    std::vector<bool> odd;
  };
  const Case cases[] = {
      {{10, 20, 30}, {10, 20, 30}, {false, false, false}},
      {{10, 25, 30}, {10, 20, 30}, {false, true, false}},
      {{10, 0, 30}, {10, 20, 30}, {false, true, false}},
      // One more in the middle, and one less: the place is marked.
      {{10, 15, 20, 30}, {10, 20, 30}, {false, true, false, false}},
      {{10, 30}, {10, 20, 30}, {false, true}},
      {{10}, {10, 20}, {true}},
      {{}, {10}, {}},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(one.odd, OddAdverts(Adverts(one.adverts), Adverts(one.usual)));
  }
}

}  // namespace
}  // namespace logchecker
