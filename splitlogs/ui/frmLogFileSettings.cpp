#include "splitlogs/ui/frmLogFileSettings.h"

#include <algorithm>

#include "common/DatePicture.h"
#include "common/Dates.h"
#include "common/FolderHelpers.h"
#include "common/GeneralSettings.h"
#include "common/Lookalikes.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"
#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/LeastWidth.h"
#include "common/ui/QtUserInterface.h"
#include "common/ui/StationQString.h"
#include "common/ui/TextBoxes.h"
#include "dialogs/ui/BrowseForFolder.h"
#include "platform/Platform.h"
#include "platform/StationText.h"
#include "splitlogs/LogNameText.h"
#include "splitlogs/SplitSettings.h"
#include "ui_frmLogFileSettings.h"

namespace logchecker {

namespace {

constexpr int kLeastWidth = 520;  // pixels

std::string TextOf(const QLineEdit* box) { return FromQString(box->text()); }

}  // namespace

frmLogFileSettings::frmLogFileSettings(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmLogFileSettings>()) {
  ui_->setupUi(this);
  SetGuidePage(*this, kGuideSplit);
  HoldLeastWidth(*this, kLeastWidth);
  ConnectFields();
  SetSplitNumberLabel("1");
}

frmLogFileSettings::~frmLogFileSettings() = default;

void frmLogFileSettings::ConnectFields() {
  for (QLineEdit* box : findChildren<QLineEdit*>()) {
    SelectAllOnFocus(*box);
    TakeStationTextOnly(*box);
  }
  // The reconcile extension is left as it is typed: reading it makes it upper case.
  for (QLineEdit* box :
       {ui_->txtPreSuffix, ui_->txtFormat, ui_->txtFileExtension, ui_->txtLogTXChainCode}) {
    TypeInUpperCase(*box);
  }
  for (QLineEdit* box : {ui_->txtPreSuffix, ui_->txtFormat, ui_->txtFileExtension}) {
    connect(box, &QLineEdit::textChanged, this, [this] { UpdateSampleFilename(); });
  }
  connect(ui_->chkSuffix, &QCheckBox::toggled, this, [this] { UpdateSampleFilename(); });
  connect(ui_->cmdBrowseSource, &QPushButton::clicked, this, [this] { OnBrowse(); });
  connect(ui_->cmdOK, &QPushButton::clicked, this, [this] { Guarded([this] { OnOk(); }); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { reject(); });
}

void frmLogFileSettings::SetSplitNumberLabel(const std::string& text) {
  ui_->lblSplitNumber->setText(ToQString(text));
  SplitNumber_ = ToInt16(Val(text));
  FillFields();
}

void frmLogFileSettings::FillFields() {
  const SplitSettings& settings = SettingsOf(SplitNumber_);
  const auto fill = [](QLineEdit* box, const std::string& text) { box->setText(ToQString(text)); };
  fill(ui_->txtSplitName, settings.SplitName);
  fill(ui_->txtSourceDirectory, ToUpper(settings.LogSourceDirectory));
  fill(ui_->txtPreSuffix, settings.PreSuffix);
  ui_->chkSuffix->setChecked(settings.Suffix != 0);
  fill(ui_->txtFormat, settings.DateFormat);
  fill(ui_->txtFileExtension, settings.Extension);
  fill(ui_->txtReconcileFileExtension, settings.ReconcileExtension);
  fill(ui_->txtLogTXChainCode, settings.LogTXChainCode);
  UpdateSampleFilename();
}

void frmLogFileSettings::UpdateSampleFilename() {
  ui_->lblSampleFilename->clear();
  const std::optional<std::string> date = FormatDate(Today(), TextOf(ui_->txtFormat));
  ui_->lblSampleFilename->setText(
      date ? ToQString(LogNameText(*date, TextOf(ui_->txtPreSuffix), ui_->chkSuffix->isChecked(),
                                   TextOf(ui_->txtFileExtension)))
           : "The details are invalid");
}

// A cancelled chooser empties the box: this is meant.
void frmLogFileSettings::OnBrowse() {
  const std::string folder =
      BrowseForFolder(this, "Select Directory to copy Log files from",
                      TextOf(ui_->txtSourceDirectory), true, BrowseCallback());
  ui_->txtSourceDirectory->setText(ToQString(ToUpper(folder)));
}

void frmLogFileSettings::OnOk() {
  if (Trim(TextOf(ui_->txtSplitName)).empty()) {
    ShowInformation("You must give this split a name");
    return;
  }
  SplitNumber_ = std::max(SplitNumber_, int16_t{1});
  if (Trim(TextOf(ui_->txtSourceDirectory)).empty()) {
    ShowInformation("You must enter an Incoming Advert log Directory");
    return;
  }
  if (!MakeSourceDirectory()) return;
  ForgetToldLookalikes();
  TellLookalike(TextOf(ui_->txtSourceDirectory));
  WriteSettings();
  if (Val(Tag) == 0) {
    ShowInformation(std::string("These settings will take effect from the next time you start ") +
                    kProgramTitle);
  }
  accept();
}

// Offers to make a directory that isn't there. False when the user would rather go back.
bool frmLogFileSettings::MakeSourceDirectory() {
  const std::string directory = TextOf(ui_->txtSourceDirectory);
  if (DirectoryExists(directory)) return true;
  const MessageAnswer answer =
      Ui().Show({"Do you want to have the Source directory " + directory + " created for you?",
                 MessageIcon::kQuestion, MessageButtons::kYesNoCancel, kProgramTitle});
  if (answer == MessageAnswer::kYes) CreatePath(directory, false);
  return answer != MessageAnswer::kCancel;
}

void frmLogFileSettings::WriteSettings() {
  const std::string number = std::to_string(SplitNumber_);
  const auto write = [&](const char* section, const char* key, const std::string& value) {
    Os().profiles.WriteString(section, key + number, value, gSettingsFile);
  };
  write("General", "SplitName", TextOf(ui_->txtSplitName));
  write("General", "LogSourceDirectory", TextOf(ui_->txtSourceDirectory));
  write("General", "LogUpdateInterval", std::to_string(SettingsOf(SplitNumber_).LogUpdateInterval));
  write("LogFileName", "DateFormat", TextOf(ui_->txtFormat));
  write("LogFileName", "Extension", TextOf(ui_->txtFileExtension));
  write("LogFileName", "PreSuffix", TextOf(ui_->txtPreSuffix));
  write("LogFileName", "Suffix", ui_->chkSuffix->isChecked() ? "1" : "0");
  write("LogFileName", "LogTXChainCode", TextOf(ui_->txtLogTXChainCode));
  write("LogFileName", "ReconcileExtension", TextOf(ui_->txtReconcileFileExtension));
}

}  // namespace logchecker
