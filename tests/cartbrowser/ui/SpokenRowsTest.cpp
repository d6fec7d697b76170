// The rows of the browser for those who can't see them.
#include <QAccessible>

#include "tests/cartbrowser/ui/BrowserWindow.h"

namespace logchecker {
namespace {

class SpokenRowsTest : public BrowserWindowTest {
 protected:
  void SetUp() override {
    OpenStore(100);
    PutCart(3, RecordOfLines("THIRD CART", "WITH SPOONS", "AND FORKS"));
    Open();
  }

  QFrame* Frame() { return Control<QFrame>(window.get(), "pnlCartLabels"); }
  QAccessibleInterface* List() { return QAccessible::queryAccessibleInterface(Frame()); }
  QAccessibleInterface* Row(int row) { return List()->child(row - 1); }
  int CurrentRow() {
    int current = 0;
    for (int row = 1; row <= List()->childCount(); ++row) {
      if (!Row(row)->state().selected) continue;
      EXPECT_EQ(current, 0) << "one row is the current one";
      current = row;
    }
    return current;
  }
  static void Do(QAccessibleInterface* part, const QString& action) {
    ASSERT_TRUE(part->actionInterface()->actionNames().contains(action));
    part->actionInterface()->doAction(action);
  }
};

TEST_F(SpokenRowsTest, TheRowsAreAListWithTheCurrentOneMarked) {
  EXPECT_EQ(List()->role(), QAccessible::List);
  EXPECT_EQ(List()->childCount(), 10);
  EXPECT_EQ(CurrentRow(), 1);
  EXPECT_EQ(Row(3)->role(), QAccessible::ListItem);
  EXPECT_EQ(Row(3)->text(QAccessible::Name), "Cart 3, THIRD CART, WITH SPOONS, AND FORKS");
  EXPECT_EQ(List()->indexOfChild(Row(3)), 2);
  EXPECT_EQ(Row(3)->parent(), List());
  const QPoint number = Button(3)->mapToGlobal(Button(3)->rect().center());
  EXPECT_EQ(List()->childAt(number.x(), number.y()), Row(3)) << "the number belongs to it";
  EXPECT_EQ(Row(11), nullptr);
}

TEST_F(SpokenRowsTest, WhoMovesIsOnTheRow) {
  EXPECT_FALSE(Row(1)->state().focused) << "who comes in begins in the box";
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  QApplication::processEvents();
  EXPECT_TRUE(Row(3)->state().focused);
  EXPECT_EQ(List()->focusChild(), Row(3));
  Press("cmdBigScroll1");
  QApplication::processEvents();
  EXPECT_TRUE(Row(3)->state().focused);
  EXPECT_EQ(Row(3)->text(QAccessible::Name), "Cart 13, not in use");
}

TEST_F(SpokenRowsTest, WhoTypesIsInTheBoxAgain) {
  Key(Qt::Key_Down);
  QApplication::processEvents();
  QTest::keyClicks(Number(), "42");
  EXPECT_FALSE(Row(2)->state().focused);
  EXPECT_EQ(List()->focusChild(), nullptr);
  EXPECT_EQ(CurrentRow(), 2);
}

TEST_F(SpokenRowsTest, WhoGoesToAnotherControlIsThere) {
  Key(Qt::Key_Down);
  QApplication::processEvents();
  Key(Qt::Key_Tab);
  EXPECT_FALSE(Row(2)->state().focused);
}

TEST_F(SpokenRowsTest, ARowIsMadeCurrentWithoutBeingTaken) {
  Do(Row(4), QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(CurrentRow(), 4);
  ExpectAt("1", 4);
  Row(6)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(CurrentRow(), 6) << "as Windows selects an item";
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(opener.told.empty());
  Do(Row(5), QAccessibleActionInterface::pressAction());
  ExpectClosedWith(5);
}

TEST_F(SpokenRowsTest, ARowThatIsCutOffWholeOrNotInUseDoesNotShow) {
  EXPECT_FALSE(Row(10)->state().offscreen);
  QAccessibleInterface* tenth = Row(10);
  SetFrameHeight(8 * 21 + 2);
  EXPECT_TRUE(tenth->state().offscreen);
  EXPECT_EQ(List()->childCount(), 8);
  EXPECT_EQ(List()->indexOfChild(tenth), -1);
  // Room for 8.7 rows makes 10 of them, the last of which lies below the frame's edge.
  Frame()->resize(Frame()->width(), 8 * 21 + 14 + 2);
  window->LayOutRows(Frame()->width() * 15, Frame()->height() * 15, Button(1)->width() * 15);
  ASSERT_EQ(List()->childCount(), 10);
  EXPECT_FALSE(Row(9)->state().offscreen) << "a part of it can be seen";
  EXPECT_TRUE(Row(10)->state().offscreen);
}

}  // namespace
}  // namespace logchecker
