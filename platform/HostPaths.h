// For those who hand a path to a library that asks the host itself.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

// The host's path of a station path, in UTF-8.
std::string ToHostPath(std::string_view stationPath);

}  // namespace logchecker
