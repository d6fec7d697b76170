// What can be typed into the dialogs' boxes, by keys and by input methods.
#include <QInputMethodEvent>
#include <QLineEdit>

#include "common/ui/TextBoxes.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class TypedTextTest : public WindowTest {
 protected:
  // What dead keys, the compose key and input methods give.
  void Commit(const QString& text) {
    QInputMethodEvent preview("...", {});
    QApplication::sendEvent(&box, &preview);
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&box, &event);
  }

  QLineEdit box;
};

TEST_F(TypedTextTest, EveryWayOfTypingGivesUpperCase) {
  TypeInUpperCase(box);
  QTest::keyClicks(&box, "ab1");
  Commit(QString::fromUtf8("\xC3\xA9"));
  EXPECT_EQ(box.text(), QString::fromUtf8("AB1\xC3\x89"));
  EXPECT_EQ(box.displayText(), box.text()) << "nothing of the input is left over";
}

TEST_F(TypedTextTest, NoWayOfTypingGivesAnythingButDigits) {
  TypeDigitsOnly(box);
  QTest::keyClicks(&box, "1a2");
  Commit(QString::fromUtf8("\xC3\xA9"));
  Commit("1x");
  Commit(QString::fromUtf8("\xC2\xBD"));
  EXPECT_EQ(box.text(), "12");
  EXPECT_EQ(box.displayText(), "12");
  Commit("34");
  EXPECT_EQ(box.text(), "1234");
}

// Some systems give the letter of a command as its text.
TEST_F(TypedTextTest, ALetterWithControlIsACommandAndNotTyped) {
  TypeDigitsOnly(box);
  box.setText("12");
  QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_A, "a", Qt::ControlModifier);
  EXPECT_EQ(box.selectedText(), "12");
  EXPECT_EQ(box.text(), "12");
}

}  // namespace
}  // namespace logchecker
