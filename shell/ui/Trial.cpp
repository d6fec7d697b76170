#include "shell/ui/Trial.h"

#include <QDir>
#include <QFile>

#include "common/Trouble.h"
#include "common/UserInterface.h"
#include "common/ui/StationQString.h"
#include "platform/Endings.h"
#include "platform/NoRegistry.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

constexpr char kSettings[] = "/velmar";  // apart from what else may come into the folder

void Tell(const std::string& why) {
  Ui().Show({"The made-up station can't be written:\n" + why +
                 "\n\nMake room in the folder for temporary files, " +
                 FromQString(QDir::toNativeSeparators(QDir::tempPath())) +
                 ", and see that you may write there. Then try again.",
             MessageIcon::kCritical, MessageButtons::kOk, kProgramTitle});
}

}  // namespace

bool Trial::Begin(const WriteMadeUpStation& write) {
  folder_ = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/logchecker-try-XXXXXX");
  if (!folder_->isValid()) {
    Tell(FromQString(folder_->errorString()));
    return false;
  }
  RemoveFolderWhenEnded(QFile::encodeName(folder_->path()).toStdString());
  const QByteArray settings = QFile::encodeName(folder_->path() + kSettings);
  if (!Os().system.SetWindowsFolder(settings.toStdString())) {
    Tell("its folder's name has characters that the code page can't hold");
    return false;
  }
  UseNoRegistry();
  try {
    write(Os().system.WindowsFolder());
  } catch (const Trouble& trouble) {
    Tell(trouble.what());
    return false;
  }
  return true;
}

void Trial::End() {
  if (!folder_) return;
  folder_.reset();
  RemoveFolderWhenEnded("");
}

}  // namespace logchecker
