#include "shell/ui/frmGeneralSettings.h"

#include <QHideEvent>

#include "common/GeneralSettings.h"
#include "common/Numbers.h"
#include "common/ui/Guide.h"
#include "common/ui/QtUserInterface.h"
#include "common/ui/StationQString.h"
#include "common/ui/TextBoxes.h"
#include "platform/Platform.h"
#include "ui_frmGeneralSettings.h"

namespace logchecker {

namespace {

constexpr double kMillisecondsASecond = 1000;
constexpr int kShownDigits = 15;

void Write(const char* key, const std::string& value) {
  Os().profiles.WriteString("General", key, value, gSettingsFile);
}

}  // namespace

frmGeneralSettings::frmGeneralSettings(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmGeneralSettings>()) {
  ui_->setupUi(this);
  SetGuidePage(*this, kGuideSetUp);
  SelectAllOnFocus(*ui_->txtNumberSplits);
  TypeDigitsOnly(*ui_->txtNumberSplits);
  FillFields();
  connect(ui_->cmdOK, &QPushButton::clicked, this, [this] { OnOk(); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { reject(); });
}

frmGeneralSettings::~frmGeneralSettings() = default;

void frmGeneralSettings::FillFields() {
  const GeneralSettings& settings = gGeneralSettings;
  ui_->txtNumberSplits->setText(QString::number(settings.NumberActiveSplits));
  ui_->txtSecondsDifference->setText(
      QString::number(settings.BreakDifferenceMS / kMillisecondsASecond, 'g', kShownDigits));
  ui_->chkDisplayCheckHH->setChecked(settings.DisplayCheckHH);
  ui_->chkDisplayBreakHH->setChecked(settings.DisplayBreakHH);
  ui_->chkDisplayAdvertHH->setChecked(settings.DisplayAdvertHH);
}

// The number is tested before it is rounded, so a pasted 0.4 passes and becomes 0. The tolerance is
// not tested at all; one that is too large to be held is the largest, since no tolerance would be
// the opposite of what was typed.
void frmGeneralSettings::OnOk() {
  const double splits = Val(FromQString(ui_->txtNumberSplits->text()));
  if (splits <= 0 || splits > kMostSplits) {
    ShowInformation("You can only have a 'Number of Splits' from 1 to " +
                    std::to_string(kMostSplits));
    return;
  }
  GeneralSettings& settings = gGeneralSettings;
  settings.NumberActiveSplits = ToInt16(splits);
  settings.DisplayAdvertHH = ui_->chkDisplayAdvertHH->isChecked();
  settings.DisplayBreakHH = ui_->chkDisplayBreakHH->isChecked();
  settings.DisplayCheckHH = ui_->chkDisplayCheckHH->isChecked();
  Write("DisplayAdvertHH", settings.DisplayAdvertHH ? "1" : "0");
  Write("DisplayBreakHH", settings.DisplayBreakHH ? "1" : "0");
  Write("DisplayCheckHH", settings.DisplayCheckHH ? "1" : "0");
  settings.BreakDifferenceMS =
      ToNearestInt32(Val(FromQString(ui_->txtSecondsDifference->text())) * kMillisecondsASecond);
  Write("BreakDifferenceMS", std::to_string(settings.BreakDifferenceMS));
  Write("NumberActiveSplits", std::to_string(settings.NumberActiveSplits));
  accept();
}

void frmGeneralSettings::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  // Not where the whole program is put away.
  if (!event->spontaneous()) emit hidden();
}

}  // namespace logchecker
