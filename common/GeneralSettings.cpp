#include "common/GeneralSettings.h"

#include "common/ErrorState.h"

namespace logchecker {

GeneralSettings gGeneralSettings;
std::string gRawCommandLine;
std::string gCommandLine;
std::string gSettingsFile = kDefaultSettingsFile;
std::string gDataPath;

void RequireSplitsInRange() {
  const int16_t splits = gGeneralSettings.NumberActiveSplits;
  if (splits >= 0 && splits <= kMostSplits) return;
  throw RunTimeError(kSubscriptOutOfRange,
                     "NumberActiveSplits=" + std::to_string(splits) + " in " + gSettingsFile);
}

}  // namespace logchecker
