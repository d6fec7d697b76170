// What a box of one line makes of line breaks and other control characters, whichever way they
// come.
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <memory>

#include "common/ui/SingleLineBoxes.h"
#include "common/ui/TextBoxes.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class SingleLineBoxesTest : public WindowTest {
 protected:
  void SetUp() override {
    box.setText("old");
    box.show();
    QApplication::setActiveWindow(&box);
    box.setFocus();
    box.selectAll();
  }
  static void Copy(const QString& text) { QApplication::clipboard()->setText(text); }
  static void PasteByKey(QWidget* target) {
    QTest::keyClick(target, Qt::Key_V, Qt::ControlModifier);
  }
  // Opens the menu of a box and takes its entry.
  static void PasteByMenu(QWidget* target) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, target->rect().center(),
                            target->mapToGlobal(target->rect().center()));
    QApplication::sendEvent(target, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_P);
    menu->close();
    QApplication::processEvents();
  }
  static void Drop(QWidget* target, const QString& text) {
    QMimeData data;
    data.setText(text);
    const QPoint place = target->rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &drop);
    EXPECT_TRUE(drop.isAccepted());
  }
  static void Commit(QWidget* target, const QString& text) {
    QInputMethodEvent preview("...", {});
    QApplication::sendEvent(target, &preview);
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(target, &event);
  }

  QLineEdit box;
};

TEST_F(SingleLineBoxesTest, WhatIsPastedLosesItsControlCharacters) {
  const struct {
    const char* copied;
    const char* pasted;
  } rows[] = {{"East\n[Oops]\nWest", "East[Oops]West"},
              {"C:\\LOGS\r\n", "C:\\LOGS"},
              {"a\tb\x01"
               "c\x7F"
               "d",
               "abcd"},
              {"a\xE2\x80\xA8"
               "b\xE2\x80\xA9"
               "c\xC2\x85"
               "d",
               "abcd"},
              {"plain \xC3\xA9", "plain \xC3\xA9"}};
  for (const auto& row : rows) {
    for (void (*paste)(QWidget*) : {PasteByKey, PasteByMenu}) {
      Copy(QString::fromUtf8(row.copied));
      box.setText("old");
      box.selectAll();
      paste(&box);
      EXPECT_EQ(box.text(), QString::fromUtf8(row.pasted));
      box.undo();
      EXPECT_EQ(box.text(), "old") << "a paste can be taken back";
    }
  }
}

TEST_F(SingleLineBoxesTest, AtTheEndOfATextThatIsPastedTheCursorStands) {
  Copy("b\nc");
  box.setText("ad");
  box.setCursorPosition(1);
  PasteByKey(&box);
  QTest::keyClicks(&box, "!");
  EXPECT_EQ(box.text(), "abc!d");
}

TEST_F(SingleLineBoxesTest, LineBreaksAloneLeaveTheBoxAsItWas) {
  Copy("\r\n");
  PasteByKey(&box);
  PasteByMenu(&box);
  EXPECT_EQ(box.text(), "old");
  EXPECT_EQ(box.selectedText(), "old");
}

TEST_F(SingleLineBoxesTest, WhatIsDroppedOrGivenByAnInputMethodLosesThemToo) {
  box.clear();
  Drop(&box, "one\ntwo");
  EXPECT_EQ(box.text(), "onetwo");
  box.clear();
  Commit(&box, "th\nr\tee");
  EXPECT_EQ(box.text(), "three");
  EXPECT_EQ(box.displayText(), "three") << "nothing of the input is left over";
  box.clear();
  QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, "fo\nur", {});
  EXPECT_EQ(box.text(), "four");
}

TEST_F(SingleLineBoxesTest, ABoxWithAListIsABoxOfOneLine) {
  QComboBox combo;
  combo.setEditable(true);
  combo.show();
  QApplication::setActiveWindow(&combo);
  combo.setFocus();
  Copy("a\nb");
  PasteByKey(&combo);
  EXPECT_EQ(combo.currentText(), "ab");
  PasteByMenu(combo.lineEdit());
  EXPECT_EQ(combo.currentText(), "abab");
  Commit(&combo, "c\n");
  EXPECT_EQ(combo.currentText(), "ababc");
  Drop(combo.lineEdit(), "\nd");
  EXPECT_EQ(combo.currentText().count('\n'), 0);
  EXPECT_TRUE(combo.currentText().contains('d'));
}

TEST_F(SingleLineBoxesTest, WhatTheProgramPutsThereStays) {
  box.setText("a\tb");
  box.setCursorPosition(3);
  Copy("c\n");
  PasteByKey(&box);
  EXPECT_EQ(box.text(), "a\tbc");
}

TEST_F(SingleLineBoxesTest, ABoxThatIsOnlyReadTakesNothing) {
  box.setReadOnly(true);
  Copy("a\nb");
  PasteByKey(&box);
  EXPECT_EQ(box.text(), "old");
}

TEST_F(SingleLineBoxesTest, ThePasteKeepsTheBoxesOwnRules) {
  TakeStationTextOnly(box);
  Copy(QString::fromUtf8("a\n\xE2\x98\x83"));
  PasteByKey(&box);
  EXPECT_EQ(box.text(), "old") << "the code page holds no snowman";
  box.setMaxLength(4);
  box.selectAll();
  Copy("1\n2\n3\n4\n5");
  PasteByKey(&box);
  EXPECT_EQ(box.text(), "1234");
}

}  // namespace
}  // namespace logchecker
