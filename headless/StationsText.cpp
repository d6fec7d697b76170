// Many stations for people: what needs nobody takes one line.
#include <algorithm>
#include <map>

#include "common/DatePicture.h"
#include "headless/Output.h"
#include "headless/StationsReport.h"
#include "headless/Verdict.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr size_t kWidestName = 40;
constexpr size_t kMostTimes = 10;
constexpr size_t kMostWarnings = 5;

std::string Count(int64_t count, const char* one, const char* many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string Joined(const std::vector<std::string>& texts, const char* between) {
  std::string line;
  for (const std::string& text : texts) line += (line.empty() ? "" : between) + text;
  return line;
}

// The report's texts are UTF-8, and on a terminal their controls would be obeyed.
std::string Shown(const std::string& utf8) {
  std::string text;
  FromUtf8(utf8, &text);
  return FieldText(text);
}

int64_t CountOf(const ReadDay& day, const char* kind) {
  return std::count_if(day.warnings.begin(), day.warnings.end(),
                       [&](const ReadWarning& warning) { return warning.kind == kind; });
}

std::string Times(const ReadDay& day) {
  std::vector<std::string> times(
      day.mismatchTimes.begin(),
      day.mismatchTimes.begin() +
          static_cast<std::ptrdiff_t>(std::min(day.mismatchTimes.size(), kMostTimes)));
  for (std::string& time : times) time = Shown(time);
  if (day.mismatchTimes.size() > kMostTimes) times.emplace_back("...");
  return " (" + Joined(times, " ") + ")";
}

// What a day's check found, in words: "5 differ (04:01 08:01 ...), 1 advert without audio".
std::string WordsOf(const ReadDay& day) {
  if (day.noLogYet) return "no log yet";
  if (!day.trouble.empty()) return "not checked: " + Shown(day.trouble);
  std::vector<std::string> parts;
  const ReadCounts& counts = day.counts;
  if (counts.mismatches > 0) {
    parts.push_back(Count(counts.mismatches, "differs", "differ") + Times(day));
  }
  if (counts.withoutAudio > 0) {
    parts.push_back(Count(counts.withoutAudio, "advert without audio", "adverts without audio"));
  }
  const int64_t missing = CountOf(day, "missing-log");
  if (missing > 0) parts.push_back(Count(missing, "split without a log", "splits without a log"));
  const int64_t passed = CountOf(day, "midnight") + CountOf(day, "passed-over");
  if (passed > 0)
    parts.push_back(Count(passed, "warning of breaks", "warnings of breaks") + " not compared");
  if (day.code != kAllMatch) return Joined(parts, ", ");
  return parts.empty() ? "match" : "match; accepted: " + Joined(parts, ", ");
}

// Neighbouring days of which the same is said.
struct Stretch {
  int32_t first = 0;
  int32_t last = 0;
  int code = 0;
  std::string words;
};

std::vector<Stretch> StretchesOf(const ReadReport& report) {
  std::vector<Stretch> stretches;
  for (const ReadDay& day : report.days) {
    std::string words = WordsOf(day);
    if (!stretches.empty() && stretches.back().words == words &&
        stretches.back().last + 1 == day.day) {
      stretches.back().last = day.day;
    } else {
      stretches.push_back({day.day, day.day, day.code, std::move(words)});
    }
  }
  return stretches;
}

std::string NameOf(const Stretch& stretch) {
  const std::string first = IsoDate(stretch.first);
  return stretch.first == stretch.last ? first : first + " to " + IsoDate(stretch.last);
}

// A station in words where its days differ: "2 of 14 days to mend, 1 without a log yet".
std::string Tally(const ReadReport& report) {
  int64_t toMend = 0;
  int64_t noLog = 0;
  int64_t notChecked = 0;
  for (const ReadDay& day : report.days) {
    toMend += day.code == kToMend;
    noLog += day.noLogYet;
    notChecked += !day.trouble.empty() && !day.noLogYet;
  }
  std::vector<std::string> parts;
  if (toMend > 0) parts.push_back(std::to_string(toMend) + " to mend");
  if (noLog > 0) parts.push_back(std::to_string(noLog) + " without a log yet");
  if (notChecked > 0) parts.push_back(std::to_string(notChecked) + " not checked");
  if (parts.empty()) return "match";
  return "of " + Count(static_cast<int64_t>(report.days.size()), "day", "days") + " " +
         Joined(parts, ", ");
}

// Each text once, whichever days it is of.
std::string WarningLines(const ReadReport& report) {
  std::vector<std::string> texts;
  for (const ReadDay& day : report.days) {
    for (const ReadWarning& warning : day.warnings) {
      if (std::find(texts.begin(), texts.end(), warning.text) == texts.end()) {
        texts.push_back(warning.text);
      }
    }
  }
  std::string lines;
  for (size_t i = 0; i < std::min(texts.size(), kMostWarnings); ++i) {
    lines += "    warning: " + Shown(texts[i]) + "\n";
  }
  if (texts.size() > kMostWarnings) {
    lines += "    and " +
             Count(static_cast<int64_t>(texts.size() - kMostWarnings), "warning", "warnings") +
             " more\n";
  }
  return lines;
}

enum class Standing { kMatch, kToMend, kNoLog, kNotChecked };

Standing StandingOf(const ReadReport& report) {
  const bool anyFault = std::any_of(report.days.begin(), report.days.end(), [](const ReadDay& day) {
    return !day.trouble.empty() && !day.noLogYet;
  });
  if (anyFault) return Standing::kNotChecked;
  const bool anyToMend = std::any_of(report.days.begin(), report.days.end(),
                                     [](const ReadDay& day) { return day.code == kToMend; });
  if (anyToMend) return Standing::kToMend;
  return report.code == kAllMatch ? Standing::kMatch : Standing::kNoLog;
}

class StationsText : public StationsReport {
 public:
  void Begin(const std::vector<ListedStation>& stations, const Write& /*write*/) override {
    for (const ListedStation& station : stations) width_ = std::max(width_, station.name.size());
    width_ = std::min(width_, kWidestName);
  }

  void Add(const StationOutcome& outcome, const Write& write) override {
    const ReadReport& report = outcome.report;
    ++standings_[StandingOf(report)];
    std::string name;
    FromUtf8(report.station, &name);
    const std::string gap(name.size() < width_ ? width_ - name.size() : 0, ' ');
    const std::vector<Stretch> stretches = StretchesOf(report);
    const bool isOne = stretches.size() == 1;
    std::string text =
        FieldText(name) + gap + "  " + (isOne ? stretches[0].words : Tally(report)) + "\n";
    for (const Stretch& stretch : stretches) {
      if (isOne || (stretch.words == "match")) continue;
      text += "    " + NameOf(stretch) + "  " + stretch.words + "\n";
    }
    write(text + WarningLines(report));
  }

  void End(const Write& write) override {
    int64_t all = 0;
    for (const auto& [standing, count] : standings_) all += count;
    std::string text = "\n" + Count(all, "station", "stations") + ": " +
                       std::to_string(standings_[Standing::kMatch]) + " match";
    const auto add = [&](Standing standing, const char* words) {
      if (standings_[standing] > 0) text += ", " + std::to_string(standings_[standing]) + words;
    };
    add(Standing::kToMend, " to mend");
    add(Standing::kNoLog, " with days that have no log yet");
    add(Standing::kNotChecked, " not checked");
    write(text + "\n");
  }

 private:
  size_t width_ = 0;
  std::map<Standing, int64_t> standings_;
};

}  // namespace

std::unique_ptr<StationsReport> MakeStationsText() { return std::make_unique<StationsText>(); }

}  // namespace logchecker
