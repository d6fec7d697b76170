// Any bytes as a split's log: the grid is loaded and walked, or the program stops in order.
#include "common/ErrorState.h"
#include "fuzz/FuzzStation.h"
#include "fuzz/Fuzzer.h"
#include "platform/Platform.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLog.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {
namespace {

constexpr int16_t kSplit = 1;
constexpr int32_t kDay = 46000;

// Goes from break to break, and asks each for its ends. Nothing goes backwards.
void Walk(const SplitLog& log) {
  int32_t row = 1;
  while (true) {
    int32_t last = 0;
    log.FindEndofBreak(row, last);
    Require(last >= row && last < log.gridLog.Rows());
    int32_t first = 0;
    log.FindBeginningofBreak(row, first);
    Require(first <= row);
    float seconds = 0;
    log.GetBreakTimeByRow(first, seconds);
    int32_t next = 0;
    log.FindNextBreak(row, next);
    Require(next >= row && next < log.gridLog.Rows());
    if (next == row) return;
    row = next;
  }
}

}  // namespace
}  // namespace logchecker

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  const TempFolder& folder = FuzzStationFolder();
  gSplitSettings = {};
  SplitSettings& settings = SettingsOf(kSplit);
  settings.LogSourceDirectory = folder.Path();
  settings.DateFormat = "YYMMDD";
  settings.Extension = "LOG";
  settings.LogDate = kDay;
  // The first byte chooses whether the lines of one chain count, or all.
  if (size > 0 && data[0] % 2 == 1) settings.LogTXChainCode = "A1";
  folder.WriteFile(GetLogFileName(kSplit, kDay, false), AsText(data, size));

  SplitLog log;
  log.SetSplitNumberLabel("1");
  try {
    log.LoadLogFile();
    if (log.gridLog.Rows() > 1) Walk(log);
    log.SelectBreakByTime(0);
  } catch (const RunTimeError& error) {
    Require(error.number() != 0);
  }
  RealPlatform().files.CloseAll();
  return 0;
}
