#include "splitlogs/SplitLogTable.h"

#include <string>

namespace logchecker {

SplitLogTable gSplits;

SplitLog& SplitLogTable::operator()(int16_t splitNumber) {
  std::unique_ptr<SplitLog>& log = logs_.at(static_cast<size_t>(splitNumber - 1));
  if (!log) {
    log = factory_ ? factory_() : std::make_unique<SplitLog>();
    log->SetSplitNumberLabel(std::to_string(splitNumber));
  }
  return *log;
}

bool SplitLogTable::IsLoaded(int16_t splitNumber) const {
  return logs_.at(static_cast<size_t>(splitNumber - 1)) != nullptr;
}

void SplitLogTable::Unload(int16_t splitNumber) {
  logs_.at(static_cast<size_t>(splitNumber - 1)).reset();
}

void SplitLogTable::UnloadAll() {
  for (auto& log : logs_) log.reset();
}

void SelectBreakInActiveSplits(float seconds) {
  RequireSplitsInRange();
  for (int16_t n = 1; n <= gGeneralSettings.NumberActiveSplits; ++n) {
    gSplits(n).SelectBreakByTime(seconds);
  }
}

void LineUpOnCurrentBreak(const SplitLog& split) {
  int32_t firstRow = 0;
  split.FindBeginningofBreak(split.gridLog.Row(), firstRow);
  float seconds = 0;
  split.GetBreakTimeByRow(firstRow, seconds);
  SelectBreakInActiveSplits(seconds);
}

}  // namespace logchecker
