#include "shell/PlatformLine.h"

#include <gtest/gtest.h>

namespace logchecker {
namespace {

OSVERSIONINFO Windows(uint32_t platform, uint32_t major, uint32_t minor) {
  OSVERSIONINFO version;
  version.dwPlatformId = platform;
  version.dwMajorVersion = major;
  version.dwMinorVersion = minor;
  return version;
}

TEST(PlatformLine, NamesTheSystem) {
  struct Row {
    uint32_t platform, major, minor;
    const char* text;
  };
  const Row rows[] = {
      {1, 4, 0, "Windows 95"},      {1, 4, 10, "Windows 98"},       {1, 9, 0, "Windows 95"},
      {1, 4, 90, "as designed"},    {2, 3, 51, "Windows NT v3.51"}, {2, 4, 0, "Windows NT v4"},
      {2, 4, 7, "Windows NT v4"},   {2, 5, 0, "Windows 2000"},      {2, 5, 1, "Windows XP/2003"},
      {2, 5, 2, "Windows XP/2003"}, {2, 6, 0, "Windows Vista"},     {2, 6, 1, "Windows Vista"},
      {2, 10, 0, "as designed"},    {3, 5, 0, "as designed"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(PlatformLine(Windows(row.platform, row.major, row.minor), "as designed"), row.text)
        << row.platform << ' ' << row.major << ' ' << row.minor;
  }
}

TEST(PlatformLine, TheServicePackStandsBehindUpToItsFirstComma) {
  OSVERSIONINFO version = Windows(2, 5, 1);
  version.szCSDVersion = "Service Pack 2, v.3264";
  EXPECT_EQ(PlatformLine(version, ""), "Windows XP/2003 (Service Pack 2)");
  version.szCSDVersion = std::string("Service Pack 3\0rest", 19);
  EXPECT_EQ(PlatformLine(version, ""), "Windows XP/2003 (Service Pack 3)");
  version.szCSDVersion = std::string("\0rest", 5);
  EXPECT_EQ(PlatformLine(version, ""), "Windows XP/2003");
}

TEST(PlatformLine, AnUnknownWindowsKeepsTheDesignTextAndStillGetsItsServicePack) {
  OSVERSIONINFO version = Windows(2, 11, 0);
  version.szCSDVersion = "SP1";
  EXPECT_EQ(PlatformLine(version, "Windows"), "Windows (SP1)");
}

TEST(PlatformLine, AnotherSystemDescribesItself) {
  OSVERSIONINFO version;
  version.description = "Linux 6.1";
  EXPECT_EQ(PlatformLine(version, "x"), "Linux 6.1");
}

}  // namespace
}  // namespace logchecker
