// The browser's rows as they are seen: whole, drawn, and turned by the wheel.
#include <QWheelEvent>

#include "cartbrowser/ui/CartRowsPanel.h"
#include "tests/cartbrowser/ui/BrowserWindow.h"

namespace logchecker {
namespace {

class CartBrowserRowsTest : public BrowserWindowTest {
 protected:
  QFrame* Frame() { return Control<QFrame>(window.get(), "pnlCartLabels"); }
  void ExpectWholeRows(int rowHeight) {
    EXPECT_EQ((Frame()->height() - 2) % rowHeight, 0) << window->height();
    EXPECT_EQ(Frame()->height(), window->RowCount() * rowHeight + 2) << window->height();
    const int last = window->RowCount();
    EXPECT_TRUE(Frame()->rect().contains(Button(last)->geometry())) << window->height();
    EXPECT_TRUE(Frame()->rect().contains(Panel(last)->geometry())) << window->height();
  }
  // Notches of the wheel over a row; those away from the user are above 0.
  void Turn(double notches) {
    const QPoint place = Panel(2)->rect().center();
    QWheelEvent event(place, Panel(2)->mapToGlobal(place), {},
                      QPoint(0, static_cast<int>(notches * 120)), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    SendByUser(Panel(2), event);
  }
  static QImage Picture(QWidget* widget) { return widget->grab().toImage(); }
  static bool Holds(const QImage& picture, const QColor& colour) {
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, y) == colour) return true;
      }
    }
    return false;
  }
};

TEST_F(CartBrowserRowsTest, AtItsFirstHeightEveryRowIsSeenAndNoRoomIsLeft) {
  window.reset();
  window = std::make_unique<frmCartBrowser>(nullptr);
  Show();
  ExpectWholeRows(21);
  const auto* around = Control<QWidget>(window.get(), "picBrowser");
  EXPECT_EQ(around->height() - Frame()->geometry().bottom() - 1, 1) << "15 twips";
}

TEST_F(CartBrowserRowsTest, EveryRowIsSeenAtAnyHeight) {
  for (int height = window->minimumHeight(); height < window->minimumHeight() + 45; ++height) {
    window->resize(window->width(), height);
    QApplication::processEvents();
    ExpectWholeRows(21);
  }
  Press("chkDouble");
  for (int height = window->minimumHeight(); height < window->minimumHeight() + 90; height += 5) {
    window->resize(window->width(), height);
    QApplication::processEvents();
    ExpectWholeRows(42);
  }
}

TEST_F(CartBrowserRowsTest, TheCurrentCartIsSeenAndAPagePassesOverNone) {
  window->resize(window->width(), 397);
  QApplication::processEvents();
  for (int cart = 1; cart < window->RowCount(); ++cart) Key(Qt::Key_Down);
  const int last = window->RowCount();
  EXPECT_EQ(Number()->text(), QString::number(last));
  EXPECT_TRUE(Frame()->rect().contains(Button(last)->geometry()));
  Key(Qt::Key_PageDown);
  EXPECT_EQ(Button(1)->text(), QString::number(last + 1));
}

TEST_F(CartBrowserRowsTest, NumberTextAndColoursOfACartAreDrawn) {
  const auto picturesOf = [this](const char* text, int32_t fore) {
    PutCart(2, RecordOfLines(text, "", "", 0x00FFFFFF, fore));
    window->RefreshRows();
    return Picture(Panel(2));
  };
  const QImage first = picturesOf("WORDS", 0x000000FF);
  EXPECT_TRUE(Holds(first, QColor(255, 0, 0))) << "the text, in its colour";
  EXPECT_FALSE(Holds(first, QColor(0, 0, 255)));
  EXPECT_TRUE(Holds(picturesOf("WORDS", 0x00FF0000), QColor(0, 0, 255)));
  EXPECT_NE(picturesOf("OTHERS", 0x000000FF), first);
  EXPECT_FALSE(Holds(picturesOf("", 0x000000FF), QColor(255, 0, 0)));
  const QImage number = Picture(Button(3));
  EXPECT_TRUE(Holds(number, Button(3)->palette().color(QPalette::ButtonText)));
  EXPECT_NE(Picture(Button(4)), number) << "each has its own";
  EXPECT_TRUE(Holds(Picture(Button(1)), QColor(255, 255, 255))) << "the lit one's";
}

TEST_F(CartBrowserRowsTest, ThreeLinesAreDrawnAtDoubleHeight) {
  const auto pictureOf = [this](const char* third) {
    PutCart(2, RecordOfLines("ONE", "TWO", third));
    window->RefreshRows();
    return Picture(Panel(2));
  };
  Press("chkDouble");
  EXPECT_NE(pictureOf("THREE"), pictureOf("OTHER"));
}

TEST_F(CartBrowserRowsTest, TheWheelScrollsTheRowsUnderTheCursor) {
  window->JumpToCart(3);
  Turn(-1);
  ExpectAt("4", 3);
  Turn(-2);
  ExpectAt("10", 3);
  Turn(1);
  ExpectAt("7", 3);
  Turn(9);
  ExpectAt("1", 3);
  Turn(-100);
  ExpectAt("91", 3);
}

TEST_F(CartBrowserRowsTest, AWheelWithoutNotchesScrollsWhenARowIsReached) {
  Turn(-0.25);
  ExpectAt("1", 1);
  Turn(-0.25);
  ExpectAt("2", 1);
  for (int part = 0; part < 2; ++part) Turn(-0.25);
  ExpectAt("4", 1);
}

TEST_F(CartBrowserRowsTest, ATextIsAsWideAsItsCharactersTogether) {
  EXPECT_FALSE(CartRowFont().kerning()) << "which not every font has";
  const QFontMetricsF metrics(CartRowFont());
  const QString text = "AVATo. LYTa";
  double sum = 0;
  for (const QChar character : text) sum += metrics.horizontalAdvance(character);
  EXPECT_EQ(metrics.horizontalAdvance(text), sum);
}

TEST_F(CartBrowserRowsTest, TheNumbersHaveRoomInAnyFont) {
  auto* frame = Control<CartRowsPanel>(window.get(), "pnlCartLabels");
  EXPECT_EQ(frame->ButtonWidth(), 855) << "the least";
  QFont large = frame->font();
  large.setPixelSize(60);
  frame->setFont(large);
  EXPECT_EQ(frame->ButtonWidth(), QFontMetrics(large).horizontalAdvance("000") * 15 + 240);
}

TEST_F(CartBrowserRowsTest, RowsGrowWithTheDesktopsText) {
  const QFont before = QApplication::font();
  const int usual = Button(1)->height();
  QFont large = before;
  large.setPointSizeF(2 * before.pointSizeF());
  for (const bool twice : {true, false}) {
    QApplication::setFont(twice ? large : before);
    QCoreApplication::processEvents();
    EXPECT_EQ(Button(1)->height() >= 1.3 * usual, twice) << Button(1)->height() << " " << usual;
    const QFontMetrics metrics(Panel(1)->font());
    EXPECT_GT(Panel(1)->height(), metrics.height()) << "a line fits";
    EXPECT_GE(Button(1)->width(), metrics.horizontalAdvance("100"));
    // Row on row, without a gap, and all of the last one.
    for (int row = 2; row <= window->RowCount(); ++row) {
      EXPECT_EQ(Button(row)->y(), Button(row - 1)->geometry().bottom() + 1) << row;
    }
    EXPECT_TRUE(Frame()->rect().contains(Panel(window->RowCount())->geometry()));
  }
  EXPECT_EQ(Button(1)->height(), usual);
}

}  // namespace
}  // namespace logchecker
