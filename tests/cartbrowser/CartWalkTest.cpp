#include "cartbrowser/CartWalk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <limits>
#include <vector>

#include "cartstore/AudiowallParts.h"
#include "cartstore/OpenAudiowall.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kForwards = SearchDirection::kForwards;
constexpr auto kBackwards = SearchDirection::kBackwards;

class Watcher : public CartWalkObserver {
 public:
  void ShowProgress(int32_t cartNumber) override { progress.push_back(cartNumber); }
  void AddResult(int32_t cartNumber, const CartInfo& /*info*/) override {
    found.push_back(cartNumber);
  }
  void Yield() override {
    ++yields;
    if (onYield) onYield();
  }

  std::vector<int32_t> progress;
  std::vector<int32_t> found;
  int yields = 0;
  std::function<void()> onYield;
};

class CartWalkTest : public StationTest {
 protected:
  static CartWalk WalkFor(const std::string& text, int32_t first, SearchDirection direction) {
    SearchRules rules;
    rules.Text = text;
    return CartWalk(CartSearch(rules), first, direction);
  }
  void Walk(int32_t first, SearchDirection direction, const std::string& text = "*") {
    watcher.progress.clear();
    watcher.found.clear();
    watcher.yields = 0;
    WalkFor(text, first, direction).Run(watcher, [this] { return stop; });
  }

  Watcher watcher;
  bool stop = false;
};

TEST_F(CartWalkTest, ItBeginsAtTheStartCartOrAtAnEndOfTheStore) {
  gNumberOfCarts = 9999;
  const struct {
    int32_t startCart;
    SearchDirection direction;
    bool fromEnd;
    int32_t first;
  } cases[] = {
      {500, kForwards, false, 500},  {500, kForwards, true, 1},   {500, kBackwards, false, 500},
      {500, kBackwards, true, 9999}, {0, kForwards, false, 1},    {-7, kForwards, false, 1},
      {0, kBackwards, false, 1},     {0, kBackwards, true, 9999}, {12000, kForwards, false, 12000}};
  for (const auto& row : cases) {
    EXPECT_EQ(row.first, FirstCartOfWalk(row.startCart, row.direction, row.fromEnd));
  }
}

TEST_F(CartWalkTest, ItEndsAtTheEndOfTheStoreAndDoesNotWrap) {
  OpenStore(12);
  for (const int32_t cart : {1, 5, 6, 12}) PutCart(cart, 10.0F);
  Walk(5, kForwards);
  EXPECT_THAT(watcher.found, ElementsAre(5, 6, 12));
  EXPECT_EQ(8, watcher.yields);
  Walk(5, kBackwards);
  EXPECT_THAT(watcher.found, ElementsAre(5, 1));
  EXPECT_EQ(5, watcher.yields);
}

TEST_F(CartWalkTest, OneThatBeginsOutsideTheStoreWalksNothing) {
  OpenStore(12);
  for (const int32_t first : {13, 0, -1, std::numeric_limits<int32_t>::max()}) {
    for (const SearchDirection direction : {kForwards, kBackwards}) {
      Walk(first, direction);
      EXPECT_EQ(0, watcher.yields) << first;
    }
  }
}

TEST_F(CartWalkTest, AStoreWithoutCartsIsWalkedToItsEndAtOnce) {
  gNumberOfCarts = 0;
  Walk(1, kForwards);
  EXPECT_EQ(0, watcher.yields);
}

TEST_F(CartWalkTest, TheLastNumberThatThereIsEndsIt) {
  constexpr int32_t kLast = std::numeric_limits<int32_t>::max();
  gNumberOfCarts = kLast;
  Walk(kLast, kForwards);
  EXPECT_EQ(1, watcher.yields);
}

TEST_F(CartWalkTest, EachHundredthCartIsShown) {
  OpenStore(320);
  Walk(100, kForwards);
  EXPECT_THAT(watcher.progress, ElementsAre(100, 200, 300));
  Walk(320, kBackwards);
  EXPECT_THAT(watcher.progress, ElementsAre(300, 200, 100));
  Walk(99, kBackwards);
  EXPECT_THAT(watcher.progress, IsEmpty());
}

TEST_F(CartWalkTest, PendingEventsRunAfterEachCart) {
  OpenStore(3);
  std::vector<size_t> foundSoFar;
  watcher.onYield = [&] { foundSoFar.push_back(watcher.found.size()); };
  PutCart(1, 10.0F);
  PutCart(3, 10.0F);
  Walk(1, kForwards);
  EXPECT_THAT(foundSoFar, ElementsAre(1, 1, 2));
}

TEST_F(CartWalkTest, StopIsObeyedBeforeTheNextCart) {
  OpenStore(500);
  for (const int32_t cart : {10, 50, 51, 300}) PutCart(cart, 10.0F);
  watcher.onYield = [this] { stop = watcher.found.size() == 2; };
  Walk(1, kForwards);
  EXPECT_THAT(watcher.found, ElementsAre(10, 50));
  EXPECT_EQ(50, watcher.yields);
}

TEST_F(CartWalkTest, OneThatIsStoppedFromTheBeginningReadsNothing) {
  OpenStore(5);
  stop = true;
  Walk(1, kForwards);
  EXPECT_EQ(0, watcher.yields);
}

TEST_F(CartWalkTest, AStoreThatShrinksOrGrowsOnTheWayEndsItWhereItEndsThen) {
  OpenStore(20);
  watcher.onYield = [] { gNumberOfCarts = 4; };
  Walk(1, kForwards);
  EXPECT_EQ(4, watcher.yields);
}

TEST_F(CartWalkTest, EveryCartIsReadAnew) {
  OpenStore(5);
  PutCart(2, 10.0F);
  watcher.onYield = [this] {
    if (watcher.yields == 1) PutCart(2, RecordOfLength(5, "CHANGED"));
  };
  Walk(1, kForwards, "changed");
  EXPECT_THAT(watcher.found, ElementsAre(2));
}

TEST_F(CartWalkTest, APartThatGoesAwayHoldsNothingUntilItComesBack) {
  OpenStore(1010);
  for (const int32_t cart : {999, 1000, 1001, 1002, 1003, 1010}) PutCart(cart, 10.0F);
  const auto away = [this] {
    CloseAudiowall();
    std::filesystem::rename(Path("part2"), Path("away"));
  };
  const auto back = [this] { std::filesystem::rename(Path("away"), Path("part2")); };
  watcher.onYield = [&] {
    if (watcher.yields == 4) away();  // behind cart 1001
    if (watcher.yields == 5) back();  // behind cart 1002
  };
  Walk(998, kForwards);
  EXPECT_THAT(watcher.found, ElementsAre(999, 1000, 1001, 1003, 1010));
  EXPECT_EQ(13, watcher.yields);
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(CartWalkTest, ACartWhoseReadFailsIsPassedOverWithoutAWord) {
  OpenStore(5);
  for (int32_t cart = 1; cart <= 5; ++cart) PutCart(cart, 10.0F);
  os.script.Clear();
  os.script.FailNamed("Files.GetRecord", 3, kDeviceIoError);
  Walk(1, kForwards);
  EXPECT_THAT(watcher.found, ElementsAre(1, 2, 4, 5));
  EXPECT_TRUE(ui.messages.empty());
}

}  // namespace
}  // namespace logchecker
