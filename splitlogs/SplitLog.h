// One split's log: loads it into the grid, and finds breaks there. The split's window is a face of
// it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "splitlogs/LogGrid.h"

namespace logchecker {

// The program's true. A flag of 16 bits counts as true at this value alone where it says so.
inline constexpr int16_t kTrue = -1;
inline constexpr int16_t kFalse = 0;

// A load begins with this many grid rows, the header included, and adds to them by this many.
inline constexpr int32_t kRowsAtFirst = 1440;
inline constexpr int32_t kRowsToGrowBy = 100;
// A log of more rows than this is no day's log; it would take the machine's memory.
inline constexpr int32_t kMostRows = 1000000;

// A log that a grid shows.
struct ShownLog {
  std::string Path;  // a station path
  int32_t Day = 0;   // the day that it is of, as a day number
};

class SplitLog {
 public:
  SplitLog();
  SplitLog(const SplitLog&) = delete;
  SplitLog& operator=(const SplitLog&) = delete;
  virtual ~SplitLog();

  int16_t SplitNumber() const { return splitNumber_; }
  const std::string& Caption() const { return caption_; }

  // The text of the hidden label that names the split: its number, at least 1, becomes the split's
  // number, and the caption is brought in line.
  void SetSplitNumberLabel(const std::string& text);

  // Sets the caption to the split's name.
  void UpdateInfo();

  // Refills the grid from the log of the split's LogDate. With no log ever opened the grid stays
  // empty; where the day has no log but an older one is open, the older one is shown again: this is
  // meant. Stops the program when the log that is set can't be read, or when a line meets a row
  // that equals the row count.
  void LoadLogFile();

  // What the last load has put into the grid; nothing where there was no log.
  const std::optional<ShownLog>& Shown() const { return shown_; }

  // Puts the selection on the whole break at `seconds`, or on the next one after it, at the top of
  // the window; on the header when there is none.
  void SelectBreakByTime(float seconds);

  // The first row, from row 1 on, whose time is `seconds`; with `nextIfMissing` at -1, and at no
  // other value, the first whose time is that or a later one. 0 for none. A row with an empty
  // column 0 has the time 0.
  void FindBreakByTime(float seconds, int16_t nextIfMissing, int32_t& row) const;

  // The first row of the break that `row` is in or below. In the first break of the grid, which has
  // no gap above it, `row` itself: this is meant, and such a row leads to row 1 through its time 0.
  void FindBeginningofBreak(int32_t row, int32_t& firstRow) const;

  // The last advert row of the break that begins at or goes on behind `row`.
  void FindEndofBreak(int32_t row, int32_t& lastRow) const;

  // The first row of the next break, or `row` if there is none.
  void FindNextBreak(int32_t row, int32_t& nextRow) const;

  // The time of a break's first row, in seconds.
  void GetBreakTimeByRow(int32_t row, float& seconds) const;

  // Nothing watches for new logs: false, with `output` as it was.
  bool CheckForNewLogFile(int32_t input, int32_t& output) const;

  LogGrid gridLog;

 protected:
  // Called when the caption has changed.
  virtual void CaptionChanged();
  // Called when a load is at its end.
  virtual void LogLoaded();

 private:
  void ShowOpenLog();
  void FillGrid();

  int16_t splitNumber_ = 0;
  std::string caption_ = "Velmar Split";
  std::optional<ShownLog> shown_;
};

}  // namespace logchecker
