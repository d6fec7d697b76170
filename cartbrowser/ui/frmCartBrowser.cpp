#include "cartbrowser/ui/frmCartBrowser.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <utility>

#include "cartbrowser/ui/CartRowsPanel.h"
#include "cartbrowser/ui/KeyPreview.h"
#include "cartbrowser/ui/frmFindCart.h"
#include "common/FitTextToWidth.h"
#include "common/ui/CompactFont.h"
#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/KeyCode.h"
#include "common/ui/StationQString.h"
#include "common/ui/TextBoxes.h"
#include "common/ui/Twips.h"
#include "common/ui/VisibleText.h"

namespace logchecker {

namespace {

constexpr size_t kCharacters = 256;
constexpr int kScreenMargin = 30;  // twips

QRect Screen() { return QGuiApplication::primaryScreen()->geometry(); }

// Not so the keys that edit or that move the focus, whatever character the system gives them.
bool TypesACharacter(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Delete:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return false;
    default:
      return !key.text().isEmpty();
  }
}

}  // namespace

frmCartBrowser::frmCartBrowser(ShowNotesWindow showNotes, QWidget* parent)
    : QDialog(parent),
      CartBrowser(static_cast<CartBrowserFace&>(*this)),
      showNotes_(std::move(showNotes)) {
  MakeControls();
  SetTabOrder();
  TakeFont();
  SetSizes();
  ConnectControls();
  new KeyPreview(*this, [this](const QKeyEvent& key) { return OnKey(key); });
  Guarded([this] { Load(); });
}

// The controls know the browser, which goes before them.
frmCartBrowser::~frmCartBrowser() {
  findCart_.reset();
  qDeleteAll(findChildren<QObject*>(QString(), Qt::FindDirectChildrenOnly));
}

void frmCartBrowser::SetDescription(const std::string& text) {
  lblDescription_->setText(ToVisibleQString(text));
}

void frmCartBrowser::TakeFont() {
  const QFont font = CartRowFont();
  picBrowser_->setFont(QApplication::font());
  pnlCartLabels_->setFont(font);
  const QFontMetricsF metrics(font);
  characterWidths_.assign(kCharacters, 0);
  for (size_t code = 0; code < kCharacters; ++code) {
    const auto character = static_cast<char>(code);
    const QString text = ToVisibleQString(std::string_view(&character, 1));
    characterWidths_[code] = metrics.horizontalAdvance(text) * kTwipsPerPixel / TableScale();
  }
}

// What can't be seen is drawn as a blank, and is measured as one.
std::string frmCartBrowser::Fit(const std::string& text, int32_t maxWidth) {
  double width = 0;
  return FitTextToWidth(
      [&](std::string_view head) {
        return width += characterWidths_[static_cast<unsigned char>(head.back())];
      },
      VisibleText(text), maxWidth);
}

bool frmCartBrowser::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    // A number that the user is in the midst of typing stays as it is.
    if (!Activated() || focusWidget() != txtCartNumber_) Guarded([this] { Activate(); });
    KeepFrameOnScreen();
    pnlCartLabels_->TellCurrentRow();
  }
  const bool taken = QDialog::event(event);
  // By now the controls have the font.
  if (event->type() == QEvent::ApplicationFontChange) {
    TakeFont();
    HoldLeastSize();
    Guarded([this] { LayOut(); });
  }
  return taken;
}

// How wide the frame of the window is can be known only when the window has been shown.
void frmCartBrowser::KeepFrameOnScreen() {
  if (!std::exchange(justShown_, false)) return;
  const int over = frameGeometry().right() - (Screen().right() - ToPixels(kScreenMargin));
  if (over > 0) move(x() - over, y());
}

void frmCartBrowser::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  justShown_ = true;
  // The size has its rows already, from the first showing or the last change.
  if (pnlDescription_->isHidden() == ShowDescription) Guarded([this] { LayOut(); });
  Guarded([this] { Activate(); });
  // Who comes in begins in the box for a number.
  pnlCartLabels_->KnowCurrentCart();
}

void frmCartBrowser::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  if (!event->spontaneous()) emit hidden();
}

void frmCartBrowser::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  Guarded([this] { LayOut(); });
}

void frmCartBrowser::closeEvent(QCloseEvent* event) {
  event->ignore();
  CloseBox();
}

void frmCartBrowser::reject() {
  Guarded([this] { Cancel(); });
}

bool frmCartBrowser::eventFilter(QObject* watched, QEvent* event) {
  if (watched == chkDouble_ && event->type() == QEvent::KeyPress &&
      TypesACharacter(static_cast<const QKeyEvent&>(*event))) {
    DoubleChanged();
  }
  if (watched == chkDouble_ && event->type() == QEvent::MouseButtonRelease) {
    // Behind the box's own handling of the release.
    QMetaObject::invokeMethod(
        txtCartNumber_, [this] { txtCartNumber_->setFocus(); }, Qt::QueuedConnection);
  }
  return QDialog::eventFilter(watched, event);
}

bool frmCartBrowser::OnKey(const QKeyEvent& key) {
  if (KeyDown(KeyCodeOf(key), key.modifiers().testFlag(Qt::ControlModifier))) return true;
  const char character = CharacterOf(key);
  // F1 is one of the store's own keys here.
  if (character == '?') {
    OpenGuide(this);
    return true;
  }
  if (character != 0 && KeyPress(character)) return true;
  return focusWidget() == txtCartNumber_ && TypesACharacter(key) && !JumpBoxTakes(character);
}

bool frmCartBrowser::IsActive() { return isVisible() && isActiveWindow(); }

int32_t frmCartBrowser::ScreenWidth() { return ToTwips(Screen().width()); }

int32_t frmCartBrowser::WindowWidth() { return ToTwips(frameGeometry().width()); }

void frmCartBrowser::MoveTo(int32_t left, int32_t top) {
  move(Screen().topLeft() + QPoint(ToPixels(left), ToPixels(top)));
}

void frmCartBrowser::ShowRows() { pnlCartLabels_->ShowRows(); }

void frmCartBrowser::ShowButtonColour(int16_t row) { pnlCartLabels_->ShowButtonColour(row); }

void frmCartBrowser::ShowJumpBox() {
  const QString text = ToQString(JumpText());
  if (txtCartNumber_->text() != text) {
    const QSignalBlocker quiet(txtCartNumber_);
    txtCartNumber_->setText(text);
  }
  cmdJumpCart_->setEnabled(JumpEnabled());
}

void frmCartBrowser::SelectJumpText() { SelectAllText(*txtCartNumber_); }

void frmCartBrowser::FocusJumpBox() {
  if (!txtCartNumber_->isEnabled()) return;
  txtCartNumber_->setFocus();
  SelectAllText(*txtCartNumber_);
}

// A search has nobody to jump any more.
void frmCartBrowser::Hide() {
  if (findCart_ && findCart_->isVisible()) findCart_->close();
  hide();
}

// One search window serves all searches, so that it keeps what is in it.
void frmCartBrowser::ShowFindCart(const FindRequest& request) {
  if (!findCart_) findCart_ = std::make_unique<frmFindCart>(this);
  findCart_->CallingBrowser = this;
  findCart_->StartCart = request.startCart;
  if (!findCart_->isVisible()) {
    findCart_->setWindowModality(request.modal ? Qt::ApplicationModal : Qt::NonModal);
  }
  findCart_->show();
  findCart_->raise();
  findCart_->activateWindow();
}

void frmCartBrowser::ShowNotes(const std::string& file, bool modal) {
  if (showNotes_) showNotes_(file, this, modal);
}

}  // namespace logchecker
