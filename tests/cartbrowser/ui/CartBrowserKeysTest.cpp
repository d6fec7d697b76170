// The browser's number box and tick box with the keys as a keyboard gives them, and its rows when
// it is shown again.
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>

#include "tests/cartbrowser/ui/BrowserWindow.h"

namespace logchecker {
namespace {

class CartBrowserKeysTest : public BrowserWindowTest {
 protected:
  // A key with the text that the system sends along with it.
  void Type(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::sendKeyEvent(QTest::Click, window->focusWidget(), key, text, modifiers);
  }
  void SetNumber(const QString& text) {
    Number()->setFocus();
    Number()->setText(text);
    Number()->setCursorPosition(static_cast<int>(text.size()));
  }
};

TEST_F(CartBrowserKeysTest, DeleteDeletesThoughItComesWithACharacter) {
  SetNumber("57");
  Number()->setCursorPosition(0);
  Type(Qt::Key_Delete, QString(QChar(0x7F)));
  EXPECT_EQ(Number()->text(), "7");
  Type(Qt::Key_Backspace, QString(QChar(8)));
  EXPECT_EQ(Number()->text(), "7");
  Number()->setCursorPosition(1);
  Type(Qt::Key_Backspace, QString(QChar(8)));
  EXPECT_EQ(Number()->text(), "");
}

TEST_F(CartBrowserKeysTest, TheNumberTakesNothingButDigitsFromTheKeyboard) {
  SetNumber("7");
  QApplication::clipboard()->setText("12");
  Type(Qt::Key_X, "x");
  Type(Qt::Key_X, "x", Qt::AltModifier);
  Type(Qt::Key_Space, " ");
  Type(Qt::Key_V, QString(QChar(22)), Qt::ControlModifier);
  EXPECT_EQ(Number()->text(), "7");
  Type(Qt::Key_3, "3");
  EXPECT_EQ(Number()->text(), "73");
}

TEST_F(CartBrowserKeysTest, AKeyPressInTheTickBoxLaysTheRowsOutAgain) {
  Press("cmdBigScroll1");
  window->JumpToCart(97);
  ASSERT_EQ(window->RowCount(), 10) << "a jump lays nothing out";
  Control<QCheckBox>(window.get(), "chkDouble")->setFocus();
  Type(Qt::Key_Tab, "\t");
  Control<QCheckBox>(window.get(), "chkDouble")->setFocus();
  EXPECT_EQ(window->RowCount(), 10);
  Type(Qt::Key_9, "9");
  EXPECT_EQ(window->RowCount(), 4) << "97 to 100";
  EXPECT_EQ(window->RowHeight(), 315);
}

TEST_F(CartBrowserKeysTest, ShownAgainItHasItsRowsStill) {
  window->JumpToCart(100);
  Press("cmdCancel");
  window->Tag = "50";
  Show();
  EXPECT_EQ(NumbersShown().size(), 10U);
  ExpectAt("50", 1);
}

TEST_F(CartBrowserKeysTest, ADescriptionThatIsAskedForLaterTakesItsRoom) {
  const auto* labels = Control<QFrame>(window.get(), "pnlCartLabels");
  const int height = labels->height();
  window->hide();
  window->ShowDescription = true;
  window->SetDescription("Pick one");
  Show();
  EXPECT_LT(labels->height(), height);
}

}  // namespace
}  // namespace logchecker
