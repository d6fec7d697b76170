#include "cartbrowser/ui/frmFindCart.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <algorithm>

#include "cartbrowser/ui/KeyPreview.h"
#include "common/SystemHelpers.h"
#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/Icons.h"
#include "common/ui/KeyCode.h"
#include "common/ui/StationQString.h"
#include "common/ui/TextBoxes.h"
#include "common/ui/Twips.h"
#include "ui_frmFindCart.h"

namespace logchecker {

namespace {

constexpr int kLengthMargins = 20;  // pixels beside the digits of the length

}  // namespace

frmFindCart::frmFindCart(QWidget* parent)
    : QDialog(parent),
      FindCart(static_cast<FindCartFace&>(*this)),
      ui_(std::make_unique<Ui::frmFindCart>()) {
  ui_->setupUi(this);
  SetGuidePage(*this, kGuideSearch);
  setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint);
  FillLists();
  ConnectControls();
  ColourBoxes();
  new KeyPreview(*this, [this](const QKeyEvent& key) { return OnKey(key); });
  Load();
  OpenAnimation();
  FitTextSize();
  frmFindCart::ShowControls();
}

// The controls know the search, which goes before them.
frmFindCart::~frmFindCart() {
  qDeleteAll(findChildren<QObject*>(QString(), Qt::FindDirectChildrenOnly));
}

void frmFindCart::FillLists() {
  for (const DirectionTexts& direction : kDirectionTexts) {
    ui_->cmbSearchDirection->addItem(direction.text);
  }
  for (const LengthTolerance& tolerance : kLengthTolerances) {
    ui_->comboLength->addItem(tolerance.text, tolerance.seconds);
  }
  ui_->cmbSearchText->setCompleter(nullptr);
  SelectAllOnFocus(*ui_->cmbSearchText);
  ui_->cmbSearchText->lineEdit()->setAccessibleName(ui_->cmbSearchText->accessibleName());
  TakeStationTextOnly(*ui_->cmbSearchText->lineEdit());
  ui_->lviewItems->SetSearch(*this);
  ui_->lviewItems->setAccessibleDescription(
      "Keys: Enter goes to the cart, Ctrl+1 to Ctrl+5 sort by a column, a second time the other "
      "way round");
  ui_->tabFind->setAccessibleDescription("Key: Ctrl+Tab");
  ui_->cmdFind->setAccessibleDescription("Key: Enter");
  ui_->cmdStop->setAccessibleDescription("Key: Escape");
}

void frmFindCart::FitTextSize() {
  const QLineEdit& box = *ui_->mskLength;
  ui_->mskLength->setMaximumWidth(box.fontMetrics().horizontalAdvance("00:00") + kLengthMargins);
  layout()->invalidate();
  const QMargins margins = layout()->contentsMargins();
  const int width = std::max(this->width(), layout()->minimumSize().width());
  ui_->lviewItems->SetColumnWidths(ToTwips(width - margins.left() - margins.right()));
}

void frmFindCart::OpenAnimation() {
  AnimationMissing = !ui_->animFind->Open(GetProgramFolder() + "\\find.avi");
  ui_->animFind->setVisible(!AnimationMissing);
  connect(ui_->animFind, &SearchAnimation::failed, this, [this] {
    AnimationMissing = true;
    ui_->animFind->hide();
  });
}

void frmFindCart::ConnectControls() {
  connect(ui_->cmbSearchText, &QComboBox::editTextChanged, this,
          [this](const QString& text) { input.SearchText = FromQString(text); });
  connect(ui_->cmbSearchDirection, &QComboBox::currentIndexChanged, this, [this](int index) {
    input.Direction = static_cast<SearchDirection>(index);
    ShowInput();
  });
  connect(ui_->chkSearchFromStart, &QCheckBox::toggled, this,
          [this](bool ticked) { input.SearchFromStart = ticked; });
  connect(ui_->chkNotes, &QCheckBox::toggled, this, [this](bool ticked) { input.Notes = ticked; });
  connect(ui_->chkLimitLines, &QCheckBox::toggled, this, [this](bool ticked) {
    input.LimitLines = ticked;
    LimitLinesClicked();
  });
  QCheckBox* const lines[] = {ui_->chkLine1, ui_->chkLine2, ui_->chkLine3};
  for (size_t line = 0; line < std::size(lines); ++line) {
    connect(lines[line], &QCheckBox::toggled, this,
            [this, line](bool ticked) { input.Lines[line] = ticked; });
  }
  connect(ui_->chkTimeSearch, &QCheckBox::toggled, this, [this](bool ticked) {
    input.TimeSearch = ticked;
    TimeSearchClicked();
  });
  // With its prompts, which keep the digits in their places.
  connect(ui_->mskLength, &QLineEdit::textChanged, this,
          [this] { input.Length = FromQString(ui_->mskLength->displayText()); });
  connect(ui_->comboLength, &QComboBox::currentIndexChanged, this,
          [this](int index) { input.ToleranceRow = static_cast<size_t>(index); });
  connect(ui_->tabFind, &QTabWidget::currentChanged, this,
          [this](int index) { TabClicked(static_cast<FindTab>(index)); });
  connect(ui_->cmdFind, &QPushButton::clicked, this, [this] { Guarded([this] { OnFind(); }); });
  connect(ui_->cmdStop, &QPushButton::clicked, this, [this] { Guarded([this] { Stop(); }); });
}

void frmFindCart::OnFind() {
  shownHeight_ = 0;  // a height that the user gave it ends here
  Find();
}

// Ctrl and a digit do what a click on that column's heading does, counted as they are seen.
bool frmFindCart::SortByKey(const QKeyEvent& key) {
  const int column = key.key() - Qt::Key_0;
  const bool sorts = (key.modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier &&
                     column >= static_cast<int>(kFoundNumber) &&
                     column <= static_cast<int>(kFoundLength);
  if (!sorts || !view().ResultsVisible) return false;
  ui_->lviewItems->ShowAddedRows();
  ClickHeader(static_cast<FoundColumn>(column));
  return true;
}

bool frmFindCart::OnKey(const QKeyEvent& key) {
  if (SortByKey(key)) return true;
  return KeyDown(KeyCodeOf(key), key.modifiers().testFlag(Qt::ControlModifier));
}

bool frmFindCart::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) ShowHeight();  // by now the frame is there
  if (event->type() == QEvent::ApplicationPaletteChange) ColourBoxes();
  const bool taken = QDialog::event(event);
  // By now the controls have the font.
  if (event->type() == QEvent::ApplicationFontChange) {
    FitTextSize();
    shownHeight_ = 0;
    ShowHeight();
  }
  return taken;
}

void frmFindCart::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) Guarded([this] { Activate(); });
}

void frmFindCart::closeEvent(QCloseEvent* event) {
  Guarded([this] { CloseBox(); });
  event->accept();
}

void frmFindCart::reject() { close(); }

bool frmFindCart::IsVisible() { return isVisible(); }

void frmFindCart::PaintProgress() {
  ui_->lblSearchCartNumber->setText(QString::number(view().ProgressCart));
  ui_->lblSearchCartNumber->repaint();
}

void frmFindCart::ShowResultAdded(size_t row) { ui_->lviewItems->RowAdded(row); }

void frmFindCart::ShowResults() { ui_->lviewItems->ShowResults(); }

void frmFindCart::FocusOn(FindControl control) {
  switch (control) {
    case FindControl::kSearchText:
      return ui_->cmbSearchText->setFocus();
    case FindControl::kStop:
      return ui_->cmdStop->setFocus();
    case FindControl::kResults:
      return ui_->lviewItems->setFocus();
  }
}

void frmFindCart::PlayAnimation() { ui_->animFind->Play(); }

void frmFindCart::StopAnimation() { ui_->animFind->Stop(); }

void frmFindCart::Hide() { hide(); }

}  // namespace logchecker
