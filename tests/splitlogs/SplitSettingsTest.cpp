#include "splitlogs/SplitSettings.h"

#include "common/ErrorState.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

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

TEST_F(SplitSettingsTest, ThereAreTenSplitsAndAnotherIsError9) {
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
