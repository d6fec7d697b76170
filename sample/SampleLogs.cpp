// The advert logs of the sample station.
#include <algorithm>

#include "common/TextHelpers.h"
#include "common/Trouble.h"
#include "platform/StationText.h"
#include "sample/SamplePlan.h"
#include "splitlogs/AdvertLog_FN.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLog.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

namespace {

constexpr char kLineEnd[] = "\r\n";
constexpr size_t kDescriptionWidth = 30;
constexpr size_t kChainCodeWidth = 4;

std::string Padded(std::string text, size_t width) {
  text.resize(width, ' ');
  return text;
}

std::string Number(int32_t value, size_t width, char fill) {
  std::string text = std::to_string(value);
  return text.size() < width ? std::string(width - text.size(), fill) + text : text;
}

// `seconds` into the day.
std::string LogLine(const SampleSplit& split, double seconds, int32_t cart) {
  const auto whole = static_cast<int32_t>(seconds);
  std::string line = Number(whole / 3600, 2, '0') + ":" + Number(whole / 60 % 60, 2, '0');
  if (!split.oldForm) line += ":" + Number(whole % 60, 2, '0');
  line += "|" + Padded(split.chainCode, kChainCodeWidth) + " ";
  line += split.oldForm ? Number(cart, 4, ' ') : Number(cart, 8, '0');
  line += " " + Padded(ToUpper(SampleCartTitle(cart)), kDescriptionWidth);
  line += std::string(split.oldForm ? 5 : 6, ' ');
  return line + "LR-" + std::to_string(20000 + cart) + kLineEnd;
}

double ClassSecondsOf(int32_t cart) {
  const int32_t place = cart - kFirstAdvert;
  const bool regular = place >= 0 && place < kAdvertsOfAClass * kLengthClasses;
  return regular ? kClassSeconds[static_cast<size_t>(place % kLengthClasses)] : 0;
}

std::string BreakLines(const SampleSplit& split, const SampleBreak& planned) {
  constexpr double kLastSecond = 86400;
  std::string lines;
  double seconds = planned.minute * 60.0;
  for (const int32_t cart : planned.carts) {
    lines += LogLine(split, seconds, cart);
    if (seconds < kLastSecond) seconds += ClassSecondsOf(cart);
  }
  return lines;
}

bool SharesFile(int16_t a, int16_t b) {
  return std::string(kSampleSplits[static_cast<size_t>(a - 1)].folder) ==
         kSampleSplits[static_cast<size_t>(b - 1)].folder;
}

// The file of `split` and of those that share it, break by break in the order of time.
std::string LogText(const SamplePlan& plan, int16_t split, int32_t day) {
  struct Block {
    int32_t minute;
    std::string lines;
  };
  std::vector<Block> blocks;
  for (int16_t n = 1; n <= plan.splits; ++n) {
    if (!SharesFile(n, split)) continue;
    for (const SampleBreak& planned : PlanBreaks(plan, n, day)) {
      blocks.push_back(
          {planned.minute, BreakLines(kSampleSplits[static_cast<size_t>(n - 1)], planned)});
    }
  }
  std::stable_sort(blocks.begin(), blocks.end(),
                   [](const Block& a, const Block& b) { return a.minute < b.minute; });
  std::string text;
  for (size_t i = 0; i < blocks.size(); ++i) {
    text += blocks[i].lines;
    const bool breakEnds = i + 1 == blocks.size() || blocks[i + 1].minute != blocks[i].minute;
    if (breakEnds) text += kLineEnd;
  }
  return text;
}

// Counts grid rows as the load does. The row at which the load would stop, or 0.
int32_t RowThatStopsTheLoad(const std::string& text, const std::string& chainCode) {
  int32_t rows = kRowsAtFirst;
  int32_t row = 1;
  bool inBreak = false;
  for (size_t begin = 0; begin < text.size();) {
    const size_t end = text.find('\n', begin);
    const std::string_view line = std::string_view(text).substr(begin, end - 1 - begin);
    begin = end + 1;
    if (row > rows) rows += kRowsToGrowBy;
    if (row == rows) return row;
    if (Trim(line).empty()) {
      if (inBreak) row += 2;
      inBreak = false;
    } else if (chainCode.empty() || GetLineTXChainCode(line) == chainCode) {
      inBreak = true;
      ++row;
    }
  }
  return 0;
}

}  // namespace

void RequireLoadableLogs(const SamplePlan& wanted) {
  // The rows are the same on every day but for breaks that are missing by a drawn mistake, and
  // without those a log only goes on further.
  SamplePlan plan = wanted;
  if (plan.mistakesADay) plan.mistakesADay = 0;
  constexpr int32_t kAnyDay = 0;
  for (int16_t n = 1; n <= plan.splits; ++n) {
    const SampleSplit& split = kSampleSplits[static_cast<size_t>(n - 1)];
    const std::string code = split.filtersByChain ? split.chainCode : "";
    const int32_t row = RowThatStopsTheLoad(LogText(plan, n, kAnyDay), code);
    if (row > 0) {
      throw Trouble(std::to_string(plan.breaks) + " breaks of " + std::to_string(plan.adverts) +
                    " adverts would stop the program: the log of split " + std::to_string(n) +
                    " meets grid row " + std::to_string(row) + " where the grid ends");
    }
  }
}

void WriteSampleLogs(const SamplePlan& plan, const SampleStation& station,
                     const std::string& base) {
  for (int16_t n = 1; n <= plan.splits; ++n) {
    const SampleSplit& split = kSampleSplits[static_cast<size_t>(n - 1)];
    SplitSettings& settings = SettingsOf(n);
    settings.LogSourceDirectory = SampleLogFolder(base, n);
    settings.DateFormat = split.dateFormat;
    settings.PreSuffix = split.preSuffix;
    settings.Suffix = split.suffix ? 1 : 0;
    settings.Extension = split.extension;
    MakeSampleFolder(settings.LogSourceDirectory);
    if (n > 1 && SharesFile(n, static_cast<int16_t>(n - 1))) continue;
    for (int32_t day = station.firstDay;
         day < station.firstDay + station.days - station.missingDays; ++day) {
      WriteSampleFile(GetLogSourcePath(n, day, false), LogText(plan, n, day));
    }
  }
}

}  // namespace logchecker
