// The settings files of the sample station.
#include "cartstore/AudiowallParts.h"
#include "common/GeneralSettings.h"
#include "sample/SamplePlan.h"

namespace logchecker {

namespace {

constexpr int16_t kSampleParts = 4;  // hold the 4,000 carts

std::string Line(const std::string& key, const std::string& value) {
  return key + "=" + value + "\r\n";
}

std::string StationSettings(const SamplePlan& plan, const std::string& base) {
  std::string general = "[General]\r\n";
  general += Line("NumberActiveSplits", std::to_string(plan.splits));
  general += Line("BreakDifferenceMS", "500");
  general += Line("DisplayAdvertHH", "0");
  general += Line("DisplayBreakHH", "1");
  general += Line("DisplayCheckHH", "1");
  std::string names = "[LogFileName]\r\n";
  for (int16_t n = 1; n <= plan.splits; ++n) {
    const SampleSplit& split = kSampleSplits[static_cast<size_t>(n - 1)];
    const std::string number = std::to_string(n);
    general += Line("SplitName" + number, split.name);
    general += Line("LogSourceDirectory" + number, SampleLogFolder(base, n));
    general += Line("LogUpdateInterval" + number, "20");
    names += Line("DateFormat" + number, split.dateFormat);
    names += Line("Extension" + number, split.extension);
    names += Line("PreSuffix" + number, split.preSuffix);
    names += Line("Suffix" + number, split.suffix ? "1" : "0");
    names += Line("LogTXChainCode" + number, split.filtersByChain ? split.chainCode : "");
    names += Line("ReconcileExtension" + number, "REC");
  }
  return general + "\r\n" + names;
}

std::string FamilySettingsText(const SamplePlan& plan, const std::string& base) {
  std::string text = "[FileLocations]\r\n";
  text += Line("Data", base + "\\data");
  for (int16_t part = 1; part <= kAudiowallParts; ++part) {
    text += Line("Carts" + std::to_string(part),
                 part <= kSampleParts ? SampleCartFolder(base, part) : "");
  }
  text += "\r\n[Audio]\r\n";
  text += Line("UseIndividualCartListFiles", plan.individualListFiles ? "1" : "0");
  return text + "\r\n[CartPlayers]\r\n" + Line("TotalNumberCartPlayers", "1");
}

}  // namespace

void WriteSampleSettings(const SamplePlan& plan, const std::string& base) {
  WriteSampleFile(base + "\\" + kFamilySettingsFile, FamilySettingsText(plan, base));
  WriteSampleFile(base + "\\" + kDefaultSettingsFile, StationSettings(plan, base));
}

}  // namespace logchecker
