// From a path as the station wrote it to a path of the host.
#pragma once

#include <string>
#include <string_view>

#include "platform/posix/HostEntry.h"

namespace logchecker {

// Both separators serve, a drive "X:" is the folder drives/x in the Windows folder, and a share
// "\\server\share" is drives/unc/server/share there. Each part is found exactly if it exists so,
// else without regard to letter case, since the dialogs store paths in upper case. In a folder that
// can't be listed it is looked for as it is written and in lower case. A name that ends in full
// stops or blanks and isn't there loses them, as it does on the system that the names come from.
// Parts that do not exist stay as they are written otherwise. The result is in UTF-8.
std::string HostPath(std::string_view stationPath);

// The same; the first part that could stand for several entries is put down in `lookalike`.
std::string HostPath(std::string_view stationPath, HostLookalike* lookalike);

// The same, with what was learnt on the way.
HostEntry FindEntry(std::string_view stationPath);

// The same before any part is looked for: in UTF-8, with "/" throughout, and the folder of the
// drive or share in its place.
std::string HostSpelling(std::string_view stationPath);

// The folder that holds profile files, drives and the registry; a host path, whose parts are found
// as those of a station path are.
const std::string& HostWindowsFolder();
void SetHostWindowsFolder(const std::string& folder);

}  // namespace logchecker
