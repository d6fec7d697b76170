#include "headless/FreshStart.h"

#include "cartstore/FamilySettings.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ErrorState.h"
#include "common/GeneralSettings.h"
#include "common/Lookalikes.h"
#include "headless/Station.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

void BeginAfresh() {
  CloseStation();
  gErrorState = ErrorState();
  ForgetToldLookalikes();
  gGeneralSettings = GeneralSettings();
  gSettingsFile = kDefaultSettingsFile;
  gDataPath.clear();
  gAudioSettings = AudioSettings();
  gFamilySettings = FamilySettings();
  gAudiowallParts = {};
  gNumberOfCarts = kDefaultNumberOfCarts;
  gSplitSettings = {};
  gSplits.UnloadAll();
}

}  // namespace logchecker
