// The browser's number box and tick box with the keys as a keyboard gives them, and its rows when
// it is shown again.
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QInputMethodEvent>

#include "cartbrowser/ui/KeyPreview.h"
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

TEST_F(CartBrowserKeysTest, TheNumberTakesNoLetterOfADeadKey) {
  SetNumber("7");
  for (const char* text : {"\xC3\xA9", "x", "\xC2\xB2"}) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(text));
    QApplication::sendEvent(Number(), &event);
    EXPECT_EQ(Number()->text(), "7") << text;
  }
}

TEST_F(CartBrowserKeysTest, AltTypesACharacterOnlyWithControl) {
  const auto characterOf = [](Qt::Key key, Qt::KeyboardModifiers modifiers, const char* text) {
    return CharacterOf(QKeyEvent(QEvent::KeyPress, key, modifiers, QString::fromUtf8(text)));
  };
  EXPECT_EQ(characterOf(Qt::Key_J, {}, "j"), 'j');
  EXPECT_EQ(characterOf(Qt::Key_J, Qt::AltModifier, "j"), '\0');
  EXPECT_EQ(characterOf(Qt::Key_E, Qt::AltModifier | Qt::ControlModifier, "\xC3\xA9"), '\xE9');
  EXPECT_EQ(characterOf(Qt::Key_F5, {}, ""), '\0');
  EXPECT_EQ(characterOf(Qt::Key_Escape, Qt::AltModifier, ""), '\x1B');
  EXPECT_EQ(characterOf(Qt::Key_Backspace, {}, ""), '\b');
}

TEST_F(CartBrowserKeysTest, TheNumberIsSelectedWhenItGetsTheFocusAndNotWhenItGetsItBack) {
  SetNumber("57");
  // Of itself a box does so only when the focus comes by a key.
  for (const auto reason : {Qt::TabFocusReason, Qt::MouseFocusReason, Qt::OtherFocusReason}) {
    Control<QWidget>(window.get(), "cmdCancel")->setFocus();
    Number()->deselect();
    Number()->setFocus(reason);
    QApplication::processEvents();
    EXPECT_EQ(Number()->selectedText(), "57") << reason;
    Number()->deselect();
  }
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  QApplication::processEvents();
  QApplication::setActiveWindow(window.get());
  QApplication::processEvents();
  EXPECT_TRUE(Number()->hasFocus());
  EXPECT_EQ(Number()->selectedText(), "");
  Type(Qt::Key_3, "3");
  EXPECT_EQ(Number()->text(), "573");
}

TEST_F(CartBrowserKeysTest, TheNumberGetsTheFocusWheneverTheWindowBecomesActive) {
  Control<QWidget>(window.get(), "cmdCancel")->setFocus();
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  QApplication::processEvents();
  QApplication::setActiveWindow(window.get());
  QApplication::processEvents();
  EXPECT_TRUE(Number()->hasFocus());
  EXPECT_EQ(Number()->selectedText(), "1");
}

TEST_F(CartBrowserKeysTest, TabMovesTheFocusWhateverIsHeldWithIt) {
  Number()->setFocus();
  Type(Qt::Key_Tab, "\t");
  EXPECT_TRUE(Jump()->hasFocus());
  Type(Qt::Key_Backtab, "\t", Qt::ShiftModifier);
  EXPECT_TRUE(Number()->hasFocus());
  Type(Qt::Key_Backtab, "\t", Qt::ShiftModifier);
  EXPECT_TRUE(Control<QWidget>(window.get(), "cmdCancel")->hasFocus());
  EXPECT_EQ(Number()->text(), "1");
  window->JumpToCart(97);
  Control<QWidget>(window.get(), "chkDouble")->setFocus();
  Type(Qt::Key_Backtab, "\t", Qt::ShiftModifier);
  EXPECT_EQ(window->RowCount(), 10) << "in the tick box it lays nothing out";
}

TEST_F(CartBrowserKeysTest, ReturnPressesTheButtonThatHasTheFocus) {
  const auto press = [this](const char* button) {
    Control<QWidget>(window.get(), button)->setFocus();
    Type(Qt::Key_Return, "\r");
  };
  press("cmdSmallScroll1");
  ExpectAt("1", 2);
  press("cmdBigScroll1");
  ExpectAt("11", 2);
  press("cmdCancel");
  ExpectClosedWith(0);
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
