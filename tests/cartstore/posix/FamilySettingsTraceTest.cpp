#include <filesystem>

#include "cartstore/AudioSettings.h"
#include "common/DebugLog.h"
#include "common/GeneralSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class FamilySettingsTraceTest : public StationTest {
 protected:
  FamilySettingsTraceTest() {
    std::filesystem::create_directories(folder().Path("drives") + "/c");
    os.now = 46402.5;
    gDebugLogName = "trace";
    gDebugLevel = -1;
  }
  // The lines of the trace about wave devices, after the settings are read.
  std::string Trace() {
    LoadAudioSettings("VELMAR.INI", "");
    const std::string file = "drives/c/trace.20270115.log";
    return folder().Exists(file) ? folder().ReadFile(file) : "";
  }
};

TEST_F(FamilySettingsTraceTest, CountedDevicesAreTracedBeforeAndAfterTheCut) {
  os.waveOutFormats = {kWaveFormat4M16, kWaveFormat4M16, 0};
  EXPECT_EQ(
      "12:00:00 Number Suitable Wave Out Devices=2\r\n"
      "12:00:00 Checked Number Suitable Wave Out Devices=1\r\n",
      Trace());
}

TEST_F(FamilySettingsTraceTest, ANumberThatIsGivenIsNotTraced) {
  gCommandLine = "/PLAYERS=3";
  EXPECT_EQ("", Trace());
}

}  // namespace
}  // namespace logchecker
