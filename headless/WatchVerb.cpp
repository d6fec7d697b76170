#include "headless/WatchVerb.h"

#include <chrono>
#include <thread>

#include "headless/CheckVerb.h"
#include "headless/ReportCommand.h"
#include "headless/Watch.h"
#include "headless/WatchLines.h"
#include "platform/Endings.h"
#include "platform/StandardStreams.h"

namespace logchecker {

namespace {

double SecondsSinceStart() {
  using std::chrono::duration;
  using std::chrono::steady_clock;
  static const steady_clock::time_point start = steady_clock::now();
  return duration<double>(steady_clock::now() - start).count();
}

// Whoever reads the lines may be gone or have a full disk, and the report's file is kept all the
// same.
void Print(const WatchEvent& event, ReportFormat format) {
  WriteStandardOutput(format == ReportFormat::kJson ? JsonLine(event) : TextLine(event));
}

}  // namespace

int RunWatch(const Options& options) {
  EndWithSuccess();
  WarnOfLookalike(options);
  WatchOutlets outlets;
  outlets.seconds = SecondsSinceStart;
  outlets.tell = [&](const WatchEvent& event) { Print(event, options.format); };
  if (!options.run.empty()) {
    outlets.run = [&](const CheckReport& report, const std::string& bytes) {
      return RunReportCommand(options.run, report, bytes);
    };
  }
  Watch watch(options, std::move(outlets));
  while (true) {
    watch.Round();
    std::this_thread::sleep_for(std::chrono::seconds(options.every));
  }
}

}  // namespace logchecker
