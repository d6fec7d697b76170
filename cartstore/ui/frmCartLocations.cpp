#include "cartstore/ui/frmCartLocations.h"

#include <QHideEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "cartstore/AudiowallParts.h"
#include "cartstore/OpenAudiowall.h"
#include "common/FolderHelpers.h"
#include "common/Lookalikes.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"
#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/LeastWidth.h"
#include "common/ui/StationQString.h"
#include "common/ui/TextBoxes.h"
#include "dialogs/ui/BrowseForFolder.h"
#include "platform/Platform.h"
#include "platform/StationText.h"
#include "ui_frmCartLocations.h"

namespace logchecker {

namespace {

constexpr int kLeastWidth = 560;  // pixels

std::string TrimmedUpper(const std::string& text) { return ToUpper(Trim(text)); }

void DropLastBackslash(std::string& text) {
  if (!text.empty() && text.back() == '\\') text.pop_back();
}

}  // namespace

frmCartLocations::frmCartLocations(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmCartLocations>()) {
  ui_->setupUi(this);
  SetGuidePage(*this, kGuideCarts);
  HoldLeastWidth(*this, kLeastWidth);
  connect(ui_->chkUseOneCartLocation, &QCheckBox::toggled, this,
          [this](bool one) { OnOneLocation(one); });
  for (int16_t part = 1; part <= kAudiowallParts; ++part) {
    SelectAllOnFocus(*BoxOf(part));
    TakeStationTextOnly(*BoxOf(part));
    connect(BoxOf(part), &QLineEdit::textChanged, this, [this] { OnTextChanged(); });
    connect(findChild<QPushButton*>(QString("cmdChangeCartLocation%1").arg(part)),
            &QPushButton::clicked, this, [this, part] { OnBrowse(part); });
  }
  connect(ui_->cmdDone, &QPushButton::clicked, this, [this] { Guarded([this] { OnDone(); }); });
  FillRows();
  Tag = "LOADED";
  Ui().SetMousePointer(MousePointer::kDefault);
}

frmCartLocations::~frmCartLocations() = default;

QLineEdit* frmCartLocations::BoxOf(int16_t part) const {
  return findChild<QLineEdit*>(QString("txtCartLocations%1").arg(part));
}

void frmCartLocations::FillRows() {
  bool allEqual = true;
  for (int16_t part = 1; part <= kAudiowallParts; ++part) {
    BoxOf(part)->setText(ToQString(TrimmedUpper(PartEntry(part).Path)));
    allEqual = allEqual && BoxOf(part)->text() == BoxOf(1)->text();
  }
  ui_->chkUseOneCartLocation->setChecked(allEqual);
}

void frmCartLocations::OnOneLocation(bool one) {
  if (one) CopyFirstRow();
  for (int16_t part = 2; part <= kAudiowallParts; ++part) {
    for (const char* name : {"Label2_%1", "txtCartLocations%1", "cmdChangeCartLocation%1"}) {
      findChild<QWidget*>(QString(name).arg(part))->setEnabled(!one);
    }
  }
}

void frmCartLocations::OnTextChanged() {
  if (ui_->chkUseOneCartLocation->isChecked()) CopyFirstRow();
}

void frmCartLocations::CopyFirstRow() {
  for (int16_t part = 2; part <= kAudiowallParts; ++part) {
    const QSignalBlocker quiet(BoxOf(part));
    BoxOf(part)->setText(BoxOf(1)->text());
  }
}

void frmCartLocations::OnBrowse(int16_t part) {
  const std::string folder =
      BrowseForFolder(this, "Select the directory that the audio is stored in",
                      FromQString(BoxOf(part)->text()), true, BrowseCallback());
  if (!folder.empty()) BoxOf(part)->setText(ToQString(TrimmedUpper(folder)));
}

void frmCartLocations::OnDone() {
  Ui().SetMousePointer(MousePointer::kHourglass);
  for (int16_t part = 1; part <= kAudiowallParts; ++part) TakeRow(part);
  for (int16_t part = 1; part <= kAudiowallParts; ++part) {
    std::string& path = PartEntry(part).Path;
    DropLastBackslash(path);
    Os().profiles.WriteString("FileLocations", "Carts" + std::to_string(part), path, SettingsFile);
  }
  ForgetToldLookalikes();
  for (const AudiowallPart& entry : gAudiowallParts) TellLookalike(entry.Path);
  OpenAudiowall(0, false);
  accept();
  Ui().SetMousePointer(MousePointer::kDefault);
}

// Takes a row's text into the part's location, and makes the directory where it isn't there. What
// the box holds in the end counts: with one directory for all it has taken row 1's text again.
void frmCartLocations::TakeRow(int16_t part) {
  std::string text = TrimmedUpper(FromQString(BoxOf(part)->text()));
  DropLastBackslash(text);
  BoxOf(part)->setText(ToQString(text));
  std::string& path = PartEntry(part).Path;
  path = TrimmedUpper(FromQString(BoxOf(part)->text()));
  // An empty row has no directory to make, which some systems would say for each of them.
  if (!DirectoryExists(path) && !path.empty()) CreatePath(path, false);
}

void frmCartLocations::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  if (!event->spontaneous()) Tag.clear();
}

}  // namespace logchecker
