#include <unistd.h>

#include <cerrno>

#include "platform/StandardStreams.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

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

bool WriteStandardOutput(std::string_view bytes) { return WriteWhole(STDOUT_FILENO, bytes); }

void WriteStandardError(std::string_view stationText) {
  WriteWhole(STDERR_FILENO, ToUtf8(stationText));
}

bool StandardErrorIsTerminal() { return isatty(STDERR_FILENO) == 1; }

}  // namespace logchecker
