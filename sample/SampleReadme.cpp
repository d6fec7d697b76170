// What the sample station tells of itself.
#include "common/DatePicture.h"
#include "common/TimeText.h"
#include "sample/SamplePlan.h"

namespace logchecker {

namespace {

std::string TimeOf(int32_t minute) { return FormatTimeDisplay(minute * 60, kMaskHoursMinutes); }

std::string MistakeLine(const SamplePlan& plan, const SampleMistake& mistake) {
  const int32_t minute = plan.MinuteOf(mistake.breakIndex);
  const std::string where = "  " + TimeOf(minute) + "  " +
                            kSampleSplits[static_cast<size_t>(mistake.split - 1)].name + ": ";
  switch (mistake.kind) {
    case SampleMistake::kMissing:
      return where + "the break is missing.";
    case SampleMistake::kOver:
      return where + "1.5 seconds longer than in the other splits, over the tolerance.";
    case SampleMistake::kWithin:
      return where + "0.3 seconds longer, within the tolerance, and not reported.";
    case SampleMistake::kNoAudio:
      return where + "the last advert's cart, " + std::to_string(kUnusedAdvert) +
             ", has no audio, so the break is short.";
    default:
      return where + "starts a minute late, at " + TimeOf(minute + 1) + ", so both times differ.";
  }
}

std::string Days(const SampleStation& station) {
  std::string text = IsoDate(station.firstDay);
  if (station.days > 1) text += " to " + IsoDate(station.firstDay + station.days - 1);
  return text;
}

std::string MistakesOfEveryDay(const SamplePlan& plan) {
  if (plan.mistakes.empty()) return "No mistakes are planted: there is no room for them.\n";
  std::string text = "Mistakes planted on every day:\n";
  for (const SampleMistake& mistake : plan.mistakes) text += MistakeLine(plan, mistake) + "\n";
  return text;
}

// Day by day, and of many only how many there are.
std::string DrawnMistakes(const SamplePlan& plan, const SampleStation& station) {
  constexpr int64_t kMostLines = 5000;
  std::string text = std::to_string(*plan.mistakesADay) +
                     " mistakes planted on each day, drawn with seed " + std::to_string(plan.seed) +
                     ".\n";
  const int32_t days = station.days - station.missingDays;
  if (int64_t{*plan.mistakesADay} * days > kMostLines || *plan.mistakesADay == 0) return text;
  for (int32_t day = station.firstDay; day < station.firstDay + days; ++day) {
    text += IsoDate(day) + ":\n";
    for (const SampleMistake& mistake : MistakesOf(plan, day)) {
      text += MistakeLine(plan, mistake) + "\n";
    }
  }
  return text;
}

std::string MissingDays(const SampleStation& station) {
  if (station.missingDays == 0) return "";
  return "There are no logs yet for the last " + std::to_string(station.missingDays) +
         (station.missingDays == 1 ? " day.\n" : " days.\n");
}

}  // namespace

void WriteSampleReadme(const SamplePlan& plan, const SampleStation& station,
                       const std::string& base) {
  std::string text = "Larkfield Radio, a made-up station to try Log Checker on\n\n";
  text += "Logs for " + Days(station) + ": " + std::to_string(plan.splits) + " splits with " +
          std::to_string(plan.breaks) + " breaks of " + std::to_string(plan.adverts) +
          " adverts a day.\n\n";
  text +=
      "Larkfield's log has lines of the old form. Easton and Weston share one file, told apart\n"
      "by the TX chain codes EST and WST. Coast's file names end in a suffix.\n\n";
  text += plan.mistakesADay ? DrawnMistakes(plan, station) : MistakesOfEveryDay(plan);
  text += MissingDays(station);
  text += "\nThe store has " + std::to_string(kSampleCarts) + " carts in four parts. Carts 1 to " +
          std::to_string(kLastJingle) + " are jingles, adverts begin at " +
          std::to_string(kFirstAdvert) + ", carts " + std::to_string(kFirstSilentCart) + " to " +
          std::to_string(kLastSilentCart) +
          " have texts and no audio, and some carts have notes.\n";
  text += plan.individualListFiles
              ? "Five carts have list files of their own, which are read before the part's.\n"
              : "Sizes were given, so the store has part list files alone.\n";
  WriteSampleFile(base + kSampleMarker, text);
}

}  // namespace logchecker
