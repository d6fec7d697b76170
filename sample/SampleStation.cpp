#include "sample/SampleStation.h"

#include <algorithm>
#include <random>

#include "common/GeneralFunctions.h"
#include "common/GeneralSettings.h"
#include "common/Trouble.h"
#include "platform/Platform.h"
#include "sample/SamplePlan.h"

namespace logchecker {

namespace {

// Below this many breaks there is no room for every mistake.
constexpr int32_t kLeastBreaksForMistakes = 12;

// The split itself, or the first one where the station has fewer.
int16_t SplitOrFirst(int16_t split, int16_t splits) { return split <= splits ? split : int16_t{1}; }

bool MinuteAfterIsFree(const SamplePlan& plan, int32_t breakIndex) {
  const int32_t late = plan.MinuteOf(breakIndex) + 1;
  return breakIndex + 1 < plan.breaks && plan.MinuteOf(breakIndex + 1) > late;
}

void PlantMistakes(SamplePlan& plan) {
  if (plan.splits < 2 || plan.breaks < kLeastBreaksForMistakes) return;
  const int32_t sixth = plan.breaks / 6;
  plan.mistakes = {
      {SampleMistake::kMissing, 1, sixth},
      {SampleMistake::kOver, 2, 2 * sixth},
      {SampleMistake::kWithin, std::min<int16_t>(3, plan.splits), 3 * sixth},
      {SampleMistake::kNoAudio, SplitOrFirst(4, plan.splits), 4 * sixth},
  };
  if (MinuteAfterIsFree(plan, 5 * sixth)) {
    plan.mistakes.push_back({SampleMistake::kLate, SplitOrFirst(5, plan.splits), 5 * sixth});
  }
}

const SampleMistake* MistakeAt(const SamplePlan& plan, int16_t split, int32_t breakIndex) {
  for (const SampleMistake& mistake : plan.mistakes) {
    if (mistake.split == split && mistake.breakIndex == breakIndex) return &mistake;
  }
  return nullptr;
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

}  // namespace

SamplePlan PlanSample(const SampleSizes& sizes) {
  SamplePlan plan;
  plan.splits = static_cast<int16_t>(sizes.splits.value_or(plan.splits));
  plan.breaks = sizes.breaks.value_or(plan.breaks);
  plan.adverts = sizes.adverts.value_or(plan.adverts);
  plan.individualListFiles = !sizes.AnyGiven();
  PlantMistakes(plan);
  return plan;
}

std::vector<SampleBreak> PlanBreaks(const SamplePlan& plan, int16_t split, int32_t day) {
  std::vector<SampleBreak> breaks;
  // The classes are drawn alike for all splits, so that their breaks last the same.
  std::mt19937 classes(static_cast<uint32_t>(day));
  std::mt19937 picks(static_cast<uint32_t>(day) * 16U + static_cast<uint32_t>(split));
  for (int32_t i = 0; i < plan.breaks; ++i) {
    SampleBreak planned;
    planned.minute = plan.MinuteOf(i);
    int32_t lengthClass = 0;
    for (int32_t j = 0; j < plan.adverts; ++j) {
      lengthClass = static_cast<int32_t>(classes() % kLengthClasses);
      planned.carts.push_back(AdvertCart(lengthClass, static_cast<int32_t>(picks() >> 8U)));
    }
    const SampleMistake* mistake = MistakeAt(plan, split, i);
    if (mistake != nullptr && mistake->kind == SampleMistake::kMissing) continue;
    if (mistake != nullptr) ApplyMistake(*mistake, lengthClass, planned);
    breaks.push_back(std::move(planned));
  }
  return breaks;
}

void MakeSampleFolder(const std::string& path) {
  if (!DirectoryExists(path) && !CreatePath(path, true) && !DirectoryExists(path)) {
    throw Trouble("the folder " + path + " can't be made");
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
    throw Trouble("the sample folder's name is too long for the settings: " + base);
  }
  for (const char* name : {kDefaultSettingsFile, kFamilySettingsFile}) {
    if (GetFileLength(base + "\\" + name) >= 0 && GetFileLength(base + kSampleMarker) < 0) {
      throw Trouble(base + " holds the settings of a station; the sample does not replace them");
    }
  }
  const SamplePlan plan = PlanSample(station.sizes);
  RequireLoadableLogs(plan);
  MakeSampleFolder(base);
  WriteSampleReadme(plan, station, base);
  WriteSampleStore(plan, base);
  WriteSampleLogs(plan, station, base);
  WriteSampleSettings(plan, base);
}

}  // namespace logchecker
