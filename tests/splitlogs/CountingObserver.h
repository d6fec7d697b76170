// Counts what whoever shows a grid is told.
#pragma once

#include "splitlogs/LogGrid.h"

namespace logchecker {

class CountingObserver : public LogGridObserver {
 public:
  void GridChanged() override { ++changes; }
  void SelectionChanged() override { ++selections; }
  int changes = 0;
  int selections = 0;
};

}  // namespace logchecker
