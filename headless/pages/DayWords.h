// The words, states and places of a day on its page.
#pragma once

#include <string>
#include <vector>

#include "headless/DayReport.h"
#include "headless/pages/Page.h"

namespace logchecker {

struct DayVerdict {
  PageState state = PageState::kMatch;
  std::string words;  // plain English without markup
};

// What the day has come to. What is `accepted` is said, and colours nothing.
DayVerdict VerdictOf(const DayReport& day, const std::vector<WarningKind>& accepted);

// "1 ad break", "2 ad breaks".
std::string Counted(size_t count, const std::string& one);

// A length in seconds with hundredths, or "--:--".
std::string LengthText(float seconds);

// The day's adverts without audio.
size_t SilentAdvertsOf(const DayReport& day);

// UTF-8 of a split's name for a table's heading, cut where it is long.
std::string HeadingName(const SplitReport& split);

// The text of a mismatch's time, and of its length in a split, as the results window has them.
std::string TimeText(const DayReport& day, size_t mismatch);
std::string CellText(const DayReport& day, size_t mismatch, size_t split);

// Places of the page, each by a name that no other has.
std::string DayId(const DayReport& day);
std::string RowId(const DayReport& day, size_t mismatch);
std::string AdvertsId(const DayReport& day, size_t mismatch);
std::string SilentTableId(const DayReport& day);
std::string SilentId(const DayReport& day, const SplitReport& split, size_t advert);

// Adverts without audio that are listed for one split; the rest of them is only counted, since a
// store that is gone makes every advert of a day one of them.
inline constexpr size_t kMostSilentRows = 200;

}  // namespace logchecker
