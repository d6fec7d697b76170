// A split's grid for those who can't see it.
#include <QAccessible>
#include <QMdiArea>

#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "splitlogs/ui/LogGridView.h"
#include "splitlogs/ui/frmSplit.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class SpokenGridTest : public WindowTest {
 protected:
  SpokenGridTest() {
    gSplits.SetFactory([this] {
      auto split = std::make_unique<frmSplit>();
      area.addSubWindow(split.get());
      return split;
    });
    gGeneralSettings.NumberActiveSplits = 2;
    area.resize(1000, 700);
    area.show();
    QApplication::setActiveWindow(&area);
    OpenStore(100);
    PutCart(11, 30.0F);
    for (int16_t split = 1; split <= 2; ++split) {
      WriteLog(split, kDay,
               "06:00:00|NTH  00000011 ADVERT    \r\n\r\n"
               "07:30:00|NTH  00000012 B\r\n07:30:30|NTH  00000011 C\r\n\r\n");
      SettingsOf(split).LogDate = kDay;
      gSplits(split).UpdateInfo();
      Window(split).show();
      gSplits(split).LoadLogFile();
      gSplits(split).SelectBreakByTime(0);
    }
  }
  ~SpokenGridTest() override { gSplits.UnloadAll(); }

  static frmSplit& Window(int16_t split) { return static_cast<frmSplit&>(gSplits(split)); }
  static LogGridView& View(int16_t split) {
    return *Control<LogGridView>(&Window(split), "gridLog");
  }
  static QAccessibleInterface* Grid(int16_t split) {
    return QAccessible::queryAccessibleInterface(&View(split));
  }
  static QAccessibleInterface* Cell(int16_t split, int row, int column) {
    return Grid(split)->tableInterface()->cellAt(row, column);
  }
  static QStringList Row(int row) {
    QStringList said;
    for (int column = 0; column < Grid(1)->tableInterface()->columnCount(); ++column) {
      said << Cell(1, row, column)->text(QAccessible::Name);
    }
    return said;
  }

  QMdiArea area;
};

TEST_F(SpokenGridTest, TheColumnsOnShowAreTold) {
  QStringList headings;
  for (int column = 0; column < 4; ++column) {
    headings << Grid(1)->tableInterface()->columnDescription(column);
  }
  EXPECT_EQ(headings, QStringList({"Time", "Description", "Cart", "Length"}));
  EXPECT_EQ(Grid(1)->tableInterface()->columnCount(), 4);
  EXPECT_EQ(Row(0), QStringList({"06:00", "ADVERT", "11", ":30"}));
  EXPECT_EQ(Row(3)[3], "--:--, no audio");
  EXPECT_EQ(
      Cell(1, 0, 2)->tableCellInterface()->columnHeaderCells().value(0)->text(QAccessible::Name),
      "Cart");
}

TEST_F(SpokenGridTest, ARowIsChosenInEverySplit) {
  Cell(1, 4, 1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  for (const int16_t split : {int16_t{1}, int16_t{2}}) {
    EXPECT_TRUE(Cell(split, 3, 0)->state().selected) << split;
    EXPECT_FALSE(Cell(split, 0, 0)->state().selected) << split;
  }
}

TEST_F(SpokenGridTest, OneCellOfAllGridsHasTheFocus) {
  View(2).setFocus();
  Cell(2, 3, 0)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  int focused = 0;
  for (const int16_t split : {int16_t{1}, int16_t{2}}) {
    for (int child = 0; child < Grid(split)->childCount(); ++child) {
      focused += Grid(split)->child(child)->state().focused ? split : 0;
    }
  }
  EXPECT_EQ(focused, 2);
  EXPECT_EQ(gSplits(2).gridLog.Row(), 4);
}

TEST_F(SpokenGridTest, ACellOfALogThatHasGoneIsNoMore) {
  const QAccessible::Id old = QAccessible::uniqueId(Cell(1, 4, 1));
  WriteLog(1, kDay, "06:00:00|NTH  00000011 A\r\n\r\n");
  gSplits(1).LoadLogFile();
  // While somebody listens it goes at once.
  const QAccessibleInterface* left = QAccessible::accessibleInterface(old);
  EXPECT_TRUE(left == nullptr || !left->isValid());
  EXPECT_EQ(Cell(1, 4, 1), nullptr);
  EXPECT_EQ(Cell(1, -1, 1), nullptr);
  EXPECT_EQ(Cell(1, 0, 4), nullptr);
}

}  // namespace
}  // namespace logchecker
