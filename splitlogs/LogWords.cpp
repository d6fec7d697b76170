#include "splitlogs/LogWords.h"

#include <map>
#include <vector>

#include "common/DatePicture.h"
#include "common/PathText.h"
#include "common/TimeText.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

namespace {

struct Counts {
  int32_t breaks = 0;
  int32_t adverts = 0;
};

Counts CountsOf(const LogGrid& grid) {
  Counts counts;
  for (int32_t row = 1; row < grid.Rows(); ++row) {
    if (!grid.IsAdvertRow(row)) continue;
    ++counts.adverts;
    if (!grid.Text(row, kTimeColumn).empty()) ++counts.breaks;
  }
  return counts;
}

std::string Counted(int32_t count, const std::string& thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::string TimeInWords(float seconds) { return FormatTimeDisplay(seconds, kMaskHoursMinutes); }

}  // namespace

std::string DayInWords(int32_t day) { return FormatDate(day, "dddddd").value_or("day ?"); }

std::string LogInWords(const SplitLog& split) {
  const int32_t loaded = SettingsOf(split.SplitNumber()).LogDate;
  if (!split.Shown()) {
    if (loaded == 0) return split.Caption();
    return split.Caption() + "\nNo log of " + DayInWords(loaded) + "\n" +
           ShownPath(GetLogSourcePath(split.SplitNumber(), loaded, false));
  }
  std::string words = split.Caption() + "\n" + ShownPath(split.Shown()->Path) + "\n" +
                      DayInWords(split.Shown()->Day);
  if (split.Shown()->Day != loaded) {
    words += "\nAnother day's log, since there is none of " + DayInWords(loaded);
  }
  const Counts counts = CountsOf(split.gridLog);
  return words + "\n" + Counted(counts.breaks, "break") + ", " + Counted(counts.adverts, "advert");
}

std::string MissInWords(const LogGrid& grid) {
  if (!grid.MissedTime()) return "";
  const std::string missed = "No break at " + TimeInWords(*grid.MissedTime());
  if (grid.Row() == 0) return missed + ", nor a later one";
  return missed + ": this is the next, at " + std::string(grid.Text(grid.Row(), kTimeColumn));
}

std::string OtherDaysInWords(int32_t day) {
  std::map<int32_t, std::vector<std::string>> names;
  for (int16_t n = 1; n <= gGeneralSettings.NumberActiveSplits; ++n) {
    const std::optional<ShownLog>& shown = gSplits(n).Shown();
    if (shown && shown->Day != day) names[shown->Day].push_back(SettingsOf(n).SplitName);
  }
  std::string words;
  for (const auto& [other, splits] : names) {
    if (!words.empty()) words += "\n";
    for (size_t i = 0; i < splits.size(); ++i) words += (i == 0 ? "" : ", ") + splits[i];
    words += (splits.size() == 1 ? " shows " : " show ") + DayInWords(other);
  }
  return words;
}

}  // namespace logchecker
