// When a box selects its text: whenever it gets the focus, and not where it gets it back.
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

#include "common/ui/TextBoxes.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class SelectionOnFocusTest : public WindowTest {
 protected:
  void SetUp() override {
    auto* layout = new QVBoxLayout(&dialog);
    for (QWidget* part : std::initializer_list<QWidget*>{box, combo, other}) {
      layout->addWidget(part);
    }
    box->setText("some words");
    combo->setEditable(true);
    combo->setEditText("some words");
    SelectAllOnFocus(*box);
    SelectAllOnFocus(*combo);
    Show();
  }
  void Show() {
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QApplication::processEvents();
  }
  // The box that has the focus is typed into, with no selection.
  void Type() {
    for (QLineEdit* line : {box, combo->lineEdit()}) line->deselect();
  }
  void ExpectNothingSelected() {
    QApplication::processEvents();
    for (const QLineEdit* line : {box, combo->lineEdit()}) EXPECT_EQ(line->selectedText(), "");
  }
  static void GoAwayAndComeBack(QWidget* window) {
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::processEvents();
    QApplication::setActiveWindow(window);
    QApplication::processEvents();
  }

  QDialog dialog;
  QLineEdit* box = new QLineEdit;
  QComboBox* combo = new QComboBox;
  QWidget* other = new QLineEdit;
};

TEST_F(SelectionOnFocusTest, TheFirstBoxOfAWindowIsSelectedWhenItIsShownAndShownAgain) {
  EXPECT_TRUE(box->hasFocus());
  EXPECT_EQ(box->selectedText(), "some words");
  Type();
  dialog.hide();
  QApplication::processEvents();
  Show();
  EXPECT_EQ(box->selectedText(), "some words");
}

TEST_F(SelectionOnFocusTest, EveryWayToTheBoxSelectsIt) {
  for (const Qt::FocusReason reason :
       {Qt::MouseFocusReason, Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::ShortcutFocusReason,
        Qt::OtherFocusReason}) {
    for (QWidget* target : std::initializer_list<QWidget*>{box, combo}) {
      other->setFocus();
      Type();
      target->setFocus(reason);
      QApplication::processEvents();
      const QLineEdit* line = target == box ? box : combo->lineEdit();
      EXPECT_EQ(line->selectedText(), "some words") << reason;
    }
  }
}

TEST_F(SelectionOnFocusTest, AMenuThatClosesSelectsNothing) {
  for (QWidget* target : std::initializer_list<QWidget*>{box, combo}) {
    target->setFocus();
    QApplication::processEvents();
    Type();
    QMenu menu;
    menu.addAction("entry");
    menu.popup(QPoint(10, 10));
    QApplication::processEvents();
    menu.close();
    ExpectNothingSelected();
    EXPECT_TRUE(target->hasFocus());
  }
}

TEST_F(SelectionOnFocusTest, AWindowThatComesBackToTheFrontSelectsNothing) {
  for (QWidget* target : std::initializer_list<QWidget*>{box, combo}) {
    target->setFocus();
    QApplication::processEvents();
    Type();
    GoAwayAndComeBack(&dialog);
    ExpectNothingSelected();
    EXPECT_TRUE(target->hasFocus());
  }
}

TEST_F(SelectionOnFocusTest, OnlyTheHeadIsSelectedWhereThatIsAskedFor) {
  QLineEdit hour("1234");
  SelectHeadOnFocus(hour, 3);
  hour.show();
  QApplication::setActiveWindow(&hour);
  hour.setFocus();
  QApplication::processEvents();
  EXPECT_EQ(hour.selectedText(), "123");
  hour.setText("12");
  GoAwayAndComeBack(&hour);
  EXPECT_EQ(hour.selectedText(), "");
}

}  // namespace
}  // namespace logchecker
