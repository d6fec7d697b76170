// Buttons and tick boxes under the keyboard.
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class ButtonsTest : public WindowTest {
 protected:
  void SetUp() override {
    auto* layout = new QVBoxLayout(&dialog);
    for (QWidget* part : std::initializer_list<QWidget*>{box, tick, tool, other, ok}) {
      layout->addWidget(part);
    }
    ok->setDefault(true);
    const auto count = [this](QAbstractButton* button, int* presses) {
      QObject::connect(button, &QAbstractButton::clicked, &dialog, [presses] { ++*presses; });
    };
    count(tool, &tools);
    count(other, &others);
    count(ok, &oks);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
  }
  void Return(QWidget* focus, Qt::Key key = Qt::Key_Return,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    focus->setFocus();
    QTest::keyClick(focus, key, modifiers);
  }

  QDialog dialog;
  QLineEdit* box = new QLineEdit;
  QCheckBox* tick = new QCheckBox("Search the &notes");
  QToolButton* tool = new QToolButton;
  QPushButton* other = new QPushButton("Cancel");
  QPushButton* ok = new QPushButton("OK");
  int tools = 0;
  int others = 0;
  int oks = 0;
};

TEST_F(ButtonsTest, ReturnPressesTheButtonThatHasTheFocus) {
  Return(tool);
  Return(tool, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(tools, 2);
  Return(other);
  EXPECT_EQ(others, 1);
  EXPECT_EQ(oks, 0);
  Return(box);
  Return(tick);
  EXPECT_EQ(oks, 2) << "elsewhere it presses the default button";
  EXPECT_FALSE(tick->isChecked());
}

TEST_F(ButtonsTest, AHeldReturnPressesOnlyAButtonThatRepeats) {
  const auto hold = [this] {
    tool->setFocus();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
    QApplication::sendEvent(tool, &held);
  };
  hold();
  EXPECT_EQ(tools, 0);
  tool->setAutoRepeat(true);
  hold();
  EXPECT_EQ(tools, 1);
  EXPECT_EQ(oks, 0);
}

TEST_F(ButtonsTest, ATickBoxIsTurnedByItsAccessKeyAtOnce) {
  box->setFocus();
  QTest::keyClick(box, Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(tick->isChecked());
  EXPECT_TRUE(tick->hasFocus());
  QTest::keyClick(tick, Qt::Key_N, Qt::AltModifier);
  EXPECT_FALSE(tick->isChecked());
  tick->setEnabled(false);
  QTest::keyClick(box, Qt::Key_N, Qt::AltModifier);
  EXPECT_FALSE(tick->isChecked());
}

}  // namespace
}  // namespace logchecker
