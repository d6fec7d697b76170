// Child windows side by side.
#pragma once

#include <vector>

namespace logchecker {

struct TilePlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

// Places for `count` windows that fill an area, from left to right in one row, in any one unit.
// Where that would leave a window narrower than `leastWidth` they stand in as many rows as it
// takes; the last windows then share a shorter row among them. Where the rows would be lower than
// `leastHeight` they are as high as that, and the last ones stand below the area.
std::vector<TilePlace> TileVertically(int count, int areaWidth, int areaHeight, int leastWidth,
                                      int leastHeight = 0);

}  // namespace logchecker
