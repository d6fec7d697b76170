#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "platform/StandardStreams.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr int kNoStreams = 2;

bool WriteWhole(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(descriptor, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    bytes.remove_prefix(static_cast<size_t>(count));
  }
  return true;
}

}  // namespace

// A program with windows has the streams of any other.
void JoinConsole() {}

// The system gives out the lowest number that is free, so the stream that is missing is the one
// that each open fills. Opened for reading alone, it refuses what is written; a report that nobody
// can read must not count as written.
void HoldStandardStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) >= 0) continue;
    // Without devices, as in a bare folder that is taken for the root, any file that is there will
    // do.
    if (open("/dev/null", O_RDONLY) < 0 && open("/", O_RDONLY) < 0) std::_Exit(kNoStreams);
  }
}

bool WriteStandardOutput(std::string_view bytes) { return WriteWhole(STDOUT_FILENO, bytes); }

bool StandardOutputIsTerminal() { return isatty(STDOUT_FILENO) == 1; }

void WriteStandardError(std::string_view stationText) {
  WriteWhole(STDERR_FILENO, ToUtf8(WithoutControls(stationText)));
}

void OverwriteTerminalLine(std::string_view stationText) {
  WriteWhole(STDERR_FILENO, "\r" + ToUtf8(WithoutControls(stationText)) + "\r");
}

bool StandardErrorIsTerminal() { return isatty(STDERR_FILENO) == 1; }

}  // namespace logchecker
