// Many stations and days, gathered from their reports.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "headless/ReportReader.h"
#include "headless/pages/Page.h"

namespace logchecker {

// So much of a day is kept: its own report has the rest.
inline constexpr size_t kMostTimesOnABoard = 40;
inline constexpr size_t kMostWarningsOnABoard = 20;
inline constexpr size_t kLongestTextOnABoard = 500;  // characters

// A day of a station. All texts are UTF-8.
struct BoardDay {
  PageState state = PageState::kNotChecked;
  int code = 0;         // of the report, see Verdict.h
  size_t origin = 0;    // of Board::Origins
  std::string trouble;  // why it was not checked
  bool noLogYet = false;
  ReadCounts counts;
  std::string times;  // of the breaks that differ
  size_t moreTimes = 0;
  std::vector<std::string> warnings;
  size_t moreWarnings = 0;
};

struct BoardStation {
  std::string name;
  std::map<int32_t, BoardDay> days;  // by day number
};

// A report that was read.
struct BoardOrigin {
  std::string source;  // the file, as it was named; empty where there was none
  std::string station;
  std::string settings;
  std::string checkedAt;       // UTC, as 2027-01-15T14:03:21Z
  double checkedAtNumber = 0;  // the same as a date number
  // Its days that another report of the same station has in a newer form.
  int32_t daysSetAside = 0;
  int32_t firstSetAside = 0;  // day numbers
  int32_t lastSetAside = 0;
  size_t inFavourOf = 0;  // the origin that took the last one's place
};

// A report that could not be read.
struct BoardFailure {
  std::string source;
  std::string reason;  // a half sentence
};

class Board {
 public:
  // Takes a report, or notes why there is none. Of two reports of a station and a day the one that
  // was checked last counts; of two from one second the one with the greater code, so that no order
  // of the files makes a day good.
  void Add(const std::string& source, ReportReading&& reading);

  // To be called behind the last report: gives each day its state, where a report counts as too old
  // that was checked more than `staleHours` before `now` (UTC, a date number), and puts the
  // stations into their order: those with the worst days first, then by name.
  void Settle(double now, std::optional<int32_t> staleHours);

  const std::vector<BoardStation>& Stations() const { return stations_; }
  const std::vector<BoardOrigin>& Origins() const { return origins_; }
  const std::vector<BoardFailure>& Failures() const { return failures_; }

  // The greatest of the days'; kTrouble where a report could not be read, a day is too old, or
  // there is no day.
  int Code() const;

 private:
  void Put(BoardStation& station, ReadDay&& day, size_t origin);
  void SetAside(size_t origin, int32_t day, size_t inFavourOf);
  bool Counts(const BoardDay& newcomer, const BoardDay& present) const;

  std::vector<BoardStation> stations_;
  std::unordered_map<std::string, size_t> places_;  // of stations, by name
  std::vector<BoardOrigin> origins_;
  std::vector<BoardFailure> failures_;
};

// How many days of a station are in a state.
size_t CountDays(const BoardStation& station, PageState state);

// How many breaks of a station differ, in days that are not too old.
int64_t CountMismatches(const BoardStation& station);

// The states from the worst on.
inline constexpr PageState kStatesFromTheWorst[] = {PageState::kNotChecked, PageState::kOld,
                                                    PageState::kDiffers,    PageState::kSee,
                                                    PageState::kNoLog,      PageState::kMatch};

}  // namespace logchecker
