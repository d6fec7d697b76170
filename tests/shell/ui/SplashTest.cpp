#include <QAccessible>
#include <QImage>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include "common/VersionData.h"
#include "shell/ui/frmSplash.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

class SplashTest : public WindowTest {
 protected:
  SplashTest() { os.programFolder = folder().Path(); }

  static QString Text(QWidget* splash, const char* name) {
    return Control<QLabel>(splash, name)->text();
  }
};

TEST_F(SplashTest, ShowsWhatTheProgramIs) {
  frmSplash splash;
  splash.show();
  EXPECT_EQ(Text(&splash, "lblProductName"), kProductName);
  EXPECT_EQ(Text(&splash, "lblCompanyProduct"), kCompanyName);
  EXPECT_EQ(Text(&splash, "lblCopyright"), kLegalCopyright);
  EXPECT_EQ(Text(&splash, "lblVersion"), QString("Version %1").arg(kVersion));
  EXPECT_FALSE(Text(&splash, "lblPlatform").isEmpty());
  EXPECT_TRUE(Text(&splash, "lblWarning").contains("without authority"));
  EXPECT_EQ(Text(&splash, "lblCurrentAction"), "");
  EXPECT_FALSE(Control<QPushButton>(&splash, "cmdOK")->isVisible());
  EXPECT_TRUE(Control<QLabel>(&splash, "imgHalvernLogo")->isVisible());
}

TEST_F(SplashTest, AStationsLogoTakesThePlaceOfTheBuiltInOne) {
  QImage logo(400, 200, QImage::Format_RGB32);
  logo.fill(Qt::darkRed);
  ASSERT_TRUE(logo.save(QString::fromStdString(folder().Path() + "/LOGO.BMP"), "BMP"));
  frmSplash splash;
  splash.show();
  EXPECT_FALSE(Control<QLabel>(&splash, "imgHalvernLogo")->isVisible());
  const QPixmap shown = Control<QLabel>(&splash, "imgLogo")->pixmap();
  EXPECT_FALSE(shown.isNull());
  EXPECT_LE(shown.width(), 96) << "a huge logo is made to fit";
}

TEST_F(SplashTest, AnEmptyLogoFileCountsAsPresent) {
  folder().WriteFile("LOGO.BMP", "");
  frmSplash splash;
  splash.show();
  EXPECT_FALSE(Control<QLabel>(&splash, "imgHalvernLogo")->isVisible());
  EXPECT_TRUE(Control<QLabel>(&splash, "imgLogo")->pixmap().isNull());
}

TEST_F(SplashTest, AChangeOfTheActionIsSeenAtOnce) {
  frmSplash splash;
  splash.show();
  const int before = ui.yields;
  splash.SetCurrentAction("Opening <b>Audiowall...");
  EXPECT_EQ(Text(&splash, "lblCurrentAction"), "Opening <b>Audiowall...");
  EXPECT_EQ(Control<QLabel>(&splash, "lblCurrentAction")->textFormat(), Qt::PlainText);
  EXPECT_EQ(ui.yields, before + 1);
}

TEST_F(SplashTest, LetsTheScreenCatchUpWhenItIsActivated) {
  frmSplash splash;
  splash.show();
  QApplication::setActiveWindow(nullptr);
  const int before = ui.yields;
  QApplication::setActiveWindow(&splash);
  EXPECT_EQ(ui.yields, before + 1);
}

TEST_F(SplashTest, FloatingMovesTheWindowToTheTopLayerAndBackWithoutMovingIt) {
  frmSplash splash;
  splash.show();
  const QRect place = splash.geometry();
  splash.SetFloating(-1);
  EXPECT_EQ(splash.Floating(), -1);
  EXPECT_TRUE(splash.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(splash.isVisible());
  EXPECT_EQ(splash.geometry(), place);
  splash.SetFloating(0);
  EXPECT_FALSE(splash.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(splash.geometry(), place);
}

TEST_F(SplashTest, TheUserCannotCloseIt) {
  frmSplash splash;
  splash.show();
  CloseByUser(&splash);
  QTest::keyClick(&splash, Qt::Key_Escape);
  EXPECT_TRUE(splash.isVisible());
  splash.close();
  EXPECT_FALSE(splash.isVisible());
}

TEST_F(SplashTest, AFloatingWindowStaysOnTopAsAboutBox) {
  auto* splash = new frmSplash;
  splash->SetFloating(-1);
  splash->ShowAsAboutBox();
  EXPECT_TRUE(splash->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  splash->close();
}

using AboutTest = MainTest;

TEST_F(AboutTest, EscapeAndTheUsersCloseAreAsItsButton) {
  ASSERT_TRUE(Start());
  for (const bool escape : {true, false}) {
    Entry("mnuAbout")->trigger();
    QPointer<frmSplash> about = main->findChild<frmSplash*>();
    ASSERT_FALSE(about.isNull());
    QSignalSpy pressed(Control<QPushButton>(about, "cmdOK"), &QPushButton::clicked);
    if (escape) {
      QTest::keyClick(about, Qt::Key_Escape);
    } else {
      CloseByUser(about);
    }
    EXPECT_EQ(pressed.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(about.isNull());
  }
}

TEST_F(AboutTest, AboutStaysUntilOkIsPressedAndIsNotModal) {
  ASSERT_TRUE(Start());
  for (int i = 0; i < 2; ++i) {
    Entry("mnuAbout")->trigger();
    QPointer<frmSplash> about = main->findChild<frmSplash*>();
    ASSERT_FALSE(about.isNull());
    EXPECT_TRUE(about->isVisible());
    EXPECT_FALSE(about->isModal());
    EXPECT_EQ(Control<QLabel>(about, "lblCurrentAction")->text(), "");
    ExpectEverythingNamed(about);
    ExpectFocusSeen(about);
    auto* ok = Control<QPushButton>(about, "cmdOK");
    EXPECT_TRUE(ok->isVisible());
    EXPECT_EQ(ok->text(), "OK");
    ok->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(about.isNull());
  }
}

TEST_F(AboutTest, AboutIsADialogForEars) {
  ASSERT_TRUE(Start());
  Entry("mnuAbout")->trigger();
  auto* about = main->findChild<frmSplash*>();
  ASSERT_NE(about, nullptr);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(about)->role(), QAccessible::Dialog);
  Control<QPushButton>(about, "cmdOK")->click();
}

}  // namespace
}  // namespace logchecker
