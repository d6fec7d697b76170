#include "platform/posix/PosixSystemFacts.h"

#include <sys/utsname.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <filesystem>

#include "platform/StationText.h"
#include "platform/posix/StationPath.h"

namespace logchecker {

namespace {

std::string ProgramFile() {
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
  return length > 0 ? std::string(path, static_cast<size_t>(length)) : std::string();
}

std::string AsStationText(const std::string& utf8) {
  std::string text;
  FromUtf8(utf8, &text);
  return text;
}

}  // namespace

std::string PosixSystemFacts::ProgramFolder() {
  const std::string file = ProgramFile();
  return AsStationText(file.substr(0, file.find_last_of('/')));
}

std::string PosixSystemFacts::ProgramName() {
  const std::string file = ProgramFile();
  return AsStationText(std::filesystem::path(file).stem().string());
}

std::string PosixSystemFacts::WindowsFolder() { return AsStationText(HostWindowsFolder()); }

bool PosixSystemFacts::SetWindowsFolder(const std::string& folder) {
  std::error_code failure;
  std::string whole = std::filesystem::absolute(folder, failure).lexically_normal().string();
  while (whole.size() > 1 && whole.back() == '/') whole.pop_back();
  std::string text;
  if (failure || !FromUtf8(whole, &text)) return false;
  SetHostWindowsFolder(whole);
  return true;
}

OSVERSIONINFO PosixSystemFacts::Version() {
  OSVERSIONINFO version;
  utsname names{};
  if (uname(&names) == 0) {
    std::sscanf(names.release, "%u.%u.%u", &version.dwMajorVersion, &version.dwMinorVersion,
                &version.dwBuildNumber);
    version.description = std::string(names.sysname) + " " + names.release;
  }
  return version;
}

}  // namespace logchecker
