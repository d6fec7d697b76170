// The picker of the day for those who can't see it.
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>

#include "common/Dates.h"
#include "dialogs/ui/frmSelectHour.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class SpokenPickerTest : public WindowTest {
 protected:
  SpokenPickerTest() {
    picker.Tag = "4640200";  // 15 January 2027
    picker.SetMinutes("00");
    picker.show();
    QApplication::setActiveWindow(&picker);
  }

  QAccessibleInterface* Part(const char* name) {
    return QAccessible::queryAccessibleInterface(Control<QWidget>(&picker, name));
  }
  // The names of the days that can be heard, or of those alone that are picked.
  QStringList Days(bool picked) {
    QStringList days;
    for (int child = 0; child < Part("calendar")->childCount(); ++child) {
      const QAccessibleInterface* day = Part("calendar")->child(child);
      if (day->role() != QAccessible::ListItem || day->state().invisible) continue;
      if (!picked || day->state().selected) days << day->text(QAccessible::Name);
    }
    return days;
  }

  frmSelectHour picker;
};

TEST_F(SpokenPickerTest, TheDaysAreAListOfWhichOneIsPicked) {
  EXPECT_EQ(Part("calendar")->role(), QAccessible::List);
  EXPECT_EQ(Days(false).size(), 31) << "gaps are not heard";
  EXPECT_EQ(Days(true), QStringList{"15 January 2027"});
  Part("lblDay20")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Days(true), QStringList{"16 January 2027"});
  Part("lblDay21")->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(Days(true), QStringList{"17 January 2027"});
}

TEST_F(SpokenPickerTest, TheYearIsToldAsItIsAndCanBeSet) {
  QAccessibleValueInterface* year = Part("YearScroll")->valueInterface();
  EXPECT_EQ(year->currentValue(), 2027);
  EXPECT_EQ(year->minimumValue(), 1980);
  EXPECT_EQ(year->maximumValue(), 2999);
  year->setCurrentValue(2028);
  EXPECT_EQ(Control<QLabel>(&picker, "lblYear")->text(), "2028");
  EXPECT_EQ(Days(true), QStringList{"15 January 2028"});
  year->setCurrentValue(3000);
  EXPECT_EQ(year->currentValue(), 2999);
}

TEST_F(SpokenPickerTest, TheHourOfTheDialIsToldAndCanBeSet) {
  QAccessibleValueInterface* dial = Part("TimeP")->valueInterface();
  EXPECT_EQ(Part("TimeP")->role(), QAccessible::Dial);
  EXPECT_EQ(dial->currentValue(), 0);
  dial->setCurrentValue(23);
  EXPECT_EQ(Control<QLineEdit>(&picker, "TimeT")->text(), "23");
  EXPECT_EQ(dial->currentValue(), 23);
  picker.DisableTime();
  dial->setCurrentValue(7);
  EXPECT_EQ(dial->currentValue(), 23) << "it is turned off";
}

}  // namespace
}  // namespace logchecker
