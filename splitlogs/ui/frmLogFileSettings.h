// The dialog for the settings of one split.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>
#include <string>

namespace Ui {
class frmLogFileSettings;
}

namespace logchecker {

// Shows the settings in memory and writes the file; the settings in memory stay, and whoever opened
// the dialog reads them again. Begins with split 1.
class frmLogFileSettings : public QDialog {
  Q_OBJECT

 public:
  explicit frmLogFileSettings(QWidget* parent = nullptr);
  ~frmLogFileSettings() override;

  // The text of the hidden label that names the split; setting it fills the fields.
  void SetSplitNumberLabel(const std::string& text);

  // A number other than 0 tells that the settings take effect at once; without it the user is told
  // that they do at the next start.
  std::string Tag;

 private:
  void ConnectFields();
  void FillFields();
  void UpdateSampleFilename();
  void OnBrowse();
  void OnOk();
  bool MakeSourceDirectory();
  void WriteSettings();

  std::unique_ptr<Ui::frmLogFileSettings> ui_;
  int16_t SplitNumber_ = 0;
};

}  // namespace logchecker
