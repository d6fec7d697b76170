#include "splitlogs/SplitSettings.h"

#include "common/ErrorState.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

struct TextKey {
  const char* section;
  const char* name;
  std::string SplitSettings::*field;
};

constexpr TextKey kTextKeys[] = {
    {"General", "SplitName", &SplitSettings::SplitName},
    {"LogFileName", "Extension", &SplitSettings::Extension},
    {"LogFileName", "ReconcileExtension", &SplitSettings::ReconcileExtension},
    {"LogFileName", "DateFormat", &SplitSettings::DateFormat},
    {"LogFileName", "PreSuffix", &SplitSettings::PreSuffix},
    {"LogFileName", "LogTXChainCode", &SplitSettings::LogTXChainCode},
    {"General", "LogSourceDirectory", &SplitSettings::LogSourceDirectory},
    {"General", "LogDestinationDirectory", &SplitSettings::LogDestinationDirectory},
};

class SplitSettingsTest : public StationTest {
 protected:
  SplitSettingsTest() { os.programFolder = "C:\\PROG"; }
};

TEST_F(SplitSettingsTest, AMissingKeyOrFileGivesItsDefault) {
  LoadSplitSettings("none.ini", 0);
  const SplitSettings& settings = SettingsOf(7);
  EXPECT_EQ("Split 7", settings.SplitName);
  EXPECT_EQ("LOG", settings.Extension);
  EXPECT_EQ("REC", settings.ReconcileExtension);
  EXPECT_EQ("YYMMDD", settings.DateFormat);
  EXPECT_EQ("", settings.PreSuffix);
  EXPECT_EQ("", settings.LogTXChainCode);
  EXPECT_EQ(0, settings.Suffix);
  EXPECT_EQ("C:\\PROG\\source", settings.LogSourceDirectory);
  EXPECT_EQ("C:\\PROG\\dest", settings.LogDestinationDirectory);
  EXPECT_EQ(20, settings.LogUpdateInterval);
}

TEST_F(SplitSettingsTest, EachKeyIsReadFromItsSectionAndSomeInUpperCase) {
  folder().WriteFile("S.INI",
                     "[General]\r\nSplitName10=North \xE9\r\nLogSourceDirectory10=c:\\In\r\n"
                     "LogDestinationDirectory10=c:\\Out\r\nLogUpdateInterval10=5\r\n"
                     "Extension10=wrong\r\n"
                     "[LogFileName]\r\nExtension10=txt\r\nReconcileExtension10=rcn\r\n"
                     "DateFormat10=yyyymmdd\r\nPreSuffix10=n\xE9\r\nLogTXChainCode10=nth\r\n"
                     "Suffix10=1\r\nSplitName10=wrong\r\n");
  LoadSplitSettings("S.INI", 10);
  const SplitSettings& settings = SettingsOf(10);
  EXPECT_EQ("North \xE9", settings.SplitName);
  EXPECT_EQ("c:\\In", settings.LogSourceDirectory);
  EXPECT_EQ("c:\\Out", settings.LogDestinationDirectory);
  EXPECT_EQ(5, settings.LogUpdateInterval);
  EXPECT_EQ("TXT", settings.Extension);
  EXPECT_EQ("RCN", settings.ReconcileExtension);
  EXPECT_EQ("YYYYMMDD", settings.DateFormat);
  EXPECT_EQ("N\xC9", settings.PreSuffix);
  EXPECT_EQ("NTH", settings.LogTXChainCode);
  EXPECT_EQ(1, settings.Suffix);
}

TEST_F(SplitSettingsTest, OneNumberReadsOneSplitAndZeroReadsTen) {
  folder().WriteFile("S.INI", "[General]\r\nSplitName1=One\r\nSplitName2=Two\r\n");
  LoadSplitSettings("S.INI", 2);
  EXPECT_EQ("", SettingsOf(1).SplitName);
  EXPECT_EQ("Two", SettingsOf(2).SplitName);
  LoadSplitSettings("S.INI", 0);
  EXPECT_EQ("One", SettingsOf(1).SplitName);
  EXPECT_EQ("Split 10", SettingsOf(10).SplitName);
}

TEST_F(SplitSettingsTest, WhatBelongsToTheRunOutlivesAReading) {
  SplitSettings& settings = SettingsOf(1);
  settings.CurrentLogPath = "P";
  settings.LogFileNumber = 3;
  settings.LogDate = 4;
  settings.LogFileDay = 5;
  settings.LogFileSeconds = 6;
  LoadSplitSettings("none.ini", 0);
  EXPECT_EQ("P", settings.CurrentLogPath);
  EXPECT_EQ(3, settings.LogFileNumber);
  EXPECT_EQ(4, settings.LogDate);
  EXPECT_EQ(5, settings.LogFileDay);
  EXPECT_EQ(6, settings.LogFileSeconds);
}

TEST_F(SplitSettingsTest, LongTextsArriveCutAndLargeNumbersStayNonZero) {
  folder().WriteFile("S.INI", "[General]\r\nSplitName1=" + std::string(254, 'a') +
                                  "\r\nSplitName2=" + std::string(255, 'b') +
                                  "\r\n[LogFileName]\r\nSuffix1=65536\r\nSuffix2=-65536\r\n");
  LoadSplitSettings("S.INI", 0);
  EXPECT_EQ(std::string(254, 'a'), SettingsOf(1).SplitName);
  EXPECT_EQ(std::string(254, 'b'), SettingsOf(2).SplitName);
  EXPECT_EQ(32767, SettingsOf(1).Suffix);
  EXPECT_EQ(-32768, SettingsOf(2).Suffix);
}

// A read that fails gives its default, which shows whose turn it was.
TEST_F(SplitSettingsTest, TheKeysAreReadInTheirOrder) {
  std::string name;
  std::string directories;
  for (const TextKey& key : kTextKeys) {
    (key.section == std::string("General") ? directories : name) +=
        key.name + std::string("3=x\r\n");
  }
  folder().WriteFile("S.INI", "[General]\r\nLogUpdateInterval3=5\r\n" + directories +
                                  "[LogFileName]\r\nSuffix3=1\r\n" + name);
  const auto defaults = [this](int call) {
    os.script.Clear();
    os.script.FailCall(call, kPathNotFound);
    LoadSplitSettings("S.INI", 3);
    std::string keys;
    for (const TextKey& key : kTextKeys) {
      const std::string& value = SettingsOf(3).*key.field;
      if (value != "x" && value != "X") keys += key.name;
    }
    if (SettingsOf(3).Suffix == 0) keys += "Suffix";
    if (SettingsOf(3).LogUpdateInterval == 20) keys += "LogUpdateInterval";
    return keys;
  };
  const char* const inOrder[] = {
      "SplitName",        "Extension",          "ReconcileExtension",
      "DateFormat",       "PreSuffix",          "LogTXChainCode",
      "Suffix",           "LogSourceDirectory", "LogDestinationDirectory",
      "LogUpdateInterval"};
  int call = 0;
  for (const char* key : inOrder) EXPECT_EQ(key, defaults(++call));
  EXPECT_EQ("", defaults(call + 1));
  EXPECT_EQ(static_cast<size_t>(call), os.script.Calls().size());
}

TEST_F(SplitSettingsTest, EachTextIsReadThroughABufferOf255Characters) {
  for (const TextKey& key : kTextKeys) {
    for (const size_t length : {size_t{254}, size_t{255}, size_t{300}}) {
      folder().WriteFile("S.INI", std::string("[") + key.section + "]\r\n" + key.name +
                                      "4=" + std::string(length, 'Z') + "\r\n");
      LoadSplitSettings("S.INI", 4);
      EXPECT_EQ(std::string(254, 'Z'), SettingsOf(4).*key.field) << key.name << " " << length;
    }
  }
}

TEST_F(SplitSettingsTest, AnEmptyTextIsEmptyAndAnEmptyNumberIsItsDefault) {
  std::string general = "[General]\r\nLogUpdateInterval4=\r\n";
  std::string name = "[LogFileName]\r\nSuffix4=\r\n";
  for (const TextKey& key : kTextKeys) {
    (key.section == std::string("General") ? general : name) += key.name + std::string("4=\r\n");
  }
  folder().WriteFile("S.INI", general + name);
  LoadSplitSettings("S.INI", 4);
  for (const TextKey& key : kTextKeys) EXPECT_EQ("", SettingsOf(4).*key.field) << key.name;
  EXPECT_EQ(0, SettingsOf(4).Suffix);
  EXPECT_EQ(20, SettingsOf(4).LogUpdateInterval);
}

TEST_F(SplitSettingsTest, EachSplitReadsItsOwnKeys) {
  std::string general = "[General]\r\n";
  std::string name = "[LogFileName]\r\n";
  for (int n = 10; n >= 1; --n) {
    const std::string number = std::to_string(n);
    for (const TextKey& key : kTextKeys) {
      (key.section == std::string("General") ? general : name) +=
          key.name + number + "=" + std::to_string(n * 100) + "\r\n";
    }
    general += "LogUpdateInterval" + number + "=" + std::to_string(n * 10) + "\r\n";
    name += "Suffix" + number + "=" + std::to_string(n * 3) + "\r\n";
  }
  folder().WriteFile("S.INI", general + name);
  LoadSplitSettings("S.INI", 0);
  for (int16_t n = 1; n <= 10; ++n) {
    const SplitSettings& settings = SettingsOf(n);
    for (const TextKey& key : kTextKeys) {
      EXPECT_EQ(std::to_string(n * 100), settings.*key.field) << key.name << n;
    }
    EXPECT_EQ(n * 10, settings.LogUpdateInterval);
    EXPECT_EQ(n * 3, settings.Suffix);
  }
}

TEST_F(SplitSettingsTest, NumbersAreKeptAsTheyAreAsFarAs16BitsHoldThem) {
  const std::pair<const char*, int16_t> cases[] = {
      {"0", 0},         {"-1", -1},         {"2", 2},           {"32767", 32767},
      {"32768", 32767}, {"-32768", -32768}, {"-32769", -32768}, {"x", 0}};
  for (const auto& [text, number] : cases) {
    folder().WriteFile("S.INI", std::string("[General]\r\nLogUpdateInterval5=") + text +
                                    "\r\n[LogFileName]\r\nSuffix5=" + text + "\r\n");
    LoadSplitSettings("S.INI", 5);
    EXPECT_EQ(number, SettingsOf(5).LogUpdateInterval) << text;
    EXPECT_EQ(number, SettingsOf(5).Suffix) << text;
  }
}

TEST_F(SplitSettingsTest, TheFileMayBeGivenByItsPath) {
  Os().directories.MakeDirectory(Path("sub"));
  folder().WriteFile("S.INI", "[General]\r\nSplitName1=Bare\r\n");
  folder().WriteFile("sub/S.INI", "[General]\r\nSplitName1=By path\r\n");
  LoadSplitSettings(Path("sub") + "\\S.INI", 1);
  EXPECT_EQ("By path", SettingsOf(1).SplitName);
  LoadSplitSettings("S.INI", 1);
  EXPECT_EQ("Bare", SettingsOf(1).SplitName);
}

TEST_F(SplitSettingsTest, ThereAreTenSplitsAndAnotherIsError9) {
  EXPECT_EQ(10U, gSplitSettings.size());
  EXPECT_THROW(LoadSplitSettings("none.ini", 11), RunTimeError);
  EXPECT_THROW(LoadSplitSettings("none.ini", -1), RunTimeError);
  for (const int16_t number : {int16_t{0}, int16_t{11}, int16_t{-1}}) {
    try {
      SettingsOf(number);
      ADD_FAILURE();
    } catch (const RunTimeError& error) {
      EXPECT_EQ(kSubscriptOutOfRange, error.number());
    }
  }
}

}  // namespace
}  // namespace logchecker
