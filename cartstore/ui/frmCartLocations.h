// The dialog in which the user says where each part of the Audiowall lies.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>
#include <string>

namespace Ui {
class frmCartLocations;
}
class QLineEdit;
class QPushButton;

namespace logchecker {

// OK puts the locations into memory and into the settings file, and opens the store anew. Escape
// and the close box leave everything as it was.
class frmCartLocations : public QDialog {
  Q_OBJECT

 public:
  explicit frmCartLocations(QWidget* parent = nullptr);
  ~frmCartLocations() override;

  // The file to write to.
  std::string SettingsFile;
  // "LOADED" while the dialog is up.
  std::string Tag;

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void FillRows();
  void OnOneLocation(bool one);
  void OnTextChanged();
  void CopyFirstRow();
  void OnBrowse(int16_t part);
  void OnDone();
  void TakeRow(int16_t part);
  QLineEdit* BoxOf(int16_t part) const;

  std::unique_ptr<Ui::frmCartLocations> ui_;
};

}  // namespace logchecker
