// How long the viewer of notes takes to show one long line, from its file to the painted window,
// and what it then holds up at most while the rest is laid out. Prints key=value lines:
// milliseconds.
#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

#include "notes/TextFile.h"
#include "notes/ui/frmPrintPreview.h"

namespace logchecker {
namespace {

using Clock = std::chrono::steady_clock;

constexpr size_t kMegabyte = 1000000;

double MillisecondsSince(Clock::time_point begin) {
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

// A line of words, or of one word alone.
std::string Line(size_t size, bool words) {
  std::string line(size, 'x');
  for (size_t i = 6; words && i < size; i += 7) line[i] = ' ';
  return line;
}

void Show(const std::string& file, const char* name) {
  frmPrintPreview preview;
  const Clock::time_point begin = Clock::now();
  preview.LoadFile(file);
  preview.show();
  QApplication::processEvents();
  preview.repaint();
  std::printf("%s=%.1f\n", name, MillisecondsSince(begin));
  double longest = 0;
  const Clock::time_point shown = Clock::now();
  while (MillisecondsSince(shown) < 5000) {
    const Clock::time_point one = Clock::now();
    QApplication::processEvents();
    longest = std::max(longest, MillisecondsSince(one));
  }
  std::printf("%s_held=%.1f\n", name, longest);
}

int Measure(const std::string& file) {
  for (const bool words : {true, false}) {
    WriteTextFile(file, Line(kMegabyte, words));
    Show(file, "note_1");
    WriteTextFile(file, Line(16 * kMegabyte, words));
    Show(file, "note_16");
  }
  return 0;
}

}  // namespace
}  // namespace logchecker

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  return argc == 2 ? logchecker::Measure(argv[1]) : 2;
}
