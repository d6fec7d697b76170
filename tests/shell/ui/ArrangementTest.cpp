// How the split windows stand after the settings changed: where, and which above which.
#include <QScrollBar>

#include "shell/ui/frmMain.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

class ArrangementTest : public MainTest {
 protected:
  // The splits' numbers as their windows stand, the topmost first.
  std::vector<int16_t> FromTheTop() {
    std::vector<int16_t> numbers;
    const QList<QMdiSubWindow*> stack = Area()->subWindowList(QMdiArea::StackingOrder);
    for (auto child = stack.crbegin(); child != stack.crend(); ++child) {
      const auto* split = qobject_cast<frmSplit*>(*child);
      if (split != nullptr && split->isVisible()) numbers.push_back(split->SplitNumber());
    }
    return numbers;
  }
  static std::vector<int16_t> UpTo(int16_t last) {
    std::vector<int16_t> numbers;
    for (int16_t n = 1; n <= last; ++n) numbers.push_back(n);
    return numbers;
  }
  void Arrange(int16_t splits) {
    gGeneralSettings.NumberActiveSplits = splits;
    main->UpdateSplitInfo();
    QApplication::processEvents();
  }
  std::vector<QRect> Places() {
    std::vector<QRect> places;
    for (int16_t n = 1; n <= gGeneralSettings.NumberActiveSplits; ++n) {
      places.push_back(Window(n).geometry());
    }
    return places;
  }
};

TEST_F(ArrangementTest, SplitOneIsOnTopAndTheOthersBehindItInTheirOrderFromTheStart) {
  for (const int16_t splits : {3, 6, 10}) {
    main.reset();
    SetNumberOfSplits(splits);
    ASSERT_TRUE(Start());
    QApplication::processEvents();
    EXPECT_EQ(FromTheTop(), UpTo(splits));
    EXPECT_EQ(Area()->activeSubWindow(), &Window(1));
  }
}

TEST_F(ArrangementTest, NewSplitsStandBehindTheOldOnes) {
  ASSERT_TRUE(Start());
  for (const int16_t splits : {6, 10, 2, 4}) {
    Arrange(splits);
    EXPECT_EQ(FromTheTop(), UpTo(splits));
    EXPECT_EQ(Area()->activeSubWindow(), &Window(1));
  }
}

TEST_F(ArrangementTest, ASecondArrangementChangesNothingWhateverHangsOverTheFrame) {
  ASSERT_TRUE(Start());
  const QSize area = Area()->viewport()->size();
  // Two fit by the first one's width, and the second is too wide for it: a row more than counted,
  // above the frame.
  Window(1).resize(area.width() / 2, 300);
  Window(2).resize(area.width() * 2 / 3, 300);
  Window(3).resize(area.width() / 2, 300);
  Press("sftCheckBreaks");
  Results()->move(area.width() - 50, area.height() - 50);
  Arrange(3);
  EXPECT_LT(Area()->viewport()->width(), area.width()) << "there are bars";
  const std::vector<QRect> once = Places();
  EXPECT_EQ(once[0].bottom() + 1, area.height());
  EXPECT_LT(once[2].top(), 0);
  Arrange(3);
  EXPECT_EQ(Places(), once);
  Area()->horizontalScrollBar()->setValue(Area()->horizontalScrollBar()->maximum());
  Area()->verticalScrollBar()->setValue(Area()->verticalScrollBar()->minimum());
  EXPECT_NE(Places(), once);
  Arrange(3);
  EXPECT_EQ(Places(), once);
}

TEST_F(ArrangementTest, AWindowAsWideAsTheFrameKeepsItsPlaceBesideScrollBars) {
  SetNumberOfSplits(1);
  ASSERT_TRUE(Start());
  const QSize area = Area()->viewport()->size();
  ASSERT_EQ(Window(1).width(), area.width());
  Press("sftCheckBreaks");
  Results()->move(0, area.height() - 50);
  QApplication::processEvents();
  ASSERT_LT(Area()->viewport()->width(), area.width());
  Guarded([&] { Arrange(1); });
  EXPECT_EQ(StoppedBy(), 0);
  EXPECT_EQ(Window(1).geometry(), QRect(QPoint(0, 0), area));
}

TEST_F(ArrangementTest, TilingTakesTheAreaUnderTheScrollBarsToo) {
  ASSERT_TRUE(Start());
  const std::vector<QRect> tiled = Places();
  const QSize area = Area()->viewport()->size();
  Window(3).move(area.width() - 50, area.height() - 50);
  QApplication::processEvents();
  ASSERT_NE(Area()->viewport()->size(), area);
  Area()->verticalScrollBar()->setValue(30);
  main->TileChildren();
  EXPECT_EQ(Places(), tiled);
}

TEST_F(ArrangementTest, ScrollBarsGoWithTheNeedForThem) {
  ASSERT_TRUE(Start());
  const QSize area = Area()->viewport()->size();
  Window(1).move(77, 55);
  QApplication::processEvents();
  ASSERT_NE(Area()->viewport()->size(), area);
  main->UpdateSplitInfo();
  EXPECT_EQ(Area()->viewport()->size(), area);
}

}  // namespace
}  // namespace logchecker
