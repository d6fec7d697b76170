// The arrangement of the split windows by rows.
#pragma once

namespace logchecker {

// Rows fill from left to right. Row 0 stands lowest, and each later row a step further up; every
// window reaches down to the bottom of the frame. All sizes in twips.
class SplitArrangement {
 public:
  struct Place {
    int left = 0;
    int top = 0;
    int height = 0;
  };

  // How many rows there are to be is counted in advance from the first window's width alone, and
  // can differ from the rows that windows of other widths take. Throws RunTimeError 11 when that
  // window is wider than the frame.
  SplitArrangement(int innerWidth, int innerHeight, int firstWidth, int count);

  // The place of the next window, which has this width.
  Place Next(int width);

  static constexpr int kStep = 600;

 private:
  int innerWidth_;
  int innerHeight_;
  int lastRow_ = 0;
  int row_ = 0;
  int x_ = 0;
};

}  // namespace logchecker
