#include "common/ui/HostFolder.h"

#include <QDir>

#include "platform/HostPaths.h"

namespace logchecker {

QString HostFolder(const std::string& stationPath) {
  if (stationPath.empty()) return {};
  const QString path = QString::fromStdString(ToHostPath(stationPath));
  return QDir(path).exists() ? path : QString();
}

}  // namespace logchecker
