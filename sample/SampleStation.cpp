#include "sample/SampleStation.h"

#include <random>

#include "common/GeneralFunctions.h"
#include "common/GeneralSettings.h"
#include "common/Trouble.h"
#include "platform/Platform.h"
#include "sample/SamplePlan.h"

namespace logchecker {

namespace {

// The mistake of each break of one split; nothing for most.
std::vector<const SampleMistake*> ByBreak(const std::vector<SampleMistake>& mistakes,
                                          const SamplePlan& plan, int16_t split) {
  std::vector<const SampleMistake*> byBreak(static_cast<size_t>(plan.breaks), nullptr);
  for (const SampleMistake& mistake : mistakes) {
    if (mistake.split == split) byBreak[static_cast<size_t>(mistake.breakIndex)] = &mistake;
  }
  return byBreak;
}

void ApplyMistake(const SampleMistake& mistake, int32_t lastClass, SampleBreak& planned) {
  switch (mistake.kind) {
    case SampleMistake::kOver:
      planned.carts.back() = kFirstLongAdvert + lastClass;
      break;
    case SampleMistake::kWithin:
      planned.carts.back() = kFirstLongishAdvert + lastClass;
      break;
    case SampleMistake::kNoAudio:
      planned.carts.back() = kUnusedAdvert;
      break;
    case SampleMistake::kLate:
      ++planned.minute;
      break;
    default:
      break;
  }
}

void RequirePossible(const SamplePlan& plan, const SampleStation& station) {
  if (plan.mistakesADay.value_or(0) > plan.breaks) {
    throw Trouble(std::to_string(*plan.mistakesADay) + " mistakes don't fit into " +
                  std::to_string(plan.breaks) + " breaks a day");
  }
  if (station.missingDays > station.days) {
    throw Trouble(std::to_string(station.missingDays) + " days without a log are more than " +
                  std::to_string(station.days));
  }
}

}  // namespace

uint32_t SampleSeed(const SamplePlan& plan, int32_t day) {
  // Seed 0 is the station of the documentation.
  constexpr uint32_t kStep = 2654435761U;
  return static_cast<uint32_t>(day) + static_cast<uint32_t>(plan.seed) * kStep;
}

SamplePlan PlanSample(const SampleStation& station) {
  const SampleSizes& sizes = station.sizes;
  SamplePlan plan;
  plan.seed = station.seed;
  plan.mistakesADay = station.mistakes;
  plan.splits = static_cast<int16_t>(sizes.splits.value_or(plan.splits));
  plan.breaks = sizes.breaks.value_or(plan.breaks);
  plan.adverts = sizes.adverts.value_or(plan.adverts);
  plan.individualListFiles = !sizes.AnyGiven();
  if (!plan.mistakesADay) PlantMistakes(plan);
  return plan;
}

std::vector<SampleBreak> PlanBreaks(const SamplePlan& plan, int16_t split, int32_t day) {
  std::vector<SampleBreak> breaks;
  // The classes are drawn alike for all splits, so that their breaks last the same.
  const uint32_t seed = SampleSeed(plan, day);
  std::mt19937 classes(seed);
  std::mt19937 picks(seed * 16U + static_cast<uint32_t>(split));
  const std::vector<SampleMistake> mistakes = MistakesOf(plan, day);
  const auto byBreak = ByBreak(mistakes, plan, split);
  for (int32_t i = 0; i < plan.breaks; ++i) {
    SampleBreak planned;
    planned.minute = plan.MinuteOf(i);
    int32_t lengthClass = 0;
    for (int32_t j = 0; j < plan.adverts; ++j) {
      lengthClass = static_cast<int32_t>(classes() % kLengthClasses);
      planned.carts.push_back(AdvertCart(lengthClass, static_cast<int32_t>(picks() >> 8U)));
    }
    const SampleMistake* mistake = byBreak[static_cast<size_t>(i)];
    if (mistake != nullptr && mistake->kind == SampleMistake::kMissing) continue;
    if (mistake != nullptr) ApplyMistake(*mistake, lengthClass, planned);
    breaks.push_back(std::move(planned));
  }
  return breaks;
}

void MakeSampleFolder(const std::string& path) {
  if (!DirectoryExists(path) && !CreatePath(path, true) && !DirectoryExists(path)) {
    throw Trouble("the folder " + ShownPath(path) + " can't be made");
  }
}

void WriteSampleFile(const std::string& path, const std::string& bytes) {
  const std::string failure = WriteWholeFile(path, bytes);
  if (!failure.empty()) throw Trouble(failure);
}

std::string SampleCartFolder(const std::string& base, int16_t part) {
  return base + "\\audio\\carts " + std::to_string(part);
}

std::string SampleLogFolder(const std::string& base, int16_t split) {
  return base + "\\logs\\" + kSampleSplits[static_cast<size_t>(split - 1)].folder;
}

void WriteSampleStation(const std::string& folder, const SampleStation& station) {
  if (!Os().system.SetWindowsFolder(folder)) {
    throw Trouble("the sample folder's name has characters that the code page can't hold");
  }
  const std::string base = Os().system.WindowsFolder();
  constexpr size_t kLongestBelow = 40;  // of the folders that the settings name
  if (base.size() + kLongestBelow >= kTextBufferLength) {
    throw Trouble("the sample folder's name is too long for the settings: " + ShownPath(base));
  }
  for (const char* name : {kDefaultSettingsFile, kFamilySettingsFile}) {
    if (GetFileLength(base + "\\" + name) >= 0 && GetFileLength(base + kSampleMarker) < 0) {
      throw Trouble(ShownPath(base) +
                    " holds the settings of a station; the sample does not replace them");
    }
  }
  const SamplePlan plan = PlanSample(station);
  RequirePossible(plan, station);
  RequireLoadableLogs(plan);
  MakeSampleFolder(base);
  WriteSampleReadme(plan, station, base);
  WriteSampleStore(plan, base);
  WriteSampleLogs(plan, station, base);
  WriteSampleSettings(plan, base);
}

}  // namespace logchecker
