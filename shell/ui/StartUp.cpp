// The start of the program and its end.
#include <QCoreApplication>
#include <QMdiArea>
#include <algorithm>
#include <string>
#include <vector>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/Dates.h"
#include "common/GeneralSettings.h"
#include "common/UnreadableSettings.h"
#include "common/UserInterface.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"
#include "shell/ui/frmMain.h"
#include "shell/ui/frmSplash.h"
#include "splitlogs/ui/frmLogFileSettings.h"

namespace logchecker {

bool frmMain::Load() {
  Splash().ShowAtStart();
  Splash().SetCurrentAction("Getting Velmar KLT Settings...");
  LoadGeneralSettings();
  if (!PassReadingTest({kDefaultSettingsFile, gSettingsFile, kFamilySettingsFile})) return false;
  if (!PassFirstRunTest()) return false;
  Splash().SetCurrentAction("Getting Audio Settings...");
  LoadAudioSettings(kFamilySettingsFile, "");
  if (!PassReadingTest({AudiowallSettingsFile()})) return false;
  Splash().SetCurrentAction("Opening Audiowall...");
  if (!OpenStore()) {
    UnloadSplash();
    Unload();
    return false;
  }
  show();
  UpdateSplitInfo();
  // The program's normal task is to check the logs of the coming day.
  LoadLogs(Today() + 1);
  TileChildren();
  StartupComplete = true;
  UnloadSplash();
  return true;
}

// Settings that are there and can't be read are neither those of a station nor those of a new
// machine: the program says so and ends, since it could not write them either.
bool frmMain::PassReadingTest(const std::vector<std::string>& files) {
  if (std::none_of(files.begin(), files.end(), TellIfUnreadable)) return true;
  UnloadSplash();
  Unload();
  return false;
}

// A machine that was never configured is asked for split 1. Without an answer the program ends at
// once.
bool frmMain::PassFirstRunTest() {
  if (SettingsAreThere()) return true;
  {
    frmLogFileSettings dialog(splash_);
    dialog.Tag = "1";
    dialog.exec();
  }
  if (SettingsAreThere()) {
    LoadGeneralSettings();
    return true;
  }
  Ui().Show({"There was no configuration information entered", MessageIcon::kCritical,
             MessageButtons::kOk, kProgramTitle});
  UnloadSplash();
  Unload();
  return false;
}

// A store that can't be opened is asked for once.
bool frmMain::OpenStore() {
  if (OpenAudiowall(0, false) == 0) return true;
  OnCartLocations();
  return OpenAudiowall(0, false) == 0;
}

frmSplash& frmMain::Splash() {
  if (!splash_) splash_ = new frmSplash;
  return *splash_;
}

void frmMain::UnloadSplash() { delete splash_; }

// Asks nothing: settings are written when their dialogs are confirmed. The logs go with all the
// other files.
void frmMain::Unload() {
  if (ended_) return;
  ended_ = true;
  CloseAudiowall();
  CloseAllFiles();
  QCoreApplication::exit(0);
}

}  // namespace logchecker
