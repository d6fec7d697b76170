// The folder chooser.
#pragma once

#include <QFileDialog>
#include <functional>
#include <string>

class QLabel;

namespace logchecker {

class BrowseDialog : public QFileDialog {
  Q_OBJECT

 public:
  BrowseDialog(QWidget* owner, const QString& title, bool newStyle);

  // Goes to a folder; to none when it is not there.
  void SetSelection(const std::string& stationPath);
  void SetStatusText(const std::string& text);

 protected:
  void accept() override;

 private:
  // Says why when the folder can't be taken.
  bool Refuses(const QString& folder);

  QLabel* lblStatus_;
};

enum class BrowseMessage { kInitialized, kSelectionChanged };
// Is told when the dialog is ready, with the start path, and of each folder that is gone to.
using BrowseCallback =
    std::function<void(BrowseDialog& dialog, BrowseMessage message, const std::string& path)>;

// The chosen folder as a station path, or "" on cancel. A `startPath` that is not empty is gone to,
// and the folder in hand shows as the dialog's status text, unless the caller has a `callback` of
// its own for that. With `newStyle` folders can be made in the dialog.
std::string BrowseForFolder(QWidget* ownerWindow, const std::string& title,
                            const std::string& startPath, bool newStyle,
                            const BrowseCallback& callback);

}  // namespace logchecker
