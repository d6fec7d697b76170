// Any arguments, apart at the NULs: options come out that can be worked with, or a message.
#include <vector>

#include "fuzz/FuzzStation.h"
#include "fuzz/Fuzzer.h"
#include "headless/CommandLine.h"
#include "shell/LoadGeneralSettings.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  FuzzStationFolder();
  std::vector<std::string> arguments(1);
  for (const char c : AsText(data, size)) {
    if (c == '\0') {
      arguments.emplace_back();
    } else {
      arguments.back() += c;
    }
  }
  const ParsedArguments parsed = ParseArguments(arguments);
  Require(parsed.options.has_value() || !parsed.message.empty());
  if (parsed.options) {
    Require(parsed.options->days >= 1);
    SetCommandLine(parsed.options->wholeLine);
  } else {
    SetCommandLine(std::string(AsText(data, size)));
  }
  LoadGeneralSettings();
  return 0;
}
