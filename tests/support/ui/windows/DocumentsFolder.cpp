#include "tests/support/ui/DocumentsFolder.h"

#include <QSettings>

#include "platform/HostPaths.h"

namespace logchecker {

// Where the system keeps what the user said in the folder's properties.
struct DocumentsFolder::Before {
  QSettings folders{
      "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell "
      "Folders",
      QSettings::NativeFormat};
  QVariant documents = folders.value("Personal");
};

DocumentsFolder::DocumentsFolder(const TempFolder& folder) : before_(std::make_unique<Before>()) {
  before_->folders.setValue("Personal", QString::fromStdString(ToHostPath(folder.Path())));
  before_->folders.sync();
}

DocumentsFolder::~DocumentsFolder() { before_->folders.setValue("Personal", before_->documents); }

}  // namespace logchecker
