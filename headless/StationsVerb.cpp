#include "headless/StationsVerb.h"

#include <algorithm>
#include <map>
#include <utility>

#include "common/ErrorState.h"
#include "common/Lookalikes.h"
#include "common/PathText.h"
#include "headless/ReportWriter.h"
#include "headless/Reports.h"
#include "headless/Station.h"
#include "headless/StationChild.h"
#include "headless/StationList.h"
#include "headless/StationsReport.h"
#include "headless/Unchecked.h"
#include "headless/Verdict.h"
#include "platform/Platform.h"
#include "platform/StandardStreams.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

// "37 of 1000" on a terminal, gone with the run.
class Progress {
 public:
  explicit Progress(size_t all) : all_(all), onTerminal_(StandardErrorIsTerminal()) { Show(0); }
  ~Progress() { Wipe(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // Gone for a line of text that is to come.
  void Wipe() {
    if (onTerminal_) OverwriteTerminalLine(std::string(shown_.size(), ' '));
  }
  void Show(size_t done) {
    shown_ = std::to_string(done) + " of " + std::to_string(all_);
    if (onTerminal_) OverwriteTerminalLine(shown_);
  }

 private:
  size_t all_;
  bool onTerminal_;
  std::string shown_;
};

// The report of a station that has none of its own: each of its days says why.
std::string MadeReport(const ListedStation& station, const Options& options,
                       const std::string& reason) {
  CheckReport report;
  report.station = station.name;
  report.settings = station.settings;
  report.checkedAt = CheckTime();
  report.days = UncheckedDays(options, reason);
  return JsonReport(report);
}

// Trouble alone, a line a station and reason: what else there is to say stands in the report.
void TellTrouble(const ReadReport& report) {
  std::vector<std::pair<std::string, size_t>> reasons;
  for (const ReadDay& day : report.days) {
    if (day.trouble.empty()) continue;
    const std::string reason = day.noLogYet ? "no log yet" : day.trouble;
    const auto known = std::find_if(reasons.begin(), reasons.end(),
                                    [&](const auto& entry) { return entry.first == reason; });
    if (known == reasons.end()) {
      reasons.emplace_back(reason, 1);
    } else {
      ++known->second;
    }
  }
  for (const auto& [reason, days] : reasons) {
    const bool ofSome = report.days.size() > 1 && days < report.days.size();
    std::string text;
    FromUtf8(report.station + ": " + reason, &text);
    WriteErrorLine(text + (ofSome ? " (" + std::to_string(days) + " of " +
                                        std::to_string(report.days.size()) + " days)"
                                  : ""));
  }
}

class StationsRun {
 public:
  StationsRun(const Options& options, std::vector<ListedStation> stations)
      : options_(options),
        stations_(std::move(stations)),
        report_(MakeStationsReport(options)),
        writer_(options.output) {}

  ~StationsRun() {
    for (const auto& [child, station] : running_) Os().processes.Release(child);
    for (const auto& [station, waiting] : waiting_) Os().processes.Release(waiting.child);
  }
  StationsRun(const StationsRun&) = delete;
  StationsRun& operator=(const StationsRun&) = delete;

  int Run() {
    Progress progress(stations_.size());
    const auto write = [this](std::string_view bytes) { writer_.Write(bytes); };
    report_->Begin(stations_, write);
    size_t started = 0;
    while (written_ < stations_.size()) {
      const auto jobs = static_cast<size_t>(options_.jobs);
      while (started < stations_.size() && running_.size() < jobs) Start(started++);
      if (!running_.empty()) TakeNext();
      progress.Wipe();
      while (!waiting_.empty() && waiting_.begin()->first == written_) WriteFirst(write);
      progress.Show(written_ + waiting_.size());
    }
    progress.Wipe();
    report_->End(write);
    writer_.Commit();
    return code_;
  }

 private:
  // A station that is done and waits for those before it.
  struct Waiting {
    ReadReport report;
    std::string made;   // its report where it was made here
    int32_t child = 0;  // else whose output it is
  };

  void Start(size_t station) {
    int32_t child = 0;
    const int32_t error = Os().processes.Start(OrderFor(stations_[station], options_), &child);
    if (error == kNoError) {
      running_[child] = station;
    } else {
      Fail(station, "the check of the station can't be started: " + ErrorText(error));
    }
  }

  void TakeNext() {
    int32_t child = 0;
    ChildEnd end;
    const int32_t error = Os().processes.Wait(&child, &end);
    if (error != kNoError) {
      throw Trouble("the checks of the stations can't be waited for: " + ErrorText(error));
    }
    const size_t station = running_[child];
    running_.erase(child);
    ReportReading reading = JudgeChild(stations_[station], options_, child, end);
    if (reading.report && report_->NeedsJson()) {
      waiting_[station] = {std::move(*reading.report), "", child};
      return;
    }
    Os().processes.Release(child);
    if (reading.report) {
      waiting_[station] = {std::move(*reading.report), "", 0};
    } else {
      Fail(station, reading.failure);
    }
  }

  void Fail(size_t station, const std::string& reason) {
    std::string made = MadeReport(stations_[station], options_, reason);
    waiting_[station] = {*ReadOneReport(made).report, std::move(made), 0};
  }

  void WriteFirst(const StationsReport::Write& write) {
    Waiting& first = waiting_.begin()->second;
    int32_t error = kNoError;
    const auto json = [&](size_t position) {
      if (first.child == 0)
        return std::string_view(first.made).substr(std::min(position, first.made.size()));
      std::string_view bytes;
      error = Os().processes.ReadOutput(first.child, static_cast<int64_t>(position), &bytes);
      return bytes;
    };
    const StationOutcome outcome{std::move(first.report), json};
    TellTrouble(outcome.report);
    code_ = std::max(code_, outcome.report.code);
    report_->Add(outcome, write);
    // Part of it has been written by now, and a part is worse than nothing.
    if (error != kNoError)
      throw Trouble("a station's report can't be read back: " + ErrorText(error));
    Os().processes.Release(first.child);
    waiting_.erase(waiting_.begin());
    ++written_;
  }

  const Options& options_;
  const std::vector<ListedStation> stations_;
  std::unique_ptr<StationsReport> report_;
  ReportWriter writer_;
  std::map<int32_t, size_t> running_;  // by child
  std::map<size_t, Waiting> waiting_;  // by station
  size_t written_ = 0;
  int code_ = kAllMatch;
};

// A report that says why there is none takes the place of the old one. The list stands in it for
// the station that it should have named.
void WriteUnchecked(const Options& options, const std::string& reason) {
  const ListedStation list{GetFileNamePart(options.stationList), options.stationList};
  const std::string made = MadeReport(list, options, reason);
  const std::unique_ptr<StationsReport> report = MakeStationsReport(options);
  ReportWriter writer(options.output);
  const auto write = [&](std::string_view bytes) { writer.Write(bytes); };
  report->Begin({list}, write);
  report->Add({*ReadOneReport(made).report,
               [&](size_t position) {
                 return std::string_view(made).substr(std::min(position, made.size()));
               }},
              write);
  report->End(write);
  writer.Commit();
}

void WarnOfLookalikes(const Options& options) {
  TerminalUi ui(false);
  TellLookalike(options.stationList);
  TellLookalike(options.output);
  WriteWarnings(ui);
}

}  // namespace

std::unique_ptr<StationsReport> MakeStationsReport(const Options& options) {
  switch (options.format) {
    case ReportFormat::kJson:
      return MakeStationsJson();
    case ReportFormat::kHtml:
      return MakeStationsHtml(options);
    default:
      return MakeStationsText();
  }
}

int RunStations(const Options& asked) {
  Options options = asked;
  options.day = FirstDay(asked);
  if (options.jobs == 0)
    options.jobs = std::min(Os().processes.Processors(), Processes::kMostChildren);
  WarnOfLookalikes(options);
  std::vector<ListedStation> stations;
  try {
    stations = ReadStationList(options.stationList);
  } catch (const Trouble& trouble) {
    WriteErrorLine(trouble.what());
    WriteUnchecked(options, trouble.what());
    return kTrouble;
  }
  return StationsRun(options, std::move(stations)).Run();
}

}  // namespace logchecker
