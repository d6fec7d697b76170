// gSplits: the logs of the ten splits, each made when it is first addressed.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>

#include "common/GeneralSettings.h"
#include "splitlogs/SplitLog.h"

namespace logchecker {

class SplitLogTable {
 public:
  using Factory = std::function<std::unique_ptr<SplitLog>()>;

  // What makes a split's log; without one it is a SplitLog without a window.
  void SetFactory(Factory factory) { factory_ = std::move(factory); }

  // The log of a split, from 1 to 10; made, with its number given, when there is none.
  SplitLog& operator()(int16_t splitNumber);
  bool IsLoaded(int16_t splitNumber) const;
  // Drops the split's log with its grid. The log file stays open, and the next address makes an
  // empty grid.
  void Unload(int16_t splitNumber);
  void UnloadAll();

 private:
  Factory factory_;
  std::array<std::unique_ptr<SplitLog>, kMostSplits> logs_;
};

extern SplitLogTable gSplits;

// Puts the selection of every active split on the break at `seconds`.
void SelectBreakInActiveSplits(float seconds);

// What a click on a grid or Enter in it does: lines all active splits up on the break that the
// current row of `split` is in.
void LineUpOnCurrentBreak(const SplitLog& split);

}  // namespace logchecker
