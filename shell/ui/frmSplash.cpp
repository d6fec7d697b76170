#include "shell/ui/frmSplash.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QTimer>

#include "common/FileHelpers.h"
#include "common/SystemHelpers.h"
#include "common/UserInterface.h"
#include "common/VersionData.h"
#include "common/ui/AccessibleRole.h"
#include "common/ui/Icons.h"
#include "common/ui/LeastWidth.h"
#include "common/ui/StationQString.h"
#include "platform/HostPaths.h"
#include "shell/PlatformLine.h"
#include "ui_frmSplash.h"

namespace logchecker {

namespace {

constexpr int kLeastWidth = 460;   // pixels
constexpr int kLogoSize = 96;      // logical pixels
constexpr int kLongestWait = 500;  // milliseconds
constexpr char kStationLogo[] = "\\LOGO.BMP";

}  // namespace

frmSplash::frmSplash(QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint),
      ui_(std::make_unique<Ui::frmSplash>()) {
  ui_->setupUi(this);
  HoldLeastWidth(*this, kLeastWidth);
  ui_->cmdOK->hide();
  connect(ui_->cmdOK, &QPushButton::clicked, this, [this] { OnOk(); });
  FillIdentity();
  ShowLogo();
  adjustSize();
  resize(width(), layout()->totalHeightForWidth(width()));
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    move(screen->availableGeometry().center() - rect().center());
  }
}

frmSplash::~frmSplash() = default;

void frmSplash::FillIdentity() {
  ui_->lblVersion->setText(
      QString("Version %1.%2.%3").arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision));
  ui_->lblProductName->setText(kProductName);
  ui_->lblCompanyProduct->setText(kCompanyName);
  ui_->lblCopyright->setText(kLegalCopyright);
  GetWindowsVersion();
  ui_->lblPlatform->setText(
      ToQString(PlatformLine(gOSVersionInfo, FromQString(ui_->lblPlatform->text()))));
}

// A station's own logo beside the program takes the place of the built-in one, even where nothing
// of it can be shown.
void frmSplash::ShowLogo() {
  ui_->imgHalvernLogo->setPixmap(IconNamed("program").pixmap(kLogoSize));
  ui_->imgLogo->hide();
  const std::string file = GetProgramFolder() + kStationLogo;
  if (GetFileLength(file) < 0) return;
  ui_->imgHalvernLogo->hide();
  ui_->imgLogo->show();
  const QPixmap logo(QString::fromStdString(ToHostPath(file)));
  if (logo.isNull()) return;
  const QSize most(kLogoSize, kLogoSize);
  ui_->imgLogo->setPixmap(logo.width() > kLogoSize || logo.height() > kLogoSize
                              ? logo.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                              : logo);
}

void frmSplash::SetFloating(int16_t floating) {
  floating_ = floating;
  const bool shown = isVisible();
  const QPoint place = pos();
  setWindowFlag(Qt::WindowStaysOnTopHint, floating != 0);
  if (!shown) return;
  // The toolkit hides a window when its layer changes.
  setAttribute(Qt::WA_ShowWithoutActivating);
  move(place);
  show();
  setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void frmSplash::ShowAtStart() {
  QEventLoop wait;
  connect(this, &frmSplash::painted, &wait, &QEventLoop::quit, Qt::QueuedConnection);
  QTimer::singleShot(kLongestWait, &wait, &QEventLoop::quit);
  show();
  wait.exec();
}

void frmSplash::SetCurrentAction(const std::string& text) {
  ui_->lblCurrentAction->setText(ToQString(text));
  Ui().Yield();
}

void frmSplash::ShowAsAboutBox() {
  setAttribute(Qt::WA_DeleteOnClose);
  SetAccessibleRole(*this, QAccessible::Dialog);
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  if (floating_ != 0) setWindowFlag(Qt::WindowStaysOnTopHint);
  ui_->cmdOK->show();
  show();
  raise();
  activateWindow();
  ui_->cmdOK->setFocus();
}

void frmSplash::OnOk() {
  ui_->cmdOK->hide();
  close();
}

void frmSplash::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  setAccessibleName(windowTitle());
}

void frmSplash::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) Ui().Yield();
}

// The splash is the program's to close; the about box goes by its button, or as if by it.
void frmSplash::closeEvent(QCloseEvent* event) {
  if (!event->spontaneous()) return;
  event->ignore();
  if (ui_->cmdOK->isVisible()) ui_->cmdOK->click();
}

// A hair line around the window, which has no frame of its own.
void frmSplash::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  emit painted();
}

void frmSplash::keyPressEvent(QKeyEvent* event) {
  const bool about = ui_->cmdOK->isVisible();
  const int key = event->key();
  if (about && (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter)) {
    ui_->cmdOK->click();
    return;
  }
  QWidget::keyPressEvent(event);
}

}  // namespace logchecker
