#include "headless/ReportCommand.h"

#include "common/DatePicture.h"
#include "common/ErrorState.h"
#include "headless/Verdict.h"
#include "platform/Platform.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

std::string DaysOf(const CheckReport& report) {
  std::string days;
  for (const DayReport& day : report.days) days += (days.empty() ? "" : " ") + IsoDate(day.day);
  return days;
}

std::string FirstLine(const std::string& errors) {
  std::string line;
  FromUtf8(errors.substr(0, errors.find_first_of("\r\n")), &line);
  return line;
}

}  // namespace

std::string RunReportCommand(const std::string& command, const CheckReport& report,
                             const std::string& bytes) {
  Processes& processes = Os().processes;
  ChildOrder order;
  order.shellLine = command;
  order.input = bytes;
  order.environment = {{"LOGCHECK_CODE", std::to_string(CodeOf(report.days, report.accepted))},
                       {"LOGCHECK_STATION", report.station},
                       {"LOGCHECK_DAYS", DaysOf(report)}};
  order.seconds = kCommandSeconds;
  int32_t child = 0;
  ChildEnd end;
  int32_t error = processes.Start(order, &child);
  if (error == kNoError) error = processes.Wait(&child, &end);
  if (error != kNoError) return "the command could not be run: " + ErrorText(error);
  processes.Release(child);
  if (end.exitCode == 0) return "";
  std::string failure =
      "the command " +
      (end.exitCode > 0 ? "ended with " + std::to_string(end.exitCode) : end.reason);
  const std::string said = FirstLine(end.errors);
  return said.empty() ? failure : failure + ": " + said;
}

}  // namespace logchecker
