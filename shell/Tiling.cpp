#include "shell/Tiling.h"

#include <algorithm>

namespace logchecker {

std::vector<TilePlace> TileVertically(int count, int areaWidth, int areaHeight, int leastWidth,
                                      int leastHeight) {
  std::vector<TilePlace> places;
  if (count < 1) return places;
  const int most = std::max(areaWidth / std::max(leastWidth, 1), 1);
  const int rows = (count + most - 1) / most;
  areaHeight = std::max(areaHeight, rows * leastHeight);
  // Rows of as even a length as can be, the longer ones first.
  for (int row = 0; row < rows; ++row) {
    const int inRow = count / rows + (row < count % rows ? 1 : 0);
    const int top = areaHeight * row / rows;
    const int height = areaHeight * (row + 1) / rows - top;
    for (int i = 0; i < inRow; ++i) {
      const int left = areaWidth * i / inRow;
      places.push_back({left, top, areaWidth * (i + 1) / inRow - left, height});
    }
  }
  return places;
}

}  // namespace logchecker
