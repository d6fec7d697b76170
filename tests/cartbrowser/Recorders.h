// Callers of the browser and of the search that record what they are told.
#pragma once

#include <cstdint>
#include <vector>

#include "cartbrowser/CartCallers.h"
#include "common/ErrorState.h"

namespace logchecker {

class RecordingOpener : public CartDisplay {
 public:
  void UpdateDisplay(int32_t cartNumber) override {
    told.push_back(cartNumber);
    if (fails) throw RunTimeError(kInvalidCall, "");
  }

  std::vector<int32_t> told;
  bool fails = false;
};

class RecordingBrowser : public CartJumper {
 public:
  void JumpToCart(int32_t cartNumber) override {
    jumps.push_back(cartNumber);
    if (fails) throw RunTimeError(kInvalidCall, "");
  }

  std::vector<int32_t> jumps;
  bool fails = false;
};

}  // namespace logchecker
