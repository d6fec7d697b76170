#include "shell/ui/Desktop.h"

#include <QApplication>
#include <algorithm>
#include <string>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ErrorState.h"
#include "common/VersionData.h"
#include "common/ui/Buttons.h"
#include "common/ui/CutTextTips.h"
#include "common/ui/DesktopManners.h"
#include "common/ui/DisplayWatch.h"
#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/Icons.h"
#include "common/ui/QtUserInterface.h"
#include "common/ui/SingleLineBoxes.h"
#include "common/ui/StopProgram.h"
#include "common/ui/VisibleFocus.h"
#include "platform/StationText.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"
#include "shell/ui/frmMain.h"

namespace logchecker {

namespace {

constexpr int kEndedAtStart = 1;
constexpr char kTry[] = "--try";

Trial& TheTrial() {
  static Trial trial;
  return trial;
}

bool IsTrial(int argc, char** argv) {
  return std::any_of(argv + 1, argv + argc,
                     [](const char* word) { return word == std::string(kTry); });
}

// Before the toolkit takes its own out of them.
std::string JoinedArguments(int argc, char** argv) {
  std::string line;
  for (int i = 1; i < argc; ++i) {
    if (argv[i] == std::string(kTry)) continue;
    std::string argument;
    FromArgument(argv[i], &argument);
    line += (line.empty() ? "" : " ") + argument;
  }
  return line;
}

void CloseFiles() {
  CloseAudiowall();
  CloseAllFiles();
  TheTrial().End();
}

void Stop(const RunTimeError& error) { StopProgram(error, CloseFiles); }

int Run() {
  frmMain main;
  bool started = false;
  Guarded([&] { started = main.Load(); });
  if (!started) return kEndedAtStart;
  return main.HasEnded() ? 0 : QApplication::exec();
}

}  // namespace

int RunDesktop(int argc, char** argv, const WriteMadeUpStation& write) {
  const bool trial = IsTrial(argc, argv);
  SetCommandLine(JoinedArguments(argc, argv));
  DisplayWatch display("logchecker", CloseFiles);
  JoinDesktop("org.logchecker.LogChecker");
  const QApplication application(argc, argv);
  FollowTheme();
  display.DisplayIsThere();
  QApplication::setApplicationName("logchecker");
  QApplication::setApplicationVersion(kVersion);
  QApplication::setWindowIcon(IconNamed("program"));
  // The end of the program is the main window's, not that of the last window to close.
  QApplication::setQuitOnLastWindowClosed(false);
  KeepBoxesToOneLine();
  HoldButtonRules();
  HoldGuideKey();
  HoldCutTextTips();
  HoldVisibleFocus();
  QtUserInterface userInterface;
  UseStopRoutine(Stop);
  int result = kEndedAtStart;
  if (!trial || TheTrial().Begin(write)) result = Run();
  CloseFiles();
  return result;
}

}  // namespace logchecker
