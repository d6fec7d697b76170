#include "headless/pages/DayWords.h"

#include <algorithm>

#include "common/DatePicture.h"
#include "common/TextHelpers.h"
#include "common/TimeText.h"
#include "headless/Verdict.h"
#include "headless/pages/Html.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr size_t kHeadingCharacters = 24;

DayVerdict VerdictOnMismatches(const DayReport& day, int code) {
  const size_t count = day.mismatches.size();
  const std::string words = Counted(count, "ad break") + " did not match in all splits";
  if (code == kAllMatch) return {PageState::kMatch, words + ", which is accepted"};
  return {PageState::kDiffers, words};
}

}  // namespace

DayVerdict VerdictOf(const DayReport& day, const std::vector<WarningKind>& accepted) {
  if (day.noLogYet) return {PageState::kNoLog, "No log yet"};
  if (!day.trouble.empty()) return {PageState::kNotChecked, "Not checked"};
  if (std::any_of(day.mismatches.begin(), day.mismatches.end(), HasNoTime)) {
    return {PageState::kDiffers, std::string("Not compared: ") + kNotCompared};
  }
  const int code = CodeOf(day, accepted);
  if (!day.mismatches.empty()) return VerdictOnMismatches(day, code);
  if (code != kAllMatch) {
    return {PageState::kSee, "The breaks that were compared match, but see below"};
  }
  if (day.warnings.empty()) return {PageState::kMatch, "There were no problems found"};
  return {PageState::kMatch, "The breaks that were compared match; there are warnings"};
}

std::string Counted(size_t count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::string LengthText(float seconds) {
  return std::string(Trim(FormatLengthDisplay(seconds, LengthMask(true))));
}

size_t SilentAdvertsOf(const DayReport& day) {
  size_t count = 0;
  for (const SplitReport& split : day.splits) count += split.silentAdverts.size();
  return count;
}

std::string HeadingName(const SplitReport& split) {
  return Shortened(ToUtf8(split.name), kHeadingCharacters);
}

std::string TimeText(const DayReport& day, size_t mismatch) {
  return ToUtf8(Trim(day.results.ListItems[mismatch].text));
}

std::string CellText(const DayReport& day, size_t mismatch, size_t split) {
  return ToUtf8(Trim(day.results.ListItems[mismatch].ListSubItems[split].text));
}

std::string DayId(const DayReport& day) { return "d" + IsoDate(day.day); }

std::string RowId(const DayReport& day, size_t mismatch) {
  return DayId(day) + "-m" + std::to_string(mismatch + 1);
}

std::string AdvertsId(const DayReport& day, size_t mismatch) {
  return DayId(day) + "-b" + std::to_string(mismatch + 1);
}

std::string SilentTableId(const DayReport& day) { return DayId(day) + "-q"; }

std::string SilentId(const DayReport& day, const SplitReport& split, size_t advert) {
  if (advert >= kMostSilentRows) return SilentTableId(day);
  return SilentTableId(day) + std::to_string(split.number) + "-" + std::to_string(advert + 1);
}

}  // namespace logchecker
