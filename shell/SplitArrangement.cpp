#include "shell/SplitArrangement.h"

#include "common/ErrorState.h"

namespace logchecker {

SplitArrangement::SplitArrangement(int innerWidth, int innerHeight, int firstWidth, int count)
    : innerWidth_(innerWidth), innerHeight_(innerHeight) {
  const int perRow = innerWidth / firstWidth;
  if (perRow == 0) throw RunTimeError(kDivisionByZero, "split 1's window is wider than the frame");
  lastRow_ = (count - 1) / perRow;
}

SplitArrangement::Place SplitArrangement::Next(int width) {
  if (x_ + width > innerWidth_) {
    ++row_;
    x_ = 0;
  }
  const int top = (lastRow_ - row_) * kStep;
  const Place place{x_, top, innerHeight_ - top};
  x_ += width;
  return place;
}

}  // namespace logchecker
