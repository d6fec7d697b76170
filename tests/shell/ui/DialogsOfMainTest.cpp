// The dialogs that the main window opens: over whom they stand, and what the picker's answer means.
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

#include "dialogs/ui/frmSelectHour.h"
#include "shell/ui/frmGeneralSettings.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

class DialogsOfMainTest : public MainTest {
 protected:
  DialogsOfMainTest() { EXPECT_TRUE(Start()); }

  // Opens the picker, and answers with OK.
  void Pick(const std::function<void(QDialog*)>& work) {
    DialogScript script([&](QDialog* picker) {
      work(picker);
      Control<QPushButton>(picker, "OKB")->click();
    });
    Press("sftLoad");
  }
};

TEST_F(DialogsOfMainTest, EveryDialogStandsOverTheMainWindow) {
  const auto seen = [this](QDialog* dialog) {
    EXPECT_EQ(dialog->parentWidget(), main.get()) << dialog->objectName().toStdString();
    EXPECT_TRUE(dialog->isModal());
    dialog->reject();
  };
  {
    DialogScript script;
    for (int dialog = 0; dialog < 3; ++dialog) script.Then(seen);
    Press("sftLoad");
    Entry("mnuCartLocations")->trigger();
    Entry("mnuLogSettings2")->trigger();
  }
  QTimer::singleShot(0, main.get(), [this] {
    auto* general = main->findChild<frmGeneralSettings*>();
    ASSERT_NE(general, nullptr);
    EXPECT_EQ(general->parentWidget(), main.get());
    general->reject();
  });
  Entry("mnuSettingsGeneral")->trigger();
}

TEST_F(DialogsOfMainTest, ThePickerIsGivenNoMinutesEachTime) {
  Pick([](QDialog* picker) {
    EXPECT_EQ(Control<QLineEdit>(picker, "txtMinutes")->text(), "00");
    EXPECT_EQ(Control<QLineEdit>(picker, "TimeT")->text(), "0");
  });
  main->findChild<frmSelectHour*>()->SetMinutes("45");
  Pick([](QDialog* picker) { EXPECT_EQ(Control<QLineEdit>(picker, "txtMinutes")->text(), "00"); });
}

TEST_F(DialogsOfMainTest, OfADayOfSixDigitsTheFirstFiveCount) {
  SettingsOf(1).LogDate = kTomorrow;
  Pick([](QDialog* picker) {
    // Day 100001 is 15 October 2173.
    Control<QScrollBar>(picker, "YearScroll")->setValue(-2173);
    Control<QComboBox>(picker, "MonthList")->setCurrentIndex(9);
    Control<QScrollBar>(picker, "DayScroll")->setValue(15);
  });
  EXPECT_EQ(CurrentLogDate, 10000) << "100001 and its hour, by its first five digits";
}

}  // namespace
}  // namespace logchecker
