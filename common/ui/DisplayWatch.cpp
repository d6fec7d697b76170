#include "common/ui/DisplayWatch.h"

#include <QtGlobal>
#include <cstdlib>
#include <mutex>
#include <utility>
#include <vector>

#include "common/ui/StationQString.h"
#include "platform/StandardStreams.h"

namespace logchecker {

namespace {

constexpr int kNoDisplay = 2;

// There is one display, and the toolkit's messages come without a word of whom they are for.
struct Watch {
  std::mutex mutex;
  std::string program;
  std::function<void()> closeFiles;
  bool running = false;
  bool displayIsThere = false;
  std::vector<std::string> held;  // what the toolkit said before there was a display
};

Watch& TheWatch() {
  // Never destroyed: the toolkit speaks to the very end.
  static auto* watch = new Watch;
  return *watch;
}

void WriteLine(const Watch& watch, std::string text) {
  while (!text.empty() && text.back() == '\n') text.pop_back();
  for (char& c : text) {
    if (c == '\n') c = ' ';
  }
  WriteStandardError(watch.program + ": " + text + "\n");
}

[[noreturn]] void Leave(Watch& watch, const std::string& why) {
  watch.running = false;
  WriteLine(watch, why);
  if (watch.closeFiles) watch.closeFiles();
  std::_Exit(kNoDisplay);
}

// What the toolkit says of its attempts is of use only where one of them succeeds in the end.
void TakeMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  // That pictures are made without the display's graphics library is meant.
  if (type == QtDebugMsg || message.endsWith("Using CPU conversion.")) return;
  Watch& watch = TheWatch();
  const std::string text = FromQString(message);
  if (type == QtFatalMsg) Leave(watch, watch.displayIsThere ? text : "no display can be opened");
  if (message.startsWith("The X11 connection broke") ||
      message.startsWith("The Wayland connection broke")) {
    Leave(watch, "the display is gone");
  }
  const std::lock_guard<std::mutex> lock(watch.mutex);
  if (watch.displayIsThere) {
    WriteLine(watch, text);
  } else {
    watch.held.push_back(text);
  }
}

// Nothing of this program ends it so while its windows stand: a library has lost the display.
void LeaveAtExit() {
  if (TheWatch().running) Leave(TheWatch(), "the display is gone");
}

}  // namespace

DisplayWatch::DisplayWatch(const std::string& program, std::function<void()> closeFiles) {
  Watch& watch = TheWatch();
  watch.program = program;
  watch.closeFiles = std::move(closeFiles);
  qInstallMessageHandler(TakeMessage);
}

DisplayWatch::~DisplayWatch() { TheWatch().running = false; }

void DisplayWatch::DisplayIsThere() {
  Watch& watch = TheWatch();
  watch.displayIsThere = true;
  watch.running = true;
  for (const std::string& text : std::exchange(watch.held, {})) WriteLine(watch, text);
  std::atexit(LeaveAtExit);
}

}  // namespace logchecker
