#include "headless/DayCheck.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cartstore/LoadCartInfo.h"
#include "cartstore/OpenAudiowall.h"
#include "cartstore/UnreadableCarts.h"
#include "common/DatePicture.h"
#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "common/GeneralSettings.h"
#include "common/PathText.h"
#include "common/TextHelpers.h"
#include "headless/PassedOverBreaks.h"
#include "headless/Station.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

namespace {

std::string NameOf(const SplitReport& split) {
  return "split " + std::to_string(split.number) + " \"" + split.name + "\"";
}

// Remembers the first cart that could not be read for as long as it lives, and who wanted it.
class UnreadableCartWatch {
 public:
  UnreadableCartWatch()
      : before_(ListenForUnreadableCarts([this](const UnreadableCart& cart) {
          if (!first_) first_ = cart;
          if (firstSplit_ == 0) firstSplit_ = split;
        })) {}
  ~UnreadableCartWatch() { ListenForUnreadableCarts(before_); }
  UnreadableCartWatch(const UnreadableCartWatch&) = delete;
  UnreadableCartWatch& operator=(const UnreadableCartWatch&) = delete;

  int16_t split = 0;  // whose log is being loaded; 0 behind that

  // Why the day can't be checked; "" when every cart could be read.
  std::string Trouble(const std::vector<SplitReport>& splits) const {
    if (!first_) return "";
    int32_t error = first_->error;
    // Of a part that has no open file: the file itself says why.
    if (error == kBadFileNumber) error = ReadingError(first_->file);
    const std::string reason = error > 0 ? ErrorText(error) : "the directory can't be reached";
    std::string text = "cart " + std::to_string(first_->cart) +
                       " can't be read: " + ShownPath(first_->file) + ": " + reason;
    if (firstSplit_ > 0)
      text += ", wanted by " + NameOf(splits[static_cast<size_t>(firstSplit_ - 1)]);
    return text;
  }

 private:
  UnreadableCartListener before_;
  std::optional<UnreadableCart> first_;
  int16_t firstSplit_ = 0;
};

AdvertReport DescribeAdvert(const LogGrid& grid, int32_t row) {
  AdvertReport advert;
  advert.row = row;
  advert.cart = grid.RowCart(row);
  advert.description = Trim(grid.Text(row, kDescriptionColumn));
  advert.reference = Trim(grid.Text(row, kReferenceColumn));
  return advert;
}

SilentAdvert DescribeSilentAdvert(const LogGrid& grid, int32_t row, const std::string& time) {
  const AdvertReport advert = DescribeAdvert(grid, row);
  return {row,
          time,
          advert.cart,
          advert.description,
          advert.reference,
          std::string(grid.Text(row, kPositionColumn))};
}

BreakReport BeginBreak(const LogGrid& grid, int32_t row, const SplitReport& split) {
  BreakReport begun;
  begun.row = row;
  begun.time = grid.RowTime(row);
  constexpr char kMidnight[] = "00:00";
  if (begun.time == 0 && grid.Text(row, kTimeColumn) != kMidnight) begun.time = -1;
  begun.firstSilentAdvert = static_cast<int32_t>(split.silentAdverts.size());
  return begun;
}

void CountGrid(const LogGrid& grid, SplitReport& report) {
  std::string time;
  for (int32_t row = 1; row < grid.Rows(); ++row) {
    if (!grid.IsAdvertRow(row)) continue;
    ++report.adverts;
    if (!grid.Text(row, kTimeColumn).empty()) {
      time = grid.Text(row, kTimeColumn);
      ++report.breaks;
      report.breakList.push_back(BeginBreak(grid, row, report));
    }
    BreakReport* current = report.breakList.empty() ? nullptr : &report.breakList.back();
    if (current != nullptr) ++current->adverts;
    if (grid.BackColour(row, kLengthColumn) == kRed) {
      report.silentAdverts.push_back(DescribeSilentAdvert(grid, row, time));
      if (current != nullptr) ++current->silentAdverts;
    }
  }
}

void LoadSplit(SplitReport& report, int32_t day) {
  SplitSettings& settings = SettingsOf(report.number);
  settings.LogDate = day;
  gSplits(report.number).LoadLogFile();
  report.loaded = settings.LogFileNumber != 0;
  CountGrid(gSplits(report.number).gridLog, report);
}

// What is wrong with a split that brings no advert; "" for one that does.
std::string WhatIsMissing(const SplitReport& split) {
  if (split.adverts > 0) return "";
  if (split.loaded) return "no advert";
  return GetFileLength(split.logPath) < 0 ? "no log" : "an empty log";
}

// Warns of splits without adverts; when there is no advert at all, the day can't be checked.
void TellMissingLogs(DayReport& report) {
  std::string all;
  bool anyAdvert = false;
  bool anyFile = false;
  for (const SplitReport& split : report.splits) {
    const std::string missing = WhatIsMissing(split);
    anyAdvert = anyAdvert || missing.empty();
    anyFile = anyFile || missing != "no log";
    if (missing.empty()) continue;
    const std::string where = NameOf(split) + ": " + ShownPath(split.logPath);
    all += (all.empty() ? "" : "; ") + where;
    std::string text = missing + " for " + IsoDate(report.day);
    text += ": " + where;
    report.warnings.push_back({WarningKind::kMissingLog, split.number, std::move(text)});
  }
  if (anyAdvert) return;
  report.noLogYet = !anyFile;
  report.warnings.clear();
  report.trouble = std::string("no active split has ") + (anyFile ? "an advert in its" : "a") +
                   " log for " + IsoDate(report.day) + " (" + all + ")";
}

void TellSilentAdverts(DayReport& report) {
  for (const SplitReport& split : report.splits) {
    if (split.silentAdverts.empty()) continue;
    const SilentAdvert& first = split.silentAdverts[0];
    const size_t count = split.silentAdverts.size();
    std::string text = NameOf(split) + ": " + std::to_string(count) +
                       (count == 1 ? " advert" : " adverts, the first") + " without audio at " +
                       first.time + ": cart " + std::to_string(first.cart) + " " +
                       first.description;
    report.warnings.push_back({WarningKind::kSilent, split.number, std::move(text)});
  }
}

// Carts that could not be read pass for carts without audio, and nobody can tell which is which.
void ForgetSilentAdverts(DayReport& report) {
  const auto isSilent = [](const Warning& warning) { return warning.kind == WarningKind::kSilent; };
  report.warnings.erase(std::remove_if(report.warnings.begin(), report.warnings.end(), isSilent),
                        report.warnings.end());
}

// The adverts of the break of a split at a time, their carts read anew.
std::optional<std::vector<AdvertReport>> AdvertsAt(int16_t splitNumber, float time) {
  const SplitLog& split = gSplits(splitNumber);
  int32_t row = 0;
  int32_t last = 0;
  split.FindBreakByTime(time, kFalse, row);
  if (row == 0) return std::nullopt;
  split.FindEndofBreak(row, last);
  std::vector<AdvertReport> adverts;
  for (; row <= last; ++row) {
    adverts.push_back(DescribeAdvert(split.gridLog, row));
    AdvertReport& advert = adverts.back();
    CartLengths cart;
    LoadCartLengths(cart, advert.cart);
    advert.audio = cart.PlayLength > 0;
    if (advert.audio) advert.length = cart.Length;
  }
  return adverts;
}

// Gives each break of the lists the length that the comparison measured.
void TakeLengths(DayReport& report, const BreakCheck& check) {
  const std::vector<float>& times = check.TimesCompared;
  for (SplitReport& split : report.splits) {
    const LogGrid& grid = gSplits(split.number).gridLog;
    for (BreakReport& one : split.breakList) {
      const auto at = std::lower_bound(times.begin(), times.end(), one.time);
      const bool compared =
          at != times.end() && *at == one.time && grid.FirstRowAt(one.time) == one.row;
      if (!compared) continue;
      const auto& lengths = check.LengthsCompared[static_cast<size_t>(at - times.begin())];
      one.length = lengths[static_cast<size_t>(split.number - 1)];
    }
  }
}

void Compare(DayReport& report) {
  BreakCheck check;
  check.BuildColumns();
  check.CheckBreaks();
  TellPassedOverBreaks(report, check.TimesCompared);
  TellSilentAdverts(report);
  TakeLengths(report, check);
  report.results = std::move(check.lvwResults);
  report.mismatches = std::move(check.Mismatches);
  for (const BreakMismatch& mismatch : report.mismatches) {
    BreakAdverts adverts;
    for (const SplitReport& split : report.splits) {
      adverts.push_back(AdvertsAt(split.number, mismatch.Time));
    }
    report.adverts.push_back(std::move(adverts));
  }
}

std::vector<SplitReport> ActiveSplits(int32_t day) {
  std::vector<SplitReport> splits;
  for (int16_t n = 1; n <= gGeneralSettings.NumberActiveSplits; ++n) {
    SplitReport split;
    split.number = n;
    split.name = SettingsOf(n).SplitName;
    split.logPath = GetLogSourcePath(n, day, false);
    splits.push_back(std::move(split));
  }
  return splits;
}

}  // namespace

DayReport CheckDay(int32_t day) {
  DayReport report;
  report.day = day;
  report.toleranceMS = gGeneralSettings.BreakDifferenceMS;
  report.splits = ActiveSplits(day);
  CloseLogFiles();
  ReopenReplacedParts();
  UnreadableCartWatch watch;
  try {
    for (SplitReport& split : report.splits) {
      watch.split = split.number;
      LoadSplit(split, day);
    }
    watch.split = 0;
    TellMissingLogs(report);
    if (report.trouble.empty()) Compare(report);
    if (report.trouble.empty()) report.trouble = watch.Trouble(report.splits);
    if (!report.trouble.empty()) ForgetSilentAdverts(report);
  } catch (const RunTimeError& error) {
    report.trouble = "the check of " + IsoDate(day) + " stopped: " + error.what();
  }
  return report;
}

}  // namespace logchecker
