#include "platform/windows/WindowsApi.h"
//
#include <shobjidl.h>

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QStyle>

#include "common/ui/DesktopManners.h"

namespace logchecker {

namespace {

constexpr char kPlatform[] = "QT_QPA_PLATFORM";
// Title bars follow the system, and the toolkit tells when its theme changes.
constexpr char kFollowing[] = "windows:darkmode=2";

bool HasHighContrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof(contrast);
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

// Themes of high contrast are the user's own colours, which the toolkit takes.
bool IsDark() {
  DWORD light = 1;
  DWORD size = sizeof(light);
  const LSTATUS read = RegGetValueW(
      HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
      L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
  return read == ERROR_SUCCESS && light == 0 && !HasHighContrast();
}

QColor SystemColour(int number) {
  const DWORD colour = GetSysColor(number);
  return {GetRValue(colour), GetGValue(colour), GetBValue(colour)};
}

// The toolkit's own dark colours make every second row of a list, and every button that is not
// picked, look picked.
QPalette DarkPalette() {
  const QColor window(0x20, 0x20, 0x20);
  const QColor text(0xF0, 0xF0, 0xF0);
  QPalette palette(QColor(0x40, 0x40, 0x40), window);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::ToolTipText, QPalette::BrightText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
  }
  palette.setColor(QPalette::PlaceholderText, QColor(0xA0, 0xA0, 0xA0));
  palette.setColor(QPalette::Base, QColor(0x33, 0x33, 0x33));
  palette.setColor(QPalette::AlternateBase, QColor(0x3B, 0x3B, 0x3B));
  palette.setColor(QPalette::ToolTipBase, QColor(0x2B, 0x2B, 0x2B));
  palette.setColor(QPalette::Highlight, SystemColour(COLOR_HIGHLIGHT));
  palette.setColor(QPalette::HighlightedText, SystemColour(COLOR_HIGHLIGHTTEXT));
  palette.setColor(QPalette::Link, QColor(0x4C, 0xA6, 0xFF));
  palette.setColor(QPalette::LinkVisited, QColor(0xB9, 0x8A, 0xFF));
  return palette;
}

// The system's own style draws its controls light whatever the palette says, so the toolkit's takes
// its place while the theme is dark.
class ThemeFollower : public QObject {
 public:
  explicit ThemeFollower(QObject* parent)
      : QObject(parent), own_(QApplication::style()->objectName()) {
    parent->installEventFilter(this);
    if (IsDark()) Follow();
  }

 protected:
  // It is each window that hears of a change.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ThemeChange && watched->isWindowType() && IsDark() != dark_) {
      Follow();
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void Follow() {
    dark_ = IsDark();
    QApplication::setPalette(dark_ ? DarkPalette() : QPalette());
    QApplication::setStyle(dark_ ? QString("fusion") : own_);
  }

  QString own_;  // the system's style
  bool dark_ = false;
};

}  // namespace

void JoinDesktop(const char* id) {
  SetCurrentProcessExplicitAppUserModelID(QString(id).toStdWString().c_str());
  if (!qEnvironmentVariableIsSet(kPlatform)) qputenv(kPlatform, kFollowing);
}

// It goes with the application.
void FollowTheme() { new ThemeFollower(qApp); }

}  // namespace logchecker
