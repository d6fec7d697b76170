#include "checking/ui/frmCheckBreaks.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QShortcut>
#include <QToolButton>
#include <utility>
#include <vector>

#include "checking/ExportFolder.h"
#include "checking/ExportListViewToCSV.h"
#include "checking/ui/ResultsView.h"
#include "common/PathText.h"
#include "common/TimeText.h"
#include "common/UserInterface.h"
#include "common/ui/CompactFont.h"
#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/Icons.h"
#include "common/ui/QtUserInterface.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "dialogs/ui/SaveDialog.h"
#include "splitlogs/SplitLogTable.h"

namespace logchecker {

namespace {

// All in twips.
constexpr int kMargin = 120;
constexpr int kGap = 60;
constexpr int kButtonSize = 375;
constexpr int kListTop = 660;
constexpr int kProgressHeight = 240;

constexpr int kIconPixels = 17;
constexpr int kSmallestHeading = 9;  // pixels

}  // namespace

frmCheckBreaks::frmCheckBreaks(std::function<int32_t()> day)
    : day_(std::move(day)), inner_(new QWidget) {
  setObjectName("frmCheckBreaks");
  SetGuidePage(*this, kGuideWhy);
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle("Check Split Times");
  setWindowIcon(IconNamed("check-day"));
  BuildControls();
  setWidget(inner_);
  inner_->setFocusProxy(lvwResults_);
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, this, [this] { close(); });
  resize(ToPixels(kDesignWidth), ToPixels(kDesignHeight));
}

void frmCheckBreaks::BuildControls() {
  Label1_ = new QLabel("These ad breaks did not match in all splits:", inner_);
  Label1_->setObjectName("Label1");
  Label1_->setWordWrap(true);
  lvwResults_ = new ResultsView(check_.lvwResults, inner_);
  lvwResults_->setObjectName("lvwResults");
  lvwResults_->setAccessibleName(Label1_->text());
  lvwResults_->setAccessibleDescription(
      "Keys: Enter lines all splits up on the row, F8 and Shift+F8 go to the next and the previous "
      "one, Escape closes");
  lvwResults_->move(ToPixels(kMargin), ToPixels(kListTop));
  connect(lvwResults_, &ResultsView::rowChosen, this, [this] { OnRowChosen(); });

  picNoResults_ = new QFrame(inner_);
  picNoResults_->setObjectName("picNoResults");
  picNoResults_->setFrameShape(QFrame::StyledPanel);
  picNoResults_->setAutoFillBackground(true);
  picNoResults_->setBackgroundRole(QPalette::Base);
  picNoResults_->hide();
  auto* picture = new QLabel(picNoResults_);
  picture->setPixmap(IconNamed("no-problems").pixmap(ToPixels(2 * kButtonSize)));
  auto* words = new QLabel("There were no problems found.", picNoResults_);
  words->setObjectName("lblNoResultsDesc");
  words->setWordWrap(true);
  auto* row = new QHBoxLayout(picNoResults_);
  row->addStretch();
  row->addWidget(picture);
  row->addWidget(words);
  row->addStretch();

  ProgressBar1_ = new QProgressBar(inner_);
  ProgressBar1_->setObjectName("ProgressBar1");
  ProgressBar1_->setAccessibleName("How far the check is");
  ProgressBar1_->setTextVisible(false);
  ProgressBar1_->setRange(0, 1);
  ProgressBar1_->setValue(0);

  const auto button = [this](const char* name, const char* icon, const char* says,
                             const char* tip) {
    auto* made = new QToolButton(inner_);
    made->setObjectName(name);
    made->setIcon(IconNamed(icon));
    made->setIconSize(QSize(kIconPixels, kIconPixels));
    made->setToolTip(tip);
    made->setAccessibleName(says);
    made->setFocusPolicy(Qt::StrongFocus);
    made->setEnabled(false);
    made->resize(ToPixels(kButtonSize), ToPixels(kButtonSize));
    return made;
  };
  cmdSave_ = button("cmdSave", "save", "Save", "Export to a CSV File");
  cmdPrint_ = button("cmdPrint", "print", "Print", "Print the Report");
  connect(cmdSave_, &QToolButton::clicked, this, [this] { OnSave(); });
  cmdPrint_->setAccessibleDescription(cmdPrint_->toolTip() + ". Key: Ctrl+P");
  connect(cmdPrint_, &QToolButton::clicked, this, [this] { PrintDetails(); });
}

void frmCheckBreaks::Load(const QSize& clientArea) {
  move((clientArea.width() - width()) / 2, (clientArea.height() - height()) / 2);
  check_.BuildColumns();
  lvwResults_->Refresh();
  lvwResults_->ShareColumns(false);
  resize(ToPixels(kDesignWidth), height());
  show();
  Ui().Yield();
}

void frmCheckBreaks::changeEvent(QEvent* event) {
  ChildWindow::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitTexts();
}

QWidget* frmCheckBreaks::FirstControl() { return lvwResults_; }

void frmCheckBreaks::LayOut() {
  const int width = ToTwips(inner_->width());
  const int height = ToTwips(inner_->height());
  const int printLeft = width - kMargin - kButtonSize;
  cmdPrint_->move(ToPixels(printLeft), ToPixels(kMargin));
  cmdSave_->move(ToPixels(printLeft - kGap - kButtonSize), ToPixels(kMargin));
  Label1_->setGeometry(ToPixels(kMargin), ToPixels(kGap), cmdSave_->x() - ToPixels(kMargin + kGap),
                       ToPixels(kListTop - 2 * kGap));
  const int progressTop = height - kProgressHeight - kGap;
  ProgressBar1_->setGeometry(ToPixels(kGap), ToPixels(progressTop), ToPixels(width - kMargin),
                             ToPixels(kProgressHeight));
  lvwResults_->resize(ToPixels(width - 2 * kMargin), ToPixels(progressTop - kGap - kListTop));
  lvwResults_->ShareColumns(true);
  picNoResults_->setGeometry(lvwResults_->geometry());
  FitTexts();
}

// The heading takes a smaller font where it would not fit, and the panel's words stand in one line
// where there is room for it.
void frmCheckBreaks::FitTexts() {
  const auto fits = [this] {
    return Label1_->heightForWidth(Label1_->width()) <= Label1_->height();
  };
  Label1_->setFont(font());
  QFont smaller = CompactFont();
  for (int size = smaller.pixelSize(); !fits() && size >= kSmallestHeading; --size) {
    smaller.setPixelSize(size);
    Label1_->setFont(smaller);
  }
  auto* words = picNoResults_->findChild<QLabel*>("lblNoResultsDesc");
  const int room = picNoResults_->width() - ToPixels(4 * kButtonSize);
  words->setMinimumWidth(
      qBound(0, words->fontMetrics().horizontalAdvance(words->text()) + 2, qMax(room, 0)));
}

void frmCheckBreaks::CheckBreaks() {
  const ProgressWatch watch(
      [this](int32_t value, int32_t maximum) { ShowProgress(value, maximum); });
  cmdPrint_->setEnabled(false);
  cmdSave_->setEnabled(false);
  check_.lvwResults.ListItems.clear();
  lvwResults_->Refresh();
  check_.CheckBreaks();
  ShowOutcome();
}

// Painted at once, since no event runs while the check does; a step that moves nothing on the
// screen is passed over.
void frmCheckBreaks::ShowProgress(int32_t value, int32_t maximum) {
  constexpr int kSteps = 100;
  const bool moved =
      value == 0 || ProgressBar1_->maximum() != maximum ||
      int64_t{kSteps} * value / maximum != int64_t{kSteps} * ProgressBar1_->value() / maximum;
  if (!moved) return;
  ProgressBar1_->setRange(0, maximum);
  ProgressBar1_->setValue(value);
  if (value == 0) return;
  ProgressBar1_->repaint();
  lvwResults_->TakeAddedRows();
}

void frmCheckBreaks::ShowOutcome() {
  lvwResults_->TakeAddedRows();
  lvwResults_->FitColumns();
  cmdPrint_->setEnabled(check_.cmdPrintEnabled);
  cmdSave_->setEnabled(check_.cmdSaveEnabled);
  picNoResults_->setVisible(check_.picNoResultsVisible);
  if (check_.picNoResultsVisible) picNoResults_->raise();
  // The list has the focus, whatever lies over it.
  const auto* words = picNoResults_->findChild<QLabel*>("lblNoResultsDesc");
  lvwResults_->setAccessibleName(check_.picNoResultsVisible ? words->text() : Label1_->text());
  // Esc, the arrows and Enter are for the outcome, whichever control asked for the check.
  lvwResults_->setFocus();
}

void frmCheckBreaks::OnRowChosen() {
  const std::string key = lvwResults_->KeyOfSelectedRow();
  if (key.empty()) return;
  Guarded([&] { SelectBreakInActiveSplits(TimeOfResultKey(key)); });
}

std::string frmCheckBreaks::GoToMismatch(MismatchStep step, std::optional<float> time) {
  const std::vector<ListItem>& rows = check_.lvwResults.ListItems;
  if (rows.empty()) return "There were no problems found.";
  const std::string selected = lvwResults_->KeyOfSelectedRow();
  if (!time && !selected.empty()) time = TimeOfResultKey(selected);
  const auto at = [&](size_t row) { return TimeOfResultKey(rows[row].key); };
  std::optional<size_t> found;
  for (size_t row = 0; row < rows.size(); ++row) {
    const bool here = time && selected.empty() && at(row) == *time;
    if (step == MismatchStep::kNext && (!time || here || at(row) > *time)) {
      found = row;
      break;
    }
    if (step == MismatchStep::kPrevious && (!time || here || at(row) < *time)) found = row;
  }
  if (!found) {
    return (step == MismatchStep::kNext ? "No mismatch after " : "No mismatch before ") +
           FormatTimeDisplay(*time, kMaskHoursMinutes);
  }
  lvwResults_->SelectRow(*found);
  OnRowChosen();
  return "";
}

// Without a word where the dialog is cancelled, and where the writing fails part way: then only the
// message of success is missing.
void frmCheckBreaks::OnSave() {
  if (check_.lvwResults.ListItems.empty()) return;
  const std::string folder =
      lastFile_.empty() ? RememberedExportFolder() : GetPathPart(lastFile_, true);
  SaveDialog dialog(this, "Export Results to CSV File...",
                    {{"Comma Separated Variable Files (*.CSV)", "*.CSV"}, {"All Files (*.*)", "*"}},
                    "CSV", folder);
  dialog.SetCreatePrompt(true);
  const std::optional<std::string> file =
      dialog.Ask(lastFile_.empty() ? "*.CSV" : ToQString(GetFileNamePart(lastFile_)));
  if (!file) return;
  lastFile_ = *file;
  try {
    Export(*file);
  } catch (const RunTimeError&) {
    Ui().SetMousePointer(MousePointer::kDefault);
  }
}

void frmCheckBreaks::Export(const std::string& file) {
  RememberExportFolder(file);
  if (ExportListViewToCSV(&check_.lvwResults, file, ",", OnlySelected()) == 0) return;
  ShowInformation("Your Check Split Times Report has been saved into " + file);
}

// True (-1) from two rows on: a single one is the row that was clicked to look at a break.
int16_t frmCheckBreaks::OnlySelected() const {
  int selected = 0;
  for (const ListItem& item : check_.lvwResults.ListItems) {
    if (item.Selected && ++selected > 1) return -1;
  }
  return 0;
}

}  // namespace logchecker
