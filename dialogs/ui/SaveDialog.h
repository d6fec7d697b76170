// The dialog in which the user says where a file is to be saved.
#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QStringList>
#include <optional>
#include <string>
#include <vector>

namespace logchecker {

struct FileFilter {
  QString text;     // as the user reads it
  QString pattern;  // of the names that it shows
};

// Asks before it replaces a file, which is there when opening the name would find it: in whatever
// letter case, and Enter answers that with No. A name with a wildcard filters the list, beside the
// filters that are offered, and saves nothing.
class SaveDialog : public QFileDialog {
  Q_OBJECT

 public:
  // The first of the filters is preset. The folder is a station path.
  SaveDialog(QWidget* owner, const QString& title, const std::vector<FileFilter>& filters,
             const QString& defaultExtension, const std::string& folder);

  // Whether the dialog asks before a new file is made.
  void SetCreatePrompt(bool createPrompt) { createPrompt_ = createPrompt; }

  // Whether it asks before a file is replaced; it does unless told otherwise.
  void SetOverwritePrompt(bool overwritePrompt) { overwritePrompt_ = overwritePrompt; }

  // The chosen file as a station path; nothing when the user cancels. `presetName` stands in the
  // name's box at first. A name that the code page can't hold is refused with a message.
  std::optional<std::string> Ask(const QString& presetName);

 protected:
  void accept() override;

 private:
  bool EntersFolder(const QString& file);
  bool Refuses(const QString& file);
  void FilterBy(const QString& pattern);
  // `preset` is the answer that Enter gives.
  bool Agrees(const QString& question, QMessageBox::StandardButton preset);

  QStringList filters_;
  bool createPrompt_ = false;
  bool overwritePrompt_ = true;
};

}  // namespace logchecker
