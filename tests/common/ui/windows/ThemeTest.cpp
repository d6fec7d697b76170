#include <QEvent>
#include <QWindow>

#include "common/ui/DesktopManners.h"
#include "platform/windows/WindowsApi.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

constexpr wchar_t kKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";
constexpr wchar_t kValue[] = L"AppsUseLightTheme";

class ThemeTest : public WindowTest {
 protected:
  ~ThemeTest() override {
    RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, kValue);
    Tell();
  }
  static void Choose(DWORD light) {
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, REG_DWORD, &light, sizeof(light)),
              ERROR_SUCCESS);
  }
  // As the toolkit tells each window.
  static void Tell() {
    QWindow window;
    QEvent change(QEvent::ThemeChange);
    QApplication::sendEvent(&window, &change);
  }
  static bool IsDark() {
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Text).lightness() > palette.color(QPalette::Base).lightness();
  }
};

TEST_F(ThemeTest, AProgramHasTheSystemsThemeAndFollowsIt) {
  Choose(0);
  EXPECT_FALSE(IsDark()) << "nothing follows yet";
  FollowTheme();
  EXPECT_TRUE(IsDark());
  Choose(1);
  EXPECT_TRUE(IsDark()) << "nothing was told yet";
  Tell();
  EXPECT_FALSE(IsDark());
  Choose(0);
  Tell();
  EXPECT_TRUE(IsDark());
}

}  // namespace
}  // namespace logchecker
