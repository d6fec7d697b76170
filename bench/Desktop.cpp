// What the desktop makes a person wait for:
//   desktop_bench START
// where START is when this process was started, in seconds of the system's steady clock. Prints, as
// key=value lines, milliseconds from there to the first paint of the main window with tomorrow in
// it, milliseconds of Load Day and of Check Day, each to the end of its painting, and peak KiB.
#include <sys/resource.h>

#include <QApplication>
#include <QToolButton>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "common/ui/QtUserInterface.h"
#include "shell/LoadLogs.h"
#include "shell/ui/frmMain.h"

namespace logchecker {
namespace {

double Now() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double Milliseconds(double begin) { return (Now() - begin) * 1000; }

int Measure(double start) {
  const QtUserInterface userInterface;
  frmMain window;
  if (!window.Load()) return 1;
  QApplication::processEvents();
  window.repaint();
  std::printf("first_paint=%.1f\n", Milliseconds(start));
  for (int i = 0; i < 3; ++i) {
    double begin = Now();
    window.LoadLogs(CurrentLogDate);
    QApplication::processEvents();
    std::printf("load_day=%.1f\n", Milliseconds(begin));
    begin = Now();
    window.findChild<QToolButton*>("sftCheckBreaks")->click();
    QApplication::processEvents();
    std::printf("check_day=%.1f\n", Milliseconds(begin));
  }
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  std::printf("memory=%ld\n", usage.ru_maxrss);
  return 0;
}

}  // namespace
}  // namespace logchecker

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  return argc == 2 ? logchecker::Measure(std::atof(argv[1])) : 2;
}
