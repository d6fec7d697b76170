#include "headless/pages/Board.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "headless/Verdict.h"
#include "headless/pages/Html.h"

namespace logchecker {

namespace {

constexpr double kHoursOfADay = 24;

BoardDay BoardDayOf(ReadDay&& day, size_t origin) {
  BoardDay kept;
  kept.code = day.code;
  kept.origin = origin;
  kept.trouble = Shortened(day.trouble, kLongestTextOnABoard);
  kept.noLogYet = day.noLogYet;
  kept.counts = day.counts;
  const size_t times = std::min(day.mismatchTimes.size(), kMostTimesOnABoard);
  for (size_t i = 0; i < times; ++i) {
    kept.times += (i > 0 ? ", " : "") + Shortened(day.mismatchTimes[i], kLongestTextOnABoard);
  }
  kept.moreTimes = day.mismatchTimes.size() - times;
  const size_t warnings = std::min(day.warnings.size(), kMostWarningsOnABoard);
  for (size_t i = 0; i < warnings; ++i) {
    kept.warnings.push_back(Shortened(day.warnings[i].text, kLongestTextOnABoard));
  }
  kept.moreWarnings = day.warnings.size() - warnings;
  return kept;
}

PageState StateOf(const BoardDay& day, bool isTooOld) {
  if (isTooOld) return PageState::kOld;
  if (day.noLogYet) return PageState::kNoLog;
  if (day.code >= kTrouble || !day.trouble.empty()) return PageState::kNotChecked;
  if (day.code == kAllMatch) return PageState::kMatch;
  return day.counts.mismatches > 0 ? PageState::kDiffers : PageState::kSee;
}

// Greater is worse. A station with one day of the worst kind comes before any without.
using Badness = std::tuple<size_t, size_t, size_t, size_t, size_t, int64_t>;

Badness BadnessOf(const BoardStation& station) {
  return {CountDays(station, PageState::kNotChecked), CountDays(station, PageState::kOld),
          CountDays(station, PageState::kDiffers),    CountDays(station, PageState::kSee),
          CountDays(station, PageState::kNoLog),      CountMismatches(station)};
}

// Letters of the Latin alphabet in either case, so that names stand where a person looks for them.
std::string SortingName(const std::string& utf8) {
  std::string name = utf8;
  for (char& c : name) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return name;
}

void SortByBadness(std::vector<BoardStation>& stations) {
  using Key = std::tuple<Badness, std::string>;
  std::vector<std::pair<Key, size_t>> order;
  order.reserve(stations.size());
  for (size_t i = 0; i < stations.size(); ++i) {
    order.push_back({{BadnessOf(stations[i]), SortingName(stations[i].name)}, i});
  }
  std::sort(order.begin(), order.end(), [&](const auto& left, const auto& right) {
    const auto& [leftBadness, leftName] = left.first;
    const auto& [rightBadness, rightName] = right.first;
    if (leftBadness != rightBadness) return leftBadness > rightBadness;
    return std::tie(leftName, stations[left.second].name) <
           std::tie(rightName, stations[right.second].name);
  });
  std::vector<BoardStation> sorted;
  sorted.reserve(stations.size());
  for (const auto& entry : order) sorted.push_back(std::move(stations[entry.second]));
  stations = std::move(sorted);
}

}  // namespace

size_t CountDays(const BoardStation& station, PageState state) {
  return static_cast<size_t>(
      std::count_if(station.days.begin(), station.days.end(),
                    [state](const auto& entry) { return entry.second.state == state; }));
}

int64_t CountMismatches(const BoardStation& station) {
  int64_t mismatches = 0;
  for (const auto& [number, day] : station.days) {
    if (day.state == PageState::kDiffers) mismatches += day.counts.mismatches;
  }
  return mismatches;
}

void Board::Add(const std::string& source, ReportReading&& reading) {
  if (!reading.report) {
    failures_.push_back({source, std::move(reading.failure)});
    return;
  }
  ReadReport& report = *reading.report;
  const auto [place, isNew] = places_.try_emplace(report.station, stations_.size());
  if (isNew) stations_.push_back({report.station, {}});
  origins_.push_back({source, report.station, std::move(report.settings),
                      std::move(report.checkedAt), report.checkedAtNumber});
  for (ReadDay& day : report.days) {
    Put(stations_[place->second], std::move(day), origins_.size() - 1);
  }
}

void Board::Put(BoardStation& station, ReadDay&& day, size_t origin) {
  const int32_t number = day.day;
  BoardDay newcomer = BoardDayOf(std::move(day), origin);
  const auto [place, isFirst] = station.days.try_emplace(number);
  BoardDay& present = place->second;
  if (isFirst) {
    present = std::move(newcomer);
  } else if (Counts(newcomer, present)) {
    SetAside(present.origin, number, origin);
    present = std::move(newcomer);
  } else {
    SetAside(origin, number, present.origin);
  }
}

void Board::SetAside(size_t origin, int32_t day, size_t inFavourOf) {
  BoardOrigin& loser = origins_[origin];
  loser.firstSetAside = loser.daysSetAside == 0 ? day : std::min(loser.firstSetAside, day);
  loser.lastSetAside = loser.daysSetAside == 0 ? day : std::max(loser.lastSetAside, day);
  loser.inFavourOf = inFavourOf;
  ++loser.daysSetAside;
}

bool Board::Counts(const BoardDay& newcomer, const BoardDay& present) const {
  const double newTime = origins_[newcomer.origin].checkedAtNumber;
  const double oldTime = origins_[present.origin].checkedAtNumber;
  return newTime != oldTime ? newTime > oldTime : newcomer.code > present.code;
}

void Board::Settle(double now, std::optional<int32_t> staleHours) {
  for (BoardStation& station : stations_) {
    for (auto& [number, day] : station.days) {
      const double hours = (now - origins_[day.origin].checkedAtNumber) * kHoursOfADay;
      day.state = StateOf(day, staleHours && hours > *staleHours);
    }
  }
  SortByBadness(stations_);
  places_.clear();
}

int Board::Code() const {
  if (stations_.empty() || !failures_.empty()) return kTrouble;
  int code = kAllMatch;
  for (const BoardStation& station : stations_) {
    for (const auto& [number, day] : station.days) {
      code = std::max(code, day.state == PageState::kOld ? kTrouble : day.code);
    }
  }
  return code;
}

}  // namespace logchecker
