// The dialog for the general settings.
#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmGeneralSettings;
}

namespace logchecker {

// OK puts the values into memory and into the settings file; windows that are open stay as they
// are.
class frmGeneralSettings : public QDialog {
  Q_OBJECT

 public:
  explicit frmGeneralSettings(QWidget* parent = nullptr);
  ~frmGeneralSettings() override;

 signals:
  void hidden();

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void FillFields();
  void OnOk();

  std::unique_ptr<Ui::frmGeneralSettings> ui_;
};

}  // namespace logchecker
