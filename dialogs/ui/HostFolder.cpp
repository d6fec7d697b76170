#include "dialogs/ui/HostFolder.h"

#include <QDir>

#include "common/ui/StationQString.h"
#include "platform/HostPaths.h"

namespace logchecker {

QString HostFolder(const std::string& stationPath) {
  if (stationPath.empty()) return {};
  const QString path = QString::fromStdString(ToHostPath(stationPath));
  return QDir(path).exists() ? path : QString();
}

bool StationFolder(const QString& hostPath, std::string* stationPath) {
  const std::string own = QDir::toNativeSeparators(hostPath).toStdString();
  return FromQString(QString::fromStdString(FromHostPath(own)), stationPath);
}

}  // namespace logchecker
