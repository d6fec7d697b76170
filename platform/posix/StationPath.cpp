#include "platform/posix/StationPath.h"

#include <sys/stat.h>

#include <algorithm>
#include <cctype>

#include "platform/HostPaths.h"
#include "platform/StationText.h"
#include "platform/posix/FolderNames.h"
#include "platform/posix/UserFolders.h"

namespace logchecker {

namespace {

bool Exists(const std::string& path) {
  struct stat facts {};
  return lstat(path.c_str(), &facts) == 0;
}

// The system that the names come from drops full stops and blanks at the end of a name.
std::string NameThatIsKept(const std::string& name) {
  const size_t last = name.find_last_not_of(". ");
  return last == std::string::npos ? name : name.substr(0, last + 1);
}

// A host path with the name of each part as it is called there.
std::string WithFoundNames(const std::string& path, HostLookalike* lookalike) {
  if (path.empty() || Exists(path)) return path;
  std::string result = path[0] == '/' ? "/" : "";
  bool exists = true;
  size_t begin = path.find_first_not_of('/');
  while (begin != std::string::npos) {
    const size_t end = std::min(path.find('/', begin), path.size());
    const std::string name = path.substr(begin, end - begin);
    std::string found;
    std::string other;
    exists = exists && FindName(result, name, &found, &other);
    if (!other.empty() && lookalike->other.empty()) *lookalike = {result + found, result + other};
    result += exists ? found : NameThatIsKept(name);
    if (end < path.size()) result += '/';
    begin = path.find_first_not_of('/', end);
  }
  return result;
}

std::string WithFoundNames(const std::string& path) {
  HostLookalike ignored;
  return WithFoundNames(path, &ignored);
}

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

const std::string& HostWindowsFolder() { return WindowsFolderSlot().path; }

void SetHostWindowsFolder(const std::string& folder) {
  WindowsFolderSlot() = WindowsFolder(folder);
}

bool FindName(const std::string& hostFolder, const std::string& name, std::string* found,
              std::string* other) {
  other->clear();
  const std::string folder = hostFolder.empty() ? "." : hostFolder;
  if (Exists(folder + "/" + name)) {
    *found = name;
    return true;
  }
  if (FindFoldedName(folder, name, found, other)) return true;
  const std::string kept = NameThatIsKept(name);
  return kept != name && FindName(hostFolder, kept, found, other);
}

std::string HostPath(std::string_view stationPath, HostLookalike* lookalike) {
  const std::string path = WithoutDrive(ToUtf8(stationPath));
  const WindowsFolder& folder = WindowsFolderSlot();
  // That folder's name has been settled, so nothing of it is left to be seen in the path.
  if (path.rfind(folder.path + "/", 0) == 0) *lookalike = folder.lookalike;
  return WithFoundNames(path, lookalike);
}

std::string HostPath(std::string_view stationPath) {
  return WithFoundNames(WithoutDrive(ToUtf8(stationPath)));
}

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
