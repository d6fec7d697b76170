#include "shell/LoadGeneralSettings.h"

#include "common/GeneralSettings.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class LoadGeneralSettingsTest : public StationTest {};

TEST_F(LoadGeneralSettingsTest, AFileWithNoneOfTheKeysGivesTheDefaults) {
  folder().WriteFile("VELKLT.INI", "[Other]\r\nNumberActiveSplits=9\r\n");
  LoadGeneralSettings();
  EXPECT_EQ("VELKLT.INI", gSettingsFile);
  EXPECT_EQ("", gDataPath);
  EXPECT_EQ(2, gGeneralSettings.NumberActiveSplits);
  EXPECT_EQ(500, gGeneralSettings.BreakDifferenceMS);
  EXPECT_FALSE(gGeneralSettings.DisplayAdvertHH);
  EXPECT_TRUE(gGeneralSettings.DisplayBreakHH);
  EXPECT_TRUE(gGeneralSettings.DisplayCheckHH);
  EXPECT_EQ("Split 10", SettingsOf(10).SplitName);
}

TEST_F(LoadGeneralSettingsTest, EachKeyIsReadFromItsFile) {
  folder().WriteFile("velmar.ini", "[FileLocations]\r\nData=" + std::string(300, 'd') + "\r\n");
  folder().WriteFile("VELKLT.INI",
                     "[General]\r\nNumberActiveSplits=7\r\nBreakDifferenceMS=-20\r\n"
                     "DisplayAdvertHH=-1\r\nDisplayBreakHH=5\r\nDisplayCheckHH=0\r\n"
                     "SplitName4=Four\r\n");
  LoadGeneralSettings();
  EXPECT_EQ(std::string(254, 'd'), gDataPath);
  EXPECT_EQ(7, gGeneralSettings.NumberActiveSplits);
  EXPECT_EQ(-20, gGeneralSettings.BreakDifferenceMS);
  EXPECT_TRUE(gGeneralSettings.DisplayAdvertHH);
  EXPECT_TRUE(gGeneralSettings.DisplayBreakHH);
  EXPECT_FALSE(gGeneralSettings.DisplayCheckHH);
  EXPECT_EQ("Four", SettingsOf(4).SplitName);
}

TEST_F(LoadGeneralSettingsTest, TheNumberOfSplitsIsKeptOutsideItsRange) {
  const std::pair<const char*, int16_t> cases[] = {{"0", 0},         {"11", 11}, {"-3", -3},
                                                   {"65538", 32767}, {"x", 0},   {"", 2}};
  for (const auto& [text, number] : cases) {
    folder().WriteFile("VELKLT.INI",
                       std::string("[General]\r\nNumberActiveSplits=") + text + "\r\n");
    LoadGeneralSettings();
    EXPECT_EQ(number, gGeneralSettings.NumberActiveSplits) << text;
  }
}

TEST_F(LoadGeneralSettingsTest, TheSwitchOfTheSettingsFileIsReadInItsOwnWay) {
  struct Case {
    const char* commandLine;
    const char* file;
  };
  const Case cases[] = {
      {"", "VELKLT.INI"},
      {"/LI:OTHER.INI", ".INI"},
      {"/LI:.INI", ".INI"},
      {"/li:OTHER.INI", ".INI"},
      {"/li:other.ini", "VELKLT.INI"},
      {"/LI:other.ini", "VELKLT.INI"},
      {"/LI:OTHER", "VELKLT.INI"},
      {"/LI:", "VELKLT.INI"},
      {"A.INI /LI:OTHER", "VELKLT.INI"},
      {"A.INI /LI:OTHER.INI", ".INI"},
      {"/LI:OTHER.INI /PLAYERS=2", ".INI"},
      {"/LI:OTHER.INIx more", ".INIX"},
      {"/LI:OTHER NEXT.INI more", ".INI"},
      {"/LI:A.INI /LI:B.INI", ".INI"},
      {"OTHER.INI", "VELKLT.INI"},
  };
  for (const Case& row : cases) {
    SetCommandLine(row.commandLine);
    LoadGeneralSettings();
    EXPECT_EQ(row.file, gSettingsFile) << row.commandLine;
  }
}

TEST_F(LoadGeneralSettingsTest, TheFileOfTheSwitchIsTheOneThatIsRead) {
  folder().WriteFile(".INI", "[General]\r\nNumberActiveSplits=4\r\n");
  folder().WriteFile("OTHER.INI", "[General]\r\nNumberActiveSplits=5\r\n");
  SetCommandLine("/LI:OTHER.INI");
  LoadGeneralSettings();
  EXPECT_EQ(4, gGeneralSettings.NumberActiveSplits);
}

TEST_F(LoadGeneralSettingsTest, TheCommandLineIsKeptAsGivenAndInUpperCase) {
  SetCommandLine("/li:a \xE9");
  EXPECT_EQ("/li:a \xE9", gRawCommandLine);
  EXPECT_EQ("/LI:A \xC9", gCommandLine);
}

}  // namespace
}  // namespace logchecker
