#include "tests/support/ui/DocumentsFolder.h"

#include <QByteArray>

#include "platform/HostPaths.h"

namespace logchecker {

struct DocumentsFolder::Before {
  QByteArray config = qgetenv("XDG_CONFIG_HOME");
};

DocumentsFolder::DocumentsFolder(const TempFolder& folder) : before_(std::make_unique<Before>()) {
  folder.WriteFile("user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"" + ToHostPath(folder.Path()) + "/\"\n");
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(ToHostPath(folder.Path())));
}

DocumentsFolder::~DocumentsFolder() {
  if (before_->config.isNull()) {
    qunsetenv("XDG_CONFIG_HOME");
  } else {
    qputenv("XDG_CONFIG_HOME", before_->config);
  }
}

}  // namespace logchecker
