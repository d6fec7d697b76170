#include "headless/Watch.h"

#include <utility>

#include "common/Dates.h"
#include "common/FileHelpers.h"
#include "common/PathText.h"
#include "headless/CheckVerb.h"
#include "headless/FreshStart.h"
#include "headless/Output.h"
#include "headless/ReadRecorder.h"
#include "headless/Station.h"
#include "headless/TerminalUi.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

constexpr double kLongestRest = 3600;  // seconds

}  // namespace

Watch::Watch(Options options, WatchOutlets outlets)
    : options_(std::move(options)),
      outlets_(std::move(outlets)),
      watched_(outlets_.seconds, options_.every) {}

void Watch::Round() {
  // Its name is found anew, as it is by a check.
  if (!options_.settingsFolder.empty()) Os().system.SetWindowsFolder(options_.settingsFolder);
  watched_.Look();
  for (const WatchedFiles::FolderEvent& event : watched_.TakeFolderEvents()) {
    Tell(event.isGone ? WatchEventKind::kFolderGone : WatchEventKind::kFolderBack,
         ShownPath(event.folder) + (event.isGone ? " can't be reached" : " can be reached again"));
  }
  const int32_t firstDay = Today() + 1;
  if (IsDue(firstDay)) {
    Check(firstDay);
  } else if (!OutputIsAsWritten()) {
    TellOutput(WriteOutput());
  }
}

bool Watch::IsDue(int32_t firstDay) const {
  return checks_ == 0 || firstDay != checkedDay_ || watched_.IsDue() ||
         outlets_.seconds() - checkedAt_ >= kLongestRest;
}

void Watch::Check(int32_t firstDay) {
  ++checks_;
  checkedAt_ = outlets_.seconds();
  checkedDay_ = firstDay;
  Options options = options_;
  options.day = firstDay;
  BeginAfresh();
  CheckReport report;
  {
    const QuietErrorLines quiet;
    const ReadRecorder recorder(watched_);
    report = CheckStation(options);
  }
  // No file of the station stays open between two checks.
  CloseStation();
  bytes_ = ReportInFormat(options, report);
  // Whoever reads of what is new finds it in the file.
  const std::string failure = WriteOutput();
  std::vector<DayReport> days = WithoutRowsOfMissingLogs(known_, report.days);
  for (const WatchEvent& event : Difference(known_, days)) outlets_.tell(event);
  known_ = Known(known_, std::move(days));
  TellOutput(failure);
  RunCommand(report);
}

std::string Watch::WriteOutput() {
  if (options_.output.empty()) return "";
  std::string failure = WriteReport(options_.output, bytes_);
  outputStamp_ = Os().files.StampOf(options_.output);
  return failure;
}

void Watch::TellOutput(const std::string& failure) {
  TellState(outputFailure_, failure, WatchEventKind::kOutput, WatchEventKind::kOutputOver);
}

// Whoever takes the file away, or writes into it, gets it back. What is no file, such as a pipe, is
// written once.
bool Watch::OutputIsAsWritten() const {
  if (options_.output.empty()) return true;
  const FileStamp stamp = Os().files.StampOf(options_.output);
  if (outputFailure_.empty() && stamp == outputStamp_) return true;
  return stamp.error == kNoError && !stamp.isDirectory && GetFileLength(options_.output) < 0;
}

void Watch::RunCommand(const CheckReport& report) {
  if (!outlets_.run) return;
  CheckReport timeless = report;
  timeless.checkedAt.clear();
  std::string bytes = ReportInFormat(options_, timeless);
  if (bytes == timeless_) return;
  timeless_ = std::move(bytes);
  TellState(commandFailure_, outlets_.run(report, bytes_), WatchEventKind::kCommand,
            WatchEventKind::kCommandOver);
}

void Watch::Tell(WatchEventKind kind, const std::string& text) {
  WatchEvent event;
  event.kind = kind;
  event.text = text;
  outlets_.tell(event);
}

void Watch::TellState(std::string& told, const std::string& failure, WatchEventKind failed,
                      WatchEventKind over) {
  if (failure == told) return;
  if (failure.empty()) {
    Tell(over, "no longer: " + told);
  } else {
    Tell(failed, failure);
  }
  told = failure;
}

}  // namespace logchecker
