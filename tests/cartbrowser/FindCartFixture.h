// A search window whose face records what it is told.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "cartbrowser/FindCart.h"
#include "common/ErrorState.h"
#include "tests/cartbrowser/Recorders.h"
#include "tests/support/StationTest.h"

namespace logchecker {

class RecordingFindFace : public FindCartFace {
 public:
  bool IsVisible() override { return visible; }
  void ShowControls() override { ++controlsShown; }
  void PaintProgress() override { ++progressPainted; }
  void ShowResultAdded(size_t row) override { rowsAdded.push_back(row); }
  void ShowResults() override { ++resultsShown; }
  void FocusOn(FindControl control) override { focus.push_back(control); }
  void PlayAnimation() override { playing = true; }
  void StopAnimation() override {
    playing = false;
    ++stops;
  }
  void Hide() override { visible = false; }

  // How often anything at all was asked of the controls.
  size_t Touches() const {
    return static_cast<size_t>(controlsShown) + static_cast<size_t>(progressPainted) +
           rowsAdded.size() + static_cast<size_t>(resultsShown) + focus.size() +
           static_cast<size_t>(stops);
  }

  bool visible = true;
  bool playing = false;
  int stops = 0;
  int controlsShown = 0;
  int progressPainted = 0;
  int resultsShown = 0;
  std::vector<size_t> rowsAdded;
  std::vector<FindControl> focus;
};

// Runs events in the middle of a walk.
class EventUi : public UserInterface {
 public:
  EventUi() : before_(UseUserInterface(*this)) {}
  EventUi(const EventUi&) = delete;
  EventUi& operator=(const EventUi&) = delete;
  ~EventUi() override { UseUserInterface(before_); }

  MessageAnswer Show(const Message& message) override { return before_.Show(message); }
  void SetMousePointer(MousePointer pointer) override { before_.SetMousePointer(pointer); }
  MousePointer CurrentMousePointer() override { return before_.CurrentMousePointer(); }
  void Yield() override {
    ++yields;
    if (onYield) onYield(yields);
  }
  void ShowProgress(int32_t /*value*/, int32_t /*maximum*/) override {}

  int yields = 0;
  std::function<void(int)> onYield;

 private:
  UserInterface& before_;
};

// A store of 300 carts with ten in use, and a window on show that was opened at cart 1.
class FindCartTest : public StationTest {
 protected:
  void SetUp() override {
    OpenStore(300);
    for (const int32_t cart : {1, 5, 50, 99, 100, 101, 150, 200, 299, 300}) {
      PutCart(cart, RecordOfLength(static_cast<float>(cart), "CART " + std::to_string(cart)));
    }
    find.Load();
    ShowAt(1);
  }
  void ShowAt(int32_t cart) {
    face.visible = true;
    find.StartCart = cart;
    find.CallingBrowser = &browser;
    find.Activate();
  }
  void FindText(const std::string& text) {
    find.input.SearchText = text;
    find.Find();
  }
  std::vector<int32_t> Found() const {
    std::vector<int32_t> numbers;
    for (size_t row = 0; row < find.results().Count(); ++row) {
      numbers.push_back(find.results().Row(row).Number());
    }
    return numbers;
  }
  void ExpectClosed(std::vector<int32_t> jumps) const {
    EXPECT_TRUE(find.Closing);
    EXPECT_FALSE(find.WindowInitialised);
    EXPECT_EQ(nullptr, find.CallingBrowser);
    EXPECT_EQ(jumps, browser.jumps);
  }

  EventUi events;
  RecordingFindFace face;
  RecordingBrowser browser;
  FindCart find{face};
};

}  // namespace logchecker
