#include "shell/PlatformLine.h"

#include "common/TextHelpers.h"

namespace logchecker {

namespace {

constexpr uint32_t kWindows9x = 1;
constexpr uint32_t kWindowsNT = 2;

std::string NameOfWindows9x(uint32_t minor, const std::string& designText) {
  if (minor == 0) return "Windows 95";
  if (minor == 10) return "Windows 98";
  return designText;
}

std::string NameOfWindowsNT(uint32_t major, uint32_t minor, const std::string& designText) {
  switch (major) {
    case 3:
      return "Windows NT v3." + std::to_string(minor);
    case 4:
      return "Windows NT v" + std::to_string(major);
    case 5:
      return minor == 0 ? "Windows 2000" : "Windows XP/2003";
    case 6:
      return "Windows Vista";
    default:
      return designText;
  }
}

std::string NameOfSystem(const OSVERSIONINFO& version, const std::string& designText) {
  switch (version.dwPlatformId) {
    case kWindows9x:
      return NameOfWindows9x(version.dwMinorVersion, designText);
    case kWindowsNT:
      return NameOfWindowsNT(version.dwMajorVersion, version.dwMinorVersion, designText);
    default:
      return version.description.empty() ? designText : version.description;
  }
}

}  // namespace

std::string PlatformLine(const OSVERSIONINFO& version, const std::string& designText) {
  std::string line = NameOfSystem(version, designText);
  const std::string servicePack = TrimAtNull(version.szCSDVersion, false);
  if (!servicePack.empty()) line += " (" + servicePack.substr(0, servicePack.find(',')) + ")";
  return line;
}

}  // namespace logchecker
