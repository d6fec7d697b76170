// The search for those who can't see it.
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>

#include "tests/cartbrowser/ui/FindCartForm.h"

namespace logchecker {
namespace {

class SpokenSearchTest : public FindCartFormTest {
 protected:
  QAccessibleInterface* Table() { return QAccessible::queryAccessibleInterface(List()); }
  QString Said(int row, int column) {
    return Table()->tableInterface()->cellAt(row, column)->text(QAccessible::Name);
  }
};

TEST_F(SpokenSearchTest, LabelsBelongToTheirControls) {
  EXPECT_EQ(The<QLabel>("lblFindText")->buddy(), Text());
  EXPECT_EQ(The<QLabel>("lblFindDirection")->buddy(), The<QComboBox>("cmbSearchDirection"));
  EXPECT_EQ(The<QLabel>("lblTimeDesc")->buddy(), The<QLineEdit>("mskLength"));
  EXPECT_EQ(The<QLabel>("lblTimeDesc2")->buddy(), The<QComboBox>("comboLength"));
  EXPECT_EQ(The<QLabel>("lblSearchCart")->buddy(), The<QLabel>("lblSearchCartNumber"));
}

TEST_F(SpokenSearchTest, TheHiddenColumnIsHiddenFromEarsToo) {
  FindText("CART");
  EXPECT_EQ(Table()->role(), QAccessible::Table);
  EXPECT_EQ(Table()->tableInterface()->columnCount(), 5);
  EXPECT_EQ(Table()->childCount(), 5 * (4 + 1));
  for (int child = 0; child < Table()->childCount(); ++child) {
    EXPECT_FALSE(Table()->child(child)->text(QAccessible::Name).startsWith("0000")) << child;
    EXPECT_EQ(Table()->indexOfChild(Table()->child(child)), child);
  }
  EXPECT_EQ(Table()->child(0)->text(QAccessible::Name), "Cart");
  EXPECT_EQ(Said(0, 0), "5");
  EXPECT_EQ(Said(0, 1), "FIFTH CART");
  EXPECT_EQ(Said(1, 2), "Line 2 is empty");
}

TEST_F(SpokenSearchTest, AHeadingSortsAndARowIsSelectedAndChosen) {
  FindText("CART");
  QAccessibleActionInterface* heading = Table()->child(0)->actionInterface();
  heading->doAction(QAccessibleActionInterface::pressAction());
  heading->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Said(0, 0), "299");
  EXPECT_TRUE(Table()->tableInterface()->selectRow(2));
  EXPECT_EQ(Table()->tableInterface()->selectedRows(), QList<int>{2});
  Table()->tableInterface()->cellAt(1, 3)->actionInterface()->doAction(
      QAccessibleActionInterface::pressAction());
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(browser.jumps, std::vector<int32_t>{200});
}

}  // namespace
}  // namespace logchecker
