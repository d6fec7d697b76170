#include "shell/LoadGeneralSettings.h"

#include "common/ErrorState.h"
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

TEST_F(LoadGeneralSettingsTest, ADisplayKeyIsTrueForAnyNumberBut0) {
  struct Case {
    const char* text;
    bool shown;
  };
  const Case cases[] = {{"0", false}, {"1", true},  {"5", true},
                        {"-1", true}, {"x", false}, {"2x", true}};
  struct Key {
    const char* name;
    bool GeneralSettings::*setting;
  };
  const Key keys[] = {{"DisplayAdvertHH", &GeneralSettings::DisplayAdvertHH},
                      {"DisplayBreakHH", &GeneralSettings::DisplayBreakHH},
                      {"DisplayCheckHH", &GeneralSettings::DisplayCheckHH}};
  for (const Key& key : keys) {
    for (const Case& row : cases) {
      folder().WriteFile("VELKLT.INI", std::string("[General]\r\n") + key.name + "=" + row.text);
      LoadGeneralSettings();
      EXPECT_EQ(row.shown, gGeneralSettings.*key.setting) << key.name << "=" << row.text;
    }
  }
}

// A read that fails gives its default, which shows whose turn it was.
TEST_F(LoadGeneralSettingsTest, TheSplitsAreReadBetweenTheirNumberAndTheOtherSettings) {
  folder().WriteFile("VELMAR.INI", "[FileLocations]\r\nData=D\r\n");
  folder().WriteFile("VELKLT.INI",
                     "[General]\r\nNumberActiveSplits=7\r\nBreakDifferenceMS=1\r\n"
                     "DisplayAdvertHH=1\r\nDisplayBreakHH=0\r\nDisplayCheckHH=0\r\n");
  LoadGeneralSettings();
  const auto calls = static_cast<int>(os.script.Calls().size());
  ASSERT_GT(calls, 6);
  const auto defaults = [this](int call) {
    os.script.Clear();
    os.script.FailCall(call, kPathNotFound);
    LoadGeneralSettings();
    std::string keys;
    if (gDataPath.empty()) keys += "Data ";
    if (gGeneralSettings.NumberActiveSplits == 2) keys += "Number ";
    if (gGeneralSettings.BreakDifferenceMS == 500) keys += "Difference ";
    if (!gGeneralSettings.DisplayAdvertHH) keys += "Advert ";
    if (gGeneralSettings.DisplayBreakHH) keys += "Break ";
    if (gGeneralSettings.DisplayCheckHH) keys += "Check ";
    return keys;
  };
  EXPECT_EQ("Data ", defaults(1));
  EXPECT_EQ("Number ", defaults(2));
  for (int call = 3; call <= calls - 4; ++call) EXPECT_EQ("", defaults(call)) << call;
  EXPECT_EQ("Difference ", defaults(calls - 3));
  EXPECT_EQ("Advert ", defaults(calls - 2));
  EXPECT_EQ("Break ", defaults(calls - 1));
  EXPECT_EQ("Check ", defaults(calls));
}

TEST_F(LoadGeneralSettingsTest, TheNumberOfSplitsIsKeptOutsideItsRange) {
  const std::pair<const char*, int16_t> cases[] = {
      {"0", 0}, {"11", 11},       {"-3", -3},       {"65538", 32767},   {"x", 0},
      {"", 2},  {"32767", 32767}, {"32768", 32767}, {"-32768", -32768}, {"-32769", -32768}};
  for (const auto& [text, number] : cases) {
    folder().WriteFile("VELKLT.INI",
                       std::string("[General]\r\nNumberActiveSplits=") + text + "\r\n");
    LoadGeneralSettings();
    EXPECT_EQ(number, gGeneralSettings.NumberActiveSplits) << text;
  }
}

TEST_F(LoadGeneralSettingsTest, ANumberOfSplitsOutsideItsRangeNamesItsKeyAndFileWhereItIsUsed) {
  const std::pair<int16_t, bool> cases[] = {
      {0, true}, {1, true}, {10, true}, {11, false}, {-1, false}, {32767, false}, {-32768, false}};
  for (const auto& [splits, allowed] : cases) {
    gGeneralSettings.NumberActiveSplits = splits;
    std::string text;
    try {
      RequireSplitsInRange();
    } catch (const RunTimeError& error) {
      text = error.what();
    }
    EXPECT_EQ(allowed ? ""
                      : "Run-time error 9: Subscript out of range (NumberActiveSplits=" +
                            std::to_string(splits) + " in VELKLT.INI)",
              text);
  }
}

TEST_F(LoadGeneralSettingsTest, EveryKeyComesFromTheFileInForceAndOnlyTheDataPathFromTheFamilys) {
  const std::string keys =
      "[General]\r\nNumberActiveSplits=3\r\nBreakDifferenceMS=1\r\nDisplayAdvertHH=1\r\n"
      "DisplayBreakHH=0\r\nDisplayCheckHH=0\r\n[FileLocations]\r\nData=wrong\r\n";
  folder().WriteFile(".INI", keys);
  folder().WriteFile("Velmar.ini", "[General]\r\nNumberActiveSplits=9\r\nData=wrong\r\n");
  SetCommandLine("/LI:X.INI");
  LoadGeneralSettings();
  EXPECT_EQ("", gDataPath);
  EXPECT_EQ(3, gGeneralSettings.NumberActiveSplits);
  EXPECT_EQ(1, gGeneralSettings.BreakDifferenceMS);
  EXPECT_TRUE(gGeneralSettings.DisplayAdvertHH);
  EXPECT_FALSE(gGeneralSettings.DisplayBreakHH);
  EXPECT_FALSE(gGeneralSettings.DisplayCheckHH);
  SetCommandLine("");
  LoadGeneralSettings();
  EXPECT_EQ("VELKLT.INI", gSettingsFile);
  EXPECT_EQ(2, gGeneralSettings.NumberActiveSplits);
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
      {"/LI:OTHER.INI   ", ".INI"},
      {"/LI:OTHER.INI.INI", ".INI.INI"},
      {"/LI:OTHER.ini NEXT.INI", ".INI"},
      {"/LI:A.INI/LI:B.INI", ".INI/LI:B.INI"},
      {"/LI: \"C:\\MY FILES\\A.INI\"", ".INI\""},
      {"LI:OTHER.INI", "VELKLT.INI"},
      {"/LI :OTHER.INI", "VELKLT.INI"},
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
