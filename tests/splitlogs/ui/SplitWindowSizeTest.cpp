#include <QFrame>
#include <QMdiArea>
#include <vector>

#include "common/ui/Twips.h"
#include "splitlogs/ui/frmSplit.h"
#include "tests/support/ui/SizeRecorder.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

constexpr int kLeastHeight = 134;  // 2000 twips
constexpr int kLeastWidth = 200;   // 3000 twips

class SplitWindowSizeTest : public WindowTest {
 protected:
  SplitWindowSizeTest() {
    area.resize(1000, 700);
    area.show();
    window = new frmSplit;
    area.addSubWindow(window);
    window->show();
  }

  QSize Border() const { return Control<QFrame>(window, "brdMain")->size(); }
  QSize BorderThatFills() const {
    return window->widget()->size() - QSize(ToPixels(120), ToPixels(120));
  }

  QMdiArea area;
  frmSplit* window = nullptr;
};

TEST_F(SplitWindowSizeTest, TheHeightIsPutRightBeforeTheWidth) {
  SizeRecorder recorder(window);
  window->resize(100, 90);
  EXPECT_EQ(recorder.sizes, std::vector<QSize>({QSize(100, 90), QSize(100, kLeastHeight),
                                                QSize(kLeastWidth, kLeastHeight)}));
  EXPECT_EQ(window->size(), QSize(kLeastWidth, kLeastHeight));
  EXPECT_EQ(Border(), BorderThatFills());
}

TEST_F(SplitWindowSizeTest, ADimensionThatIsLargeEnoughStays) {
  window->resize(400, 90);
  EXPECT_EQ(window->size(), QSize(400, kLeastHeight));
  EXPECT_EQ(Border(), BorderThatFills());
  window->resize(100, 300);
  EXPECT_EQ(window->size(), QSize(kLeastWidth, 300));
  EXPECT_EQ(Border(), BorderThatFills());
  window->resize(kLeastWidth, kLeastHeight);
  EXPECT_EQ(window->size(), QSize(kLeastWidth, kLeastHeight));
}

TEST_F(SplitWindowSizeTest, AMinimisedWindowIsLeftAlone) {
  const QSize border = Border();
  window->showMinimized();
  ASSERT_TRUE(window->isMinimized());
  EXPECT_LT(window->height(), kLeastHeight);
  const QSize minimised = window->size() + QSize(10, 0);
  window->widget()->resize(300, 50);
  SizeRecorder recorder(window);
  window->resize(minimised);
  EXPECT_EQ(recorder.sizes, std::vector<QSize>({minimised}));
  EXPECT_EQ(Border(), border);
}

TEST_F(SplitWindowSizeTest, AMaximisedWindowHasNoLeastSizeAndIsLaidOut) {
  window->showMaximized();
  area.resize(150, 110);
  EXPECT_EQ(window->size(), area.viewport()->size());
  EXPECT_LT(window->width(), kLeastWidth);
  EXPECT_LT(window->height(), kLeastHeight);
  EXPECT_EQ(Border(), BorderThatFills());
}

TEST_F(SplitWindowSizeTest, ItBeginsInItsOwnSize) {
  EXPECT_EQ(frmSplit().size(),
            QSize(ToPixels(frmSplit::kDesignWidth), ToPixels(frmSplit::kDesignHeight)));
  EXPECT_EQ(window->width(), ToPixels(5400));
}

}  // namespace
}  // namespace logchecker
