#include "headless/ReportDifference.h"

#include <algorithm>
#include <utility>

#include "common/PathText.h"
#include "common/TextHelpers.h"
#include "headless/Verdict.h"

namespace logchecker {

namespace {

using Kind = WatchEventKind;

const DayReport* DayIn(const std::vector<DayReport>& days, int32_t day) {
  const auto place =
      std::find_if(days.begin(), days.end(), [day](const DayReport& d) { return d.day == day; });
  return place == days.end() ? nullptr : &*place;
}

bool HasMismatchAt(const DayReport& day, float time) {
  return std::any_of(day.mismatches.begin(), day.mismatches.end(),
                     [time](const BreakMismatch& mismatch) { return mismatch.Time == time; });
}

// Events of one day.
class DayDifference {
 public:
  DayDifference(std::vector<WatchEvent>& events, int32_t day) : events_(events), day_(day) {}

  void Compare(const DayReport& before, const DayReport& now) {
    CompareTrouble(before, now);
    if (!now.trouble.empty() && !now.noLogYet) return;
    CompareLogs(before, now);
    if (!now.trouble.empty()) return;
    CompareMismatches(before, now);
    CompareWarnings(before, now);
  }

  void Begin(const DayReport& now) {
    size_t logs = 0;
    for (const SplitReport& split : now.splits) logs += split.loaded ? 1 : 0;
    Add(Kind::kDay, now.splits.empty()
                        ? "watched from now on"
                        : "watched from now on; " + std::to_string(logs) + " of " +
                              std::to_string(now.splits.size()) + " splits have a log");
    DayReport nothing = now;
    nothing.trouble.clear();
    nothing.warnings.clear();
    nothing.mismatches.clear();
    Compare(nothing, now);
  }

  WatchEvent& Add(Kind kind, std::string text) {
    WatchEvent event;
    event.kind = kind;
    event.day = day_;
    event.text = std::move(text);
    events_.push_back(std::move(event));
    return events_.back();
  }

 private:
  void CompareTrouble(const DayReport& before, const DayReport& now) {
    if (before.trouble == now.trouble) return;
    if (now.trouble.empty()) {
      Add(Kind::kTroubleOver, "can be checked again");
    } else {
      Add(Kind::kNotChecked, "not checked: " + now.trouble);
    }
  }

  void CompareLogs(const DayReport& before, const DayReport& now) {
    // Of a day that could not be checked at all.
    if (before.splits.empty()) return;
    for (const SplitReport& split : now.splits) {
      const auto same = [&](const SplitReport& other) { return other.number == split.number; };
      const auto was = std::find_if(before.splits.begin(), before.splits.end(), same);
      const bool wasLoaded = was != before.splits.end() && was->loaded;
      if (wasLoaded == split.loaded) continue;
      Add(split.loaded ? Kind::kLog : Kind::kLogGone,
          split.name + (split.loaded ? ": log arrived: " : ": log gone: ") +
              ShownPath(split.logPath))
          .split = split.number;
    }
  }

  static bool HasLog(const DayReport& day, size_t split) {
    return split >= day.splits.size() || day.splits[split].adverts > 0;
  }

  // Whether the row says the same of all splits that had a log both times.
  static bool SameRow(const DayReport& before, const ListItem& was, const DayReport& now,
                      const ListItem& is) {
    if (was.ListSubItems.size() != is.ListSubItems.size()) return false;
    for (size_t i = 0; i < is.ListSubItems.size(); ++i) {
      if (!HasLog(before, i) || !HasLog(now, i)) continue;
      if (was.ListSubItems[i].text != is.ListSubItems[i].text) return false;
    }
    return true;
  }

  // "North 1:50.00, South Not Found"
  static std::string TextOf(const DayReport& day, size_t index) {
    const ListItem& row = day.results.ListItems[index];
    std::string text;
    for (size_t i = 0; i < row.ListSubItems.size(); ++i) {
      if (i > 0) text += ", ";
      if (i < day.splits.size()) text += day.splits[i].name + " ";
      text += Trim(row.ListSubItems[i].text);
    }
    return text;
  }

  void AddMismatch(Kind kind, const DayReport& day, size_t index) {
    const std::string& time = day.results.ListItems[index].text;
    const std::string text = kind == Kind::kMismatch ? " does not match: " + TextOf(day, index)
                             : kind == Kind::kMismatchChanged
                                 ? " still does not match: " + TextOf(day, index)
                                 : " is mended";
    Add(kind, time + text).time = time;
  }

  // Both lists ascend by time.
  void CompareMismatches(const DayReport& before, const DayReport& now) {
    size_t was = 0;
    for (size_t is = 0; is < now.mismatches.size(); ++is) {
      const float time = now.mismatches[is].Time;
      for (; was < before.mismatches.size() && before.mismatches[was].Time < time; ++was) {
        AddMismatch(Kind::kMismatchMended, before, was);
      }
      const bool isOld = was < before.mismatches.size() && before.mismatches[was].Time == time;
      if (!isOld) {
        AddMismatch(Kind::kMismatch, now, is);
        continue;
      }
      if (!SameRow(before, before.results.ListItems[was], now, now.results.ListItems[is])) {
        AddMismatch(Kind::kMismatchChanged, now, is);
      }
      ++was;
    }
    for (; was < before.mismatches.size(); ++was) AddMismatch(Kind::kMismatchMended, before, was);
  }

  void CompareWarnings(const DayReport& before, const DayReport& now) {
    AddWarnings(Kind::kWarningOver, before, now);
    AddWarnings(Kind::kWarning, now, before);
  }

  // Those of `day` that are not in `other`.
  void AddWarnings(Kind kind, const DayReport& day, const DayReport& other) {
    for (const Warning& warning : day.warnings) {
      const bool isInBoth =
          std::any_of(other.warnings.begin(), other.warnings.end(), [&](const Warning& w) {
            return w.kind == warning.kind && w.split == warning.split && w.text == warning.text;
          });
      if (isInBoth) continue;
      const char* beginning = kind == Kind::kWarning ? "warning: " : "no longer: ";
      WatchEvent& event = Add(kind, beginning + warning.text);
      event.split = warning.split;
      event.warning = warning.kind;
    }
  }

  std::vector<WatchEvent>& events_;
  int32_t day_;
};

}  // namespace

const char* NameOf(WatchEventKind kind) {
  switch (kind) {
    case Kind::kDay:
      return "day";
    case Kind::kDayOver:
      return "day-over";
    case Kind::kNotChecked:
      return "trouble";
    case Kind::kTroubleOver:
      return "trouble-over";
    case Kind::kLog:
      return "log";
    case Kind::kLogGone:
      return "log-gone";
    case Kind::kMismatch:
      return "mismatch";
    case Kind::kMismatchChanged:
      return "mismatch-changed";
    case Kind::kMismatchMended:
      return "mismatch-mended";
    case Kind::kWarning:
      return "warning";
    case Kind::kWarningOver:
      return "warning-over";
    case Kind::kFolderGone:
      return "folder-gone";
    case Kind::kFolderBack:
      return "folder-back";
    case Kind::kOutput:
      return "output";
    case Kind::kOutputOver:
      return "output-over";
    case Kind::kCommand:
      return "command";
    default:
      return "command-over";
  }
}

std::vector<DayReport> WithoutRowsOfMissingLogs(const std::vector<DayReport>& before,
                                                std::vector<DayReport> days) {
  for (DayReport& day : days) {
    const DayReport* was = DayIn(before, day.day);
    DayReport kept = day;
    kept.mismatches.clear();
    kept.adverts.clear();
    kept.results.ListItems.clear();
    for (size_t i = 0; i < day.mismatches.size(); ++i) {
      const BreakMismatch& mismatch = day.mismatches[i];
      const bool isKnown = was != nullptr && HasMismatchAt(*was, mismatch.Time);
      if (!isKnown && !DiffersWithoutMissingLogs(day, mismatch)) continue;
      kept.mismatches.push_back(mismatch);
      kept.results.ListItems.push_back(day.results.ListItems[i]);
    }
    day = std::move(kept);
  }
  return days;
}

std::vector<WatchEvent> Difference(const std::vector<DayReport>& before,
                                   const std::vector<DayReport>& now) {
  std::vector<WatchEvent> events;
  for (const DayReport& day : before) {
    if (DayIn(now, day.day) == nullptr) {
      DayDifference(events, day.day).Add(Kind::kDayOver, "no longer watched");
    }
  }
  for (const DayReport& day : now) {
    DayDifference difference(events, day.day);
    if (const DayReport* was = DayIn(before, day.day); was != nullptr) {
      difference.Compare(*was, day);
    } else {
      difference.Begin(day);
    }
  }
  return events;
}

std::vector<DayReport> Known(const std::vector<DayReport>& before, std::vector<DayReport> now) {
  for (DayReport& day : now) {
    const DayReport* was = DayIn(before, day.day);
    if (day.trouble.empty() || was == nullptr) continue;
    DayReport known = *was;
    known.trouble = std::move(day.trouble);
    if (day.noLogYet) known.splits = std::move(day.splits);
    day = std::move(known);
  }
  return now;
}

}  // namespace logchecker
