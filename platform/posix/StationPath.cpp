#include "platform/posix/StationPath.h"

#include <algorithm>
#include <cctype>

#include "platform/HostPaths.h"
#include "platform/StationText.h"
#include "platform/posix/UserFolders.h"

namespace logchecker {

namespace {

// Settings are read and written by host paths, and looked for by station paths, which are found in
// any letter case. Both must mean the same folder, so its name is settled once.
struct WindowsFolder {
  explicit WindowsFolder(const std::string& wanted) : path(WithFoundNames(wanted, &lookalike)) {}

  HostLookalike lookalike;
  std::string path;
};

WindowsFolder& WindowsFolderSlot() {
  static WindowsFolder folder(UserConfigFolder() + "/velmar");
  return folder;
}

// The path with "/" throughout and the drive or share replaced by its folder.
std::string WithoutDrive(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  if (path.size() >= 2 && path[1] == ':' &&
      std::isalpha(static_cast<unsigned char>(path[0])) != 0) {
    const char drive = static_cast<char>(std::tolower(static_cast<unsigned char>(path[0])));
    std::string rest = path.substr(2);
    if (!rest.empty() && rest[0] != '/') rest.insert(0, "/");
    return HostWindowsFolder() + "/drives/" + drive + rest;
  }
  if (path.size() > 2 && path[0] == '/' && path[1] == '/' && path[2] != '/') {
    return HostWindowsFolder() + "/drives/unc" + path.substr(1);
  }
  return path;
}

}  // namespace

std::string HostSpelling(std::string_view stationPath) { return WithoutDrive(ToUtf8(stationPath)); }

const std::string& HostWindowsFolder() { return WindowsFolderSlot().path; }

void SetHostWindowsFolder(const std::string& folder) {
  WindowsFolderSlot() = WindowsFolder(folder);
}

std::string HostPath(std::string_view stationPath, HostLookalike* lookalike) {
  const std::string path = HostSpelling(stationPath);
  const WindowsFolder& folder = WindowsFolderSlot();
  // That folder's name has been settled, so nothing of it is left to be seen in the path.
  if (path.rfind(folder.path + "/", 0) == 0) *lookalike = folder.lookalike;
  return WithFoundNames(path, lookalike);
}

HostEntry FindEntry(std::string_view stationPath) {
  return FindHostEntry(HostSpelling(stationPath));
}

std::string HostPath(std::string_view stationPath) { return FindEntry(stationPath).path; }

std::string ToHostPath(std::string_view stationPath) { return HostPath(stationPath); }

std::string FromHostPath(std::string_view hostPath) {
  const std::string drives = HostWindowsFolder() + "/drives/";
  if (hostPath.substr(0, drives.size()) != drives) return std::string(hostPath);
  std::string path(hostPath.substr(drives.size()));
  const std::string shares = "unc/";
  const bool isShare = path.rfind(shares, 0) == 0;
  const bool isDrive = path.size() == 1 || (path.size() > 1 && path[1] == '/');
  if (!isShare && !isDrive) return std::string(hostPath);
  std::replace(path.begin(), path.end(), '/', '\\');
  if (isShare) return "\\\\" + path.substr(shares.size());
  return path.substr(0, 1) + ":" + (path.size() > 1 ? path.substr(1) : "\\");
}

}  // namespace logchecker
