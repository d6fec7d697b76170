// Where a dialog of the desktop begins.
#pragma once

#include <QString>
#include <string>

namespace logchecker {

// The host's own path of a folder that the station wrote in its way; empty when it is not there.
QString HostFolder(const std::string& stationPath);

}  // namespace logchecker
