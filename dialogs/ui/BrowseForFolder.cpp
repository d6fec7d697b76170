#include "dialogs/ui/BrowseForFolder.h"

#include <QGridLayout>
#include <QLabel>

#include "common/UserInterface.h"
#include "common/ui/SingleLineBoxes.h"
#include "common/ui/StationQString.h"
#include "dialogs/BrowsePath.h"
#include "dialogs/ui/HostFolder.h"

namespace logchecker {

namespace {

void ShowSelection(BrowseDialog& dialog, BrowseMessage message, const std::string& path) {
  if (message == BrowseMessage::kInitialized) {
    dialog.SetSelection(path);
  } else {
    dialog.SetStatusText(path);
  }
}

}  // namespace

BrowseDialog::BrowseDialog(QWidget* owner, const QString& title, bool newStyle)
    : QFileDialog(owner, title), lblStatus_(new QLabel(this)) {
  setObjectName("BrowseForFolder");
  // The system's own dialog has no place for the status text and none for the rule on names.
  setOption(QFileDialog::DontUseNativeDialog);
  setFileMode(QFileDialog::Directory);
  setOption(QFileDialog::ShowDirsOnly);
  setOption(QFileDialog::ReadOnly, !newStyle);
  lblStatus_->setObjectName("lblStatus");
  lblStatus_->setTextFormat(Qt::PlainText);
  lblStatus_->setWordWrap(true);
  if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
    grid->addWidget(lblStatus_, grid->rowCount(), 0, 1, grid->columnCount());
  }
}

void BrowseDialog::SetSelection(const std::string& stationPath) {
  const QString folder = HostFolder(stationPath);
  if (!folder.isEmpty()) setDirectory(folder);
}

void BrowseDialog::SetStatusText(const std::string& text) { lblStatus_->setText(ToQString(text)); }

void BrowseDialog::accept() {
  const QStringList chosen = selectedFiles();
  if (!chosen.isEmpty() && Refuses(chosen.constFirst())) return;
  QFileDialog::accept();
}

// The path is for a box and a settings file, where it is one line.
bool BrowseDialog::Refuses(const QString& folder) {
  std::string stationPath;
  std::string reason;
  if (!StationFolder(folder, &stationPath)) {
    reason = "characters that the station's code page can't hold";
  } else if (HasControlCharacters(folder)) {
    reason = "line breaks or other characters that no settings file can hold";
  } else {
    return false;
  }
  Ui().Show({"The folder's name has " + reason + ":\n" + stationPath, MessageIcon::kExclamation,
             MessageButtons::kOk, kProgramTitle});
  return true;
}

std::string BrowseForFolder(QWidget* ownerWindow, const std::string& title,
                            const std::string& startPath, bool newStyle,
                            const BrowseCallback& callback) {
  gBrowseStartPath = startPath;
  BrowseDialog dialog(ownerWindow, AsTitle(ToQString(title)), newStyle);
  if (!startPath.empty()) {
    const BrowseCallback tell = callback ? callback : BrowseCallback(ShowSelection);
    const auto changed = [&dialog, tell](const QString& path) {
      std::string stationPath;
      StationFolder(path, &stationPath);
      tell(dialog, BrowseMessage::kSelectionChanged, stationPath);
    };
    QObject::connect(&dialog, &QFileDialog::currentChanged, &dialog, changed);
    QObject::connect(&dialog, &QFileDialog::directoryEntered, &dialog, changed);
    tell(dialog, BrowseMessage::kInitialized, gBrowseStartPath);
  }
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return "";
  std::string stationPath;
  StationFolder(dialog.selectedFiles().constFirst(), &stationPath);
  return ChosenFolder(stationPath);
}

}  // namespace logchecker
