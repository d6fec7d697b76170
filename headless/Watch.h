// Checks again whenever something has changed: the work of one round, without the waiting.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "headless/CommandLine.h"
#include "headless/ReportDifference.h"
#include "headless/Reports.h"
#include "headless/WatchedFiles.h"

namespace logchecker {

// What a watch asks and tells.
struct WatchOutlets {
  SecondsClock seconds;
  std::function<void(const WatchEvent& event)> tell;
  // Gives a report that differs from the one before, but for its time, to the command. "" on
  // success, otherwise one clear line. Empty without a command.
  std::function<std::string(const CheckReport& report, const std::string& bytes)> run;
};

class Watch {
 public:
  // `options` are those of the check, with `every`. The days begin with tomorrow.
  Watch(Options options, WatchOutlets outlets);

  // Looks at what the last check read, and checks again where that has changed and stands still,
  // where there is a new tomorrow, and once an hour in any case: what a share does not show is seen
  // then, and the time in the report says that somebody is watching. Tells what is new, and keeps
  // the file of `--output` what the last report is.
  void Round();

  // How many checks there have been.
  int Checks() const { return checks_; }
  // All that is watched, as station paths.
  std::vector<std::string> Paths() const { return watched_.Paths(); }

 private:
  bool IsDue(int32_t firstDay) const;
  void Check(int32_t firstDay);
  std::string WriteOutput();
  void TellOutput(const std::string& failure);
  bool OutputIsAsWritten() const;
  void RunCommand(const CheckReport& report);
  void Tell(WatchEventKind kind, const std::string& text);
  // Tells of a failure once, and once that it is over.
  void TellState(std::string& told, const std::string& failure, WatchEventKind failed,
                 WatchEventKind over);

  Options options_;
  WatchOutlets outlets_;
  WatchedFiles watched_;
  int checks_ = 0;
  double checkedAt_ = 0;
  int32_t checkedDay_ = 0;
  std::vector<DayReport> known_;
  std::string bytes_;     // of the report
  std::string timeless_;  // the same without its time
  FileStamp outputStamp_;
  std::string outputFailure_;
  std::string commandFailure_;
};

}  // namespace logchecker
