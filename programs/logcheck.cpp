// The day's check for a script, a scheduler or a server.
#include <cstdlib>
#include <string>
#include <vector>

#include "headless/Logcheck.h"
#include "platform/Endings.h"
#include "platform/StandardStreams.h"

int main(int argc, char** argv) {
  logchecker::HoldStandardStreams();
  logchecker::EndWithoutTemporaryFiles();
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  // Leaves at once: all files are closed by then, and what is left is memory.
  std::_Exit(logchecker::RunLogcheck(arguments));
}
