#include "shell/ui/Desktop.h"

#include <QApplication>
#include <string>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ErrorState.h"
#include "common/VersionData.h"
#include "common/ui/Buttons.h"
#include "common/ui/DesktopManners.h"
#include "common/ui/DisplayWatch.h"
#include "common/ui/Guard.h"
#include "common/ui/Icons.h"
#include "common/ui/QtUserInterface.h"
#include "common/ui/SingleLineBoxes.h"
#include "common/ui/StopProgram.h"
#include "platform/StationText.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"
#include "shell/ui/frmMain.h"

namespace logchecker {

namespace {

constexpr int kEndedAtStart = 1;

// Before the toolkit takes its own out of them.
std::string JoinedArguments(int argc, char** argv) {
  std::string line;
  for (int i = 1; i < argc; ++i) {
    std::string argument;
    FromArgument(argv[i], &argument);
    line += (line.empty() ? "" : " ") + argument;
  }
  return line;
}

void CloseFiles() {
  CloseAudiowall();
  CloseAllFiles();
}

void Stop(const RunTimeError& error) { StopProgram(error, CloseFiles); }

}  // namespace

int RunDesktop(int argc, char** argv) {
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
  QtUserInterface userInterface;
  UseStopRoutine(Stop);
  frmMain main;
  bool started = false;
  Guarded([&] { started = main.Load(); });
  if (!started) return kEndedAtStart;
  return main.HasEnded() ? 0 : QApplication::exec();
}

}  // namespace logchecker
