#include "shell/LoadLogs.h"

#include "cartstore/OpenAudiowall.h"
#include "common/DatePicture.h"
#include "common/UserInterface.h"
#include "platform/Platform.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

int32_t CurrentLogDate = 0;

void LoadLogs(int32_t date) {
  CurrentLogDate = date;
  ReopenReplacedParts();
  for (int16_t n = 1; n <= kMostSplits; ++n) {
    SettingsOf(n).LogDate = date;
    gSplits(n).LoadLogFile();
    gSplits(n).SelectBreakByTime(0);
  }
}

std::string CaptionOfDay(int32_t date) {
  return std::string(kProgramTitle) + " : " + FormatDate(date, "dddddd").value_or("");
}

void CloseAllFiles() { Os().files.CloseAll(); }

}  // namespace logchecker
