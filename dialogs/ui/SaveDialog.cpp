#include "dialogs/ui/SaveDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <algorithm>

#include "common/Lookalikes.h"
#include "common/UserInterface.h"
#include "common/ui/Guide.h"
#include "common/ui/StationQString.h"
#include "dialogs/ui/HostFolder.h"
#include "platform/HostPaths.h"

namespace logchecker {

namespace {

// As the host has it: it may be there in another letter case, and opening it will find it then.
QFileInfo FactsOf(const std::string& stationPath) {
  return QFileInfo(QString::fromStdString(ToHostPath(stationPath)));
}

// The toolkit writes slashes on every system; the user and the settings read the system's own.
QString Chosen(const QStringList& files) { return QDir::toNativeSeparators(files.constFirst()); }

bool HasWildcard(const QString& name) { return name.contains('*') || name.contains('?'); }

}  // namespace

SaveDialog::SaveDialog(QWidget* owner, const QString& title, const std::vector<FileFilter>& filters,
                       const QString& defaultExtension, const std::string& folder)
    : QFileDialog(owner, title) {
  setObjectName("CommonDialog1");
  SetGuidePage(*this, kGuideSaveAndPrint);
  // The system's own dialogs keep neither the rule on wildcards nor that on names.
  setOption(QFileDialog::DontUseNativeDialog);
  // Its own question would take a name for markup.
  setOption(QFileDialog::DontConfirmOverwrite);
  setAcceptMode(QFileDialog::AcceptSave);
  setFileMode(QFileDialog::AnyFile);
  setOption(QFileDialog::HideNameFilterDetails);
  for (const FileFilter& filter : filters) filters_ << filter.text + " (" + filter.pattern + ")";
  setNameFilters(filters_);
  setDefaultSuffix(defaultExtension);
  const QString start = HostFolder(folder);
  if (!start.isEmpty()) setDirectory(start);
}

std::optional<std::string> SaveDialog::Ask(const QString& presetName) {
  auto* name = findChild<QLineEdit*>("fileNameEdit");
  if (name != nullptr) {
    name->setText(presetName);
    name->selectAll();
  }
  if (exec() != QDialog::Accepted || selectedFiles().isEmpty()) return std::nullopt;
  return FromQString(Chosen(selectedFiles()));
}

void SaveDialog::accept() {
  auto* name = findChild<QLineEdit*>("fileNameEdit");
  if (name != nullptr && HasWildcard(name->text())) {
    FilterBy(name->text());
    name->selectAll();
    return;
  }
  const QStringList files = selectedFiles();
  if (!files.isEmpty() && (EntersFolder(Chosen(files)) || Refuses(Chosen(files)))) return;
  QFileDialog::accept();
}

// Beside the dialog's own filters, which can still be picked, and in place of the last one that was
// typed.
void SaveDialog::FilterBy(const QString& pattern) {
  const auto offered = std::find_if(filters_.begin(), filters_.end(), [&](const QString& filter) {
    return filter.endsWith("(" + pattern + ")", Qt::CaseInsensitive);
  });
  if (offered != filters_.end()) {
    selectNameFilter(*offered);
    return;
  }
  // The toolkit takes brackets for the ends of the pattern, and blanks for the ends of one of
  // several.
  QString taken = pattern;
  for (const QChar mark : QString("() ")) taken.replace(mark, '?');
  const QString typed = pattern + " (" + taken + ")";
  setNameFilters(filters_ + QStringList(typed));
  selectNameFilter(typed);
}

// A folder whose name was typed, in whatever letter case, is entered, and the box is empty for the
// file.
bool SaveDialog::EntersFolder(const QString& file) {
  std::string stationPath;
  if (!FromQString(file, &stationPath)) return false;
  const QFileInfo facts = FactsOf(stationPath);
  if (!facts.isDir()) return false;
  setDirectory(facts.absoluteFilePath());
  if (auto* name = findChild<QLineEdit*>("fileNameEdit")) name->clear();
  return true;
}

bool SaveDialog::Refuses(const QString& file) {
  std::string stationPath;
  if (!FromQString(file, &stationPath)) {
    Ui().Show(
        {"The file's name has characters that the station's code page can't hold:\n" + stationPath,
         MessageIcon::kExclamation, MessageButtons::kOk, kProgramTitle});
    return true;
  }
  const QFileInfo facts = FactsOf(stationPath);
  if (facts.isDir()) return false;
  TellLookalike(stationPath);
  if (facts.exists() && !overwritePrompt_) return false;
  if (facts.exists()) {
    return !Agrees(tr("%1 already exists.\n\nReplace it?").arg(facts.fileName()), QMessageBox::No);
  }
  if (!createPrompt_ || !facts.dir().exists()) return false;
  return !Agrees(tr("%1\nThis file does not exist.\n\nCreate the file?").arg(facts.fileName()),
                 QMessageBox::Yes);
}

bool SaveDialog::Agrees(const QString& question, QMessageBox::StandardButton preset) {
  QMessageBox box(QMessageBox::Question, windowTitle(), question,
                  QMessageBox::Yes | QMessageBox::No, this);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(preset);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace logchecker
