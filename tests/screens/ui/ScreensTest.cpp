// The main window on a desktop of several screens: a large one, a small one, and one of twice as
// fine a grain. The toolkit's platform takes them from a file.
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QWindow>

#include "shell/ui/ScreenFit.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

const bool kScreensAreSet = qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" LOGCHECKER_SCREENS);

class ScreensTest : public MainTest {
 protected:
  ScreensTest() { EXPECT_TRUE(kScreensAreSet); }

  static QScreen* Screen(const char* name) {
    for (QScreen* screen : QGuiApplication::screens()) {
      if (screen->name() == name) return screen;
    }
    ADD_FAILURE() << "no screen " << name;
    return nullptr;
  }
  void GoTo(const char* screen) {
    main->windowHandle()->setScreen(Screen(screen));
    main->move(Screen(screen)->availableGeometry().topLeft() + QPoint(20, 30));
    QCoreApplication::processEvents();
  }
  bool FitsWithFrame() {
    const QSize whole = main->frameGeometry().size();
    return whole == whole.boundedTo(main->screen()->availableSize());
  }
};

TEST_F(ScreensTest, TheFrameBeginsWithinTheScreen) {
  main = std::make_unique<frmMain>();
  EXPECT_TRUE(main->Load());
  QCoreApplication::processEvents();
  EXPECT_GT(main->frameGeometry().width(), main->width()) << "there is a frame to be counted";
  EXPECT_TRUE(FitsWithFrame());
  EXPECT_EQ(main->size(), QSize(1180, 760)) << "and no smaller than it has to be";
}

TEST_F(ScreensTest, AFrameThatIsWiderThanUsualIsMadeRoomForOnce) {
  main = std::make_unique<frmMain>();
  main->resize(Screen("large")->availableSize());
  main->move(100, 100);
  EXPECT_TRUE(main->Load());
  QCoreApplication::processEvents();
  EXPECT_TRUE(FitsWithFrame());
  EXPECT_TRUE(main->screen()->availableGeometry().contains(main->frameGeometry()));
  // The splits stand in what is left.
  const QMdiSubWindow& last = Window(3);
  EXPECT_EQ(last.geometry().right() + 1, Area()->viewport()->width());
  EXPECT_EQ(last.geometry().bottom() + 1, Area()->viewport()->height());
  // From now on the size is the user's.
  main->resize(Screen("large")->availableSize());
  QCoreApplication::processEvents();
  EXPECT_FALSE(FitsWithFrame());
}

TEST_F(ScreensTest, OnASmallerScreenItIsMadeToFit) {
  ASSERT_TRUE(Start());
  GoTo("small");
  ASSERT_EQ(main->screen()->name(), "small");
  EXPECT_TRUE(FitsWithFrame()) << main->height();
  EXPECT_LT(main->height(), 600);
  main->showMaximized();
  GoTo("large");
  EXPECT_TRUE(main->isMaximized());
}

TEST_F(ScreensTest, InTooSmallAFrameTheSplitsNeedOneScrollBarAndNotTwo) {
  SetNumberOfSplits(5);
  ASSERT_TRUE(Start());
  main->resize(512, 300);
  QCoreApplication::processEvents();
  main->TileChildren();
  EXPECT_TRUE(Area()->verticalScrollBar()->isVisible());
  EXPECT_FALSE(Area()->horizontalScrollBar()->isVisible());
  for (int16_t n = 2; n <= 5; ++n) {
    EXPECT_FALSE(Window(n).geometry().intersects(Window(static_cast<int16_t>(n - 1)).geometry()));
  }
}

TEST_F(ScreensTest, AFinerScreenChangesNoLogicalSize) {
  ASSERT_TRUE(Start());
  auto* grid = Control<QTableView>(&Window(1), "gridLog");
  const auto sizes = [&] {
    return QList<int>{grid->fontInfo().pixelSize(), grid->columnWidth(0), grid->rowHeight(0),
                      grid->columnWidth(1), Window(1).width()};
  };
  const QList<int> before = sizes();
  const double pixels = main->windowHandle()->devicePixelRatio();
  GoTo("fine");
  EXPECT_EQ(main->windowHandle()->devicePixelRatio(), 2 * pixels);
  EXPECT_TRUE(FitsWithFrame());
  // The frame is narrower now, and the splits keep their places in it.
  EXPECT_EQ(sizes(), before);
  GoTo("large");
  EXPECT_EQ(sizes(), before);
}

}  // namespace
}  // namespace logchecker
