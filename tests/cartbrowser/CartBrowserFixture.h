// A browser whose face records what it is told.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "cartbrowser/CartBrowser.h"
#include "cartstore/AudiowallParts.h"
#include "common/ErrorState.h"
#include "tests/cartbrowser/Recorders.h"
#include "tests/support/StationTest.h"

namespace logchecker {

class RecordingBrowserFace : public CartBrowserFace {
 public:
  bool IsActive() override { return active; }
  int32_t ScreenWidth() override { return 15000; }
  int32_t WindowWidth() override { return windowWidth; }
  void MoveTo(int32_t left, int32_t top) override { moves.emplace_back(left, top); }
  std::string Fit(const std::string& text, int32_t maxWidth) override {
    return text.substr(0, static_cast<size_t>(maxWidth / 100));
  }
  void ShowRows() override { ++refreshes; }
  void ShowButtonColour(int16_t row) override { coloured.push_back(row); }
  void ShowJumpBox() override { ++jumpBoxShown; }
  void SelectJumpText() override { ++jumpTextSelected; }
  void FocusJumpBox() override { ++focused; }
  void Hide() override { ++hidden; }
  void ShowFindCart(const FindRequest& request) override {
    finds.emplace_back(request.startCart, request.modal);
  }
  void ShowNotes(const std::string& file, bool modal) override { notes.emplace_back(file, modal); }

  bool active = true;
  int32_t windowWidth = 6000;
  int refreshes = 0;
  int jumpBoxShown = 0;
  int jumpTextSelected = 0;
  int focused = 0;
  int hidden = 0;
  std::vector<std::pair<int32_t, int32_t>> moves;
  std::vector<int16_t> coloured;
  std::vector<std::pair<int32_t, bool>> finds;
  std::vector<std::pair<std::string, bool>> notes;
};

// A store of 100 carts and a browser on show with ten rows.
class CartBrowserTest : public StationTest {
 protected:
  void SetUp() override { Begin(100); }

  void Begin(int32_t carts) {
    OpenStore(carts);
    browser.Load();
    browser.LayOutRows(6000, 30 + 10 * kSingleRowHeight, 855);
    browser.ParentForm = &opener;
    browser.Activate();
    face.refreshes = 0;
  }
  void StandAt(float topOffset, int16_t row) {
    browser.JumpToCart(static_cast<int32_t>(topOffset) + 1);
    if (browser.TopOffset() != topOffset) {
      browser.JumpToCart(static_cast<int32_t>(browser.TopOffset()) + 100000);
      browser.JumpToCart(static_cast<int32_t>(topOffset) + 1);
    }
    browser.ButtonDown(row);
    face.refreshes = 0;
  }
  void ExpectAt(float topOffset, int16_t row) const {
    EXPECT_EQ(topOffset, browser.TopOffset());
    EXPECT_EQ(row, browser.CurrentRow());
    EXPECT_EQ(std::to_string(static_cast<int32_t>(topOffset) + row), browser.JumpText());
    for (int16_t r = 1; r <= browser.RowCount(); ++r) {
      EXPECT_EQ(r == row ? kHighlightColour : 0x8000000FU, browser.Row(r).ButtonColour) << r;
    }
  }

  RecordingBrowserFace face;
  RecordingOpener opener;
  CartBrowser browser{face};
};

}  // namespace logchecker
