// For those who hand a path to a library that asks the host itself.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

// The host's path of a station path, in UTF-8.
std::string ToHostPath(std::string_view stationPath);

// The way back, in UTF-8: a folder that stands for a drive or a server's share becomes "X:\..." or
// "\\server\share..." again; any other path stays.
std::string FromHostPath(std::string_view hostPath);

}  // namespace logchecker
