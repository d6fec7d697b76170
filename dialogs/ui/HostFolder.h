// Where a dialog of the desktop begins.
#pragma once

#include <QString>
#include <string>

namespace logchecker {

// The host's own path of a folder that the station wrote in its way; empty when it is not there.
QString HostFolder(const std::string& stationPath);

// The way back: the station path of a folder of the host. False when the code page can't hold it.
bool StationFolder(const QString& hostPath, std::string* stationPath);

}  // namespace logchecker
