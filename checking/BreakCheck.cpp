#include "checking/BreakCheck.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "cartstore/LoadCartInfo.h"
#include "cartstore/OpenAudiowall.h"
#include "checking/LengthBounds.h"
#include "checking/OddLengths.h"
#include "common/GeneralSettings.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/TimeText.h"
#include "common/UserInterface.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

namespace {

constexpr float kNoTime = -1.0F;
constexpr float kNoMinimum = 99999.0F;
constexpr int32_t kLongestProgress = 32000;
constexpr int32_t kTimeColumnWidth = 800;  // twips
constexpr char kNotFound[] = "Not Found";
constexpr char kMissingRemark[] = "no break at this time";
constexpr char kOddRemark[] = "differs from most splits";

int16_t ActiveSplits() { return gGeneralSettings.NumberActiveSplits; }

size_t IndexOf(int16_t splitNumber) { return static_cast<size_t>(splitNumber - 1); }

// The lengths of the carts that rows `first` to `last` name, in seconds. Each addition rounds to
// single precision. A cart without audio adds nothing.
float MeasureBreak(const LogGrid& grid, int32_t first, int32_t last) {
  float length = 0;
  CartLengths cart;
  for (int32_t row = first; row <= last; ++row) {
    LoadCartLengths(cart, grid.RowCart(row));
    if (cart.PlayLength > 0) length += cart.Length;
  }
  return length;
}

}  // namespace

// What each active split has at one time; the index is the split number less 1.
struct BreaksAtATime {
  std::array<int32_t, kMostSplits> BreakRow{};
  std::array<int32_t, kMostSplits> BreakEndRow{};
  std::array<float, kMostSplits> BreakTime{};    // seconds; -1 for none
  std::array<float, kMostSplits> BreakLength{};  // seconds; 0 when there is none
  float ShortestLength = kNoMinimum;
};

namespace {

// Finds, for each split, the first break at or after `time`. `furthestRow` gets the greatest row.
// Returns whether there was any.
bool FindNextBreaks(float time, BreaksAtATime& breaks, int32_t& furthestRow) {
  bool any = false;
  for (int16_t n = 1; n <= ActiveSplits(); ++n) {
    const size_t i = IndexOf(n);
    gSplits(n).FindBreakByTime(time, kTrue, breaks.BreakRow[i]);
    breaks.BreakTime[i] = kNoTime;
    if (breaks.BreakRow[i] > 0) {
      gSplits(n).GetBreakTimeByRow(breaks.BreakRow[i], breaks.BreakTime[i]);
      if (breaks.BreakRow[i] <= kLongestProgress) {
        furthestRow = std::max(furthestRow, breaks.BreakRow[i]);
      }
    }
    any = any || breaks.BreakTime[i] >= 0;
  }
  return any;
}

// The earliest of the times found. A time of 0 is passed over on purpose.
float EarliestTime(const BreaksAtATime& breaks) {
  float earliest = kNoMinimum;
  for (int16_t n = 1; n <= ActiveSplits(); ++n) {
    const float time = breaks.BreakTime[IndexOf(n)];
    if (time < earliest && time > 0) earliest = time;
  }
  return earliest;
}

void MeasureBreaks(float time, BreaksAtATime& breaks) {
  breaks.ShortestLength = kNoMinimum;
  for (int16_t n = 1; n <= ActiveSplits(); ++n) {
    const size_t i = IndexOf(n);
    const SplitLog& split = gSplits(n);
    split.FindBreakByTime(time, kFalse, breaks.BreakRow[i]);
    if (breaks.BreakRow[i] > 0) {
      breaks.BreakTime[i] = time;
      split.FindEndofBreak(breaks.BreakRow[i], breaks.BreakEndRow[i]);
      breaks.BreakLength[i] =
          MeasureBreak(split.gridLog, breaks.BreakRow[i], breaks.BreakEndRow[i]);
      if (breaks.BreakLength[i] < breaks.ShortestLength) {
        breaks.ShortestLength = breaks.BreakLength[i];
      }
    } else {
      breaks.BreakTime[i] = kNoTime;
      breaks.BreakLength[i] = 0;
      breaks.BreakEndRow[i] = 0;
    }
  }
}

std::array<float, kMostSplits> LengthsOf(const BreaksAtATime& breaks) {
  std::array<float, kMostSplits> lengths{};
  lengths.fill(BreakCheck::kNoBreak);
  for (int16_t n = 1; n <= ActiveSplits(); ++n) {
    const size_t i = IndexOf(n);
    if (breaks.BreakRow[i] > 0) lengths[i] = breaks.BreakLength[i];
  }
  return lengths;
}

bool TimesDiffer(float time, const BreaksAtATime& breaks) {
  for (int16_t n = 1; n <= ActiveSplits(); ++n) {
    if (breaks.BreakTime[IndexOf(n)] != time) return true;
  }
  return false;
}

bool LengthsDiffer(const BreaksAtATime& breaks) {
  const LengthBounds bounds(breaks.ShortestLength);
  for (int16_t n = 1; n <= ActiveSplits(); ++n) {
    if (!bounds.Hold(breaks.BreakLength[IndexOf(n)])) return true;
  }
  return false;
}

std::string KeyOfTime(float time) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, time, std::chars_format::fixed).ptr;
  return "t" + std::string(text, end);
}

}  // namespace

bool LengthsMatch(const std::vector<float>& lengths) {
  float shortest = kNoMinimum;
  for (const float length : lengths) shortest = length < shortest ? length : shortest;
  const LengthBounds bounds(shortest);
  return std::all_of(lengths.begin(), lengths.end(),
                     [&](float length) { return bounds.Hold(length); });
}

float TimeOfResultKey(const std::string& key) { return static_cast<float>(Val(Mid(key, 2))); }

void BreakCheck::BuildColumns() {
  RequireSplitsInRange();
  lvwResults.ColumnHeaders.clear();
  lvwResults.ColumnHeaders.push_back({"Time", kTimeColumnWidth, ColumnAlignment::kLeft});
  for (int16_t n = 1; n <= ActiveSplits(); ++n) {
    lvwResults.ColumnHeaders.push_back({SettingsOf(n).SplitName, 0, ColumnAlignment::kCentre});
  }
}

// Sets the bar's maximum to the greatest row count; returns whether any split has a loaded log.
bool BreakCheck::PrepareProgress() {
  int32_t greatest = 1;
  bool anyLoaded = false;
  for (int16_t n = 1; n <= ActiveSplits(); ++n) {
    const int32_t rows = gSplits(n).gridLog.Rows();
    greatest = std::max(greatest, rows);
    anyLoaded = anyLoaded || rows > 1;
  }
  ProgressBar1.Max = std::min(greatest, kLongestProgress);
  return anyLoaded;
}

void BreakCheck::ShowProgress(int32_t value) {
  ProgressBar1.Value = value;
  Ui().ShowProgress(ProgressBar1.Value, ProgressBar1.Max);
}

void BreakCheck::Walk() {
  float CurrentTime = kNoTime;
  BreaksAtATime breaks;
  while (true) {
    int32_t furthestRow = 0;
    const bool any = FindNextBreaks(CurrentTime, breaks, furthestRow);
    if (ProgressBar1.Value < furthestRow) ShowProgress(furthestRow);
    if (!any) return;
    CurrentTime = EarliestTime(breaks);
    MeasureBreaks(CurrentTime, breaks);
    TimesCompared.push_back(CurrentTime);
    LengthsCompared.push_back(LengthsOf(breaks));
    if (TimesDiffer(CurrentTime, breaks) || LengthsDiffer(breaks)) AddRow(CurrentTime, breaks);
    CurrentTime = static_cast<float>(CurrentTime + 0.1);
  }
}

void BreakCheck::AddRow(float time, const BreaksAtATime& breaks) {
  ListItem row;
  BreakMismatch mismatch;
  mismatch.Time = time;
  row.key = KeyOfTime(time);
  row.text = FormatTimeDisplay(time, kMaskHoursMinutes);
  const int32_t mask = LengthMask(gGeneralSettings.DisplayCheckHH);
  for (int16_t n = 1; n <= ActiveSplits(); ++n) {
    const size_t i = IndexOf(n);
    const bool found = breaks.BreakTime[i] >= 0;
    row.ListSubItems.push_back(
        {found ? FormatLengthDisplay(breaks.BreakLength[i], mask) : kNotFound, false,
         found ? "" : kMissingRemark});
    mismatch.Lengths.push_back({found, breaks.BreakLength[i]});
  }
  const std::vector<bool> odd = OddLengths(mismatch.Lengths);
  for (size_t i = 0; i < odd.size(); ++i) {
    if (odd[i]) row.ListSubItems[i].Remark = kOddRemark;
  }
  lvwResults.ListItems.push_back(std::move(row));
  Mismatches.push_back(std::move(mismatch));
}

void BreakCheck::CheckBreaks() {
  RequireSplitsInRange();
  ReopenReplacedParts();
  cmdPrintEnabled = false;
  cmdSaveEnabled = false;
  lvwResults.ListItems.clear();
  Mismatches.clear();
  TimesCompared.clear();
  LengthsCompared.clear();
  if (PrepareProgress()) {
    Ui().SetMousePointer(MousePointer::kHourglass);
    Walk();
  }
  const bool anyRow = !lvwResults.ListItems.empty();
  cmdPrintEnabled = anyRow;
  cmdSaveEnabled = anyRow;
  picNoResultsVisible = !anyRow;
  ShowProgress(0);
  Ui().SetMousePointer(MousePointer::kDefault);
}

}  // namespace logchecker
