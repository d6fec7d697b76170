// From a path as the station wrote it to a path of the host.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

// Both separators serve, a drive "X:" is the folder drives/x in the Windows folder, and a share
// "\\server\share" is drives/unc/server/share there. Each part is found exactly if it exists so,
// else without regard to letter case, since the dialogs store paths in upper case. Parts that do
// not exist stay as they are written. The result is in UTF-8.
std::string HostPath(std::string_view stationPath);

// The folder that holds profile files, drives and the registry; a host path, whose parts are found
// as those of a station path are.
const std::string& HostWindowsFolder();
void SetHostWindowsFolder(const std::string& folder);

// `name` as it is called in the folder `hostFolder`; false when nothing there bears it, whatever
// the letter case. Of several that differ only in case the exact one is taken, else the first in
// byte order.
bool FindName(const std::string& hostFolder, const std::string& name, std::string* found);

}  // namespace logchecker
