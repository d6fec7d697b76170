// The controls of the search window as its search wants them.
#include <QApplication>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWindow>
#include <algorithm>

#include "cartbrowser/ui/frmFindCart.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "ui_frmFindCart.h"

namespace logchecker {

namespace {

void SetTicked(QCheckBox* box, bool ticked) {
  const QSignalBlocker quiet(box);
  box->setChecked(ticked);
}

}  // namespace

void frmFindCart::ShowControls() {
  ShowHistory();
  ShowInput();
  ShowEnabled();
  {
    const QSignalBlocker quiet(ui_->tabFind);
    ui_->tabFind->setCurrentIndex(static_cast<int>(view().Tab));
  }
  ui_->lblSearchCart->setVisible(view().ProgressVisible);
  ui_->lblSearchCartNumber->setVisible(view().ProgressVisible);
  ui_->lblSearchCartNumber->setText(QString::number(view().ProgressCart));
  if (view().FindEnabled) ui_->lviewItems->ShowAddedRows();
  ShowHeight();
}

void frmFindCart::ShowHistory() {
  QStringList entries;
  for (const std::string& entry : history().Entries()) entries.push_back(ToQString(entry));
  QStringList shown;
  for (int i = 0; i < ui_->cmbSearchText->count(); ++i)
    shown.push_back(ui_->cmbSearchText->itemText(i));
  if (shown == entries) return;
  const QSignalBlocker quiet(ui_->cmbSearchText);
  ui_->cmbSearchText->clear();
  ui_->cmbSearchText->addItems(entries);
}

void frmFindCart::ShowInput() {
  const QString text = ToQString(input.SearchText);
  if (ui_->cmbSearchText->currentText() != text) {
    const QSignalBlocker quiet(ui_->cmbSearchText);
    ui_->cmbSearchText->setEditText(text);
  }
  const auto direction = static_cast<int>(input.Direction);
  {
    const QSignalBlocker quiet(ui_->cmbSearchDirection);
    ui_->cmbSearchDirection->setCurrentIndex(direction);
  }
  ui_->chkSearchFromStart->setText(
      kDirectionTexts[static_cast<size_t>(direction)].fromStartCaption);
  SetTicked(ui_->chkSearchFromStart, input.SearchFromStart);
  SetTicked(ui_->chkNotes, input.Notes);
  SetTicked(ui_->chkLimitLines, input.LimitLines);
  SetTicked(ui_->chkLine1, input.Lines[0]);
  SetTicked(ui_->chkLine2, input.Lines[1]);
  SetTicked(ui_->chkLine3, input.Lines[2]);
  SetTicked(ui_->chkTimeSearch, input.TimeSearch);
  if (FromQString(ui_->mskLength->displayText()) != input.Length) {
    const QSignalBlocker quiet(ui_->mskLength);
    ui_->mskLength->setText(ToQString(input.Length));
  }
  const QSignalBlocker quiet(ui_->comboLength);
  ui_->comboLength->setCurrentIndex(static_cast<int>(input.ToleranceRow));
}

void frmFindCart::ShowEnabled() {
  const FindCartView& shown = view();
  ui_->cmdFind->setDefault(shown.FindIsDefault);
  // Stop first, so that the focus has somewhere to go.
  ui_->cmdStop->setEnabled(shown.StopEnabled);
  ui_->cmdFind->setEnabled(shown.FindEnabled);
  for (QWidget* control :
       {static_cast<QWidget*>(ui_->cmbSearchText), static_cast<QWidget*>(ui_->lblFindText),
        static_cast<QWidget*>(ui_->lblFindDirection),
        static_cast<QWidget*>(ui_->cmbSearchDirection),
        static_cast<QWidget*>(ui_->chkSearchFromStart), static_cast<QWidget*>(ui_->chkNotes),
        static_cast<QWidget*>(ui_->chkTimeSearch), static_cast<QWidget*>(ui_->chkLimitLines)}) {
    control->setEnabled(shown.SearchEnabled);
  }
  ui_->frameDescriptions->setEnabled(shown.LinesEnabled);
  ui_->frameTimeSearch->setEnabled(shown.LengthEnabled);
}

// Of the frame that the desktop draws around the window: none before it is shown.
int frmFindCart::FrameHeight() const {
  if (windowHandle() == nullptr) return 0;
  const QMargins frame = windowHandle()->frameMargins();
  return frame.top() + frame.bottom();
}

// The heights are those of the whole window, with its frame. The collapsed window has one; the
// other can be made higher. A font that needs more room gets it in both.
void frmFindCart::ShowHeight() {
  const int frame = FrameHeight();
  if (shownHeight_ == view().Height && shownFrame_ == frame) return;
  shownHeight_ = view().Height;
  shownFrame_ = frame;
  ui_->lviewItems->hide();
  const int needed = layout()->minimumSize().height() + frame;
  const int more = std::max(needed - ToPixels(kFindCollapsedHeight), 0);
  const int height = ToPixels(shownHeight_) - frame + more;
  setMinimumHeight(height);
  setMaximumHeight(view().ResultsVisible ? QWIDGETSIZE_MAX : height);
  resize(width(), height);
  ui_->lviewItems->setVisible(view().ResultsVisible);
}

// Boxes have the window's colour behind them while they are enabled, and a button's otherwise.
void frmFindCart::ColourBoxes() {
  for (QWidget* box :
       {static_cast<QWidget*>(ui_->cmbSearchText), static_cast<QWidget*>(ui_->cmbSearchDirection),
        static_cast<QWidget*>(ui_->mskLength), static_cast<QWidget*>(ui_->comboLength)}) {
    QPalette colours = QApplication::palette(box);
    const QColor face = colours.color(QPalette::Active, QPalette::Button);
    const QColor window = colours.color(QPalette::Active, QPalette::Base);
    for (const auto role : {QPalette::Base, QPalette::Button}) {
      colours.setColor(role, window);
      colours.setColor(QPalette::Disabled, role, face);
    }
    box->setPalette(colours);
  }
}

}  // namespace logchecker
