#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <limits>

#include "common/GeneralSettings.h"
#include "platform/Platform.h"
#include "shell/ui/frmGeneralSettings.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

constexpr char kFile[] = "; our own\r\n[Other]\r\nkey=1\r\n[General]\r\nSplitName1=A\r\n";

class GeneralSettingsTest : public WindowTest {
 protected:
  GeneralSettingsTest() {
    folder().WriteFile("VELKLT.INI", kFile);
    Open();
  }
  void Open() {
    dialog = std::make_unique<frmGeneralSettings>();
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
  }
  QLineEdit* Splits() { return Control<QLineEdit>(dialog.get(), "txtNumberSplits"); }
  QLineEdit* Seconds() { return Control<QLineEdit>(dialog.get(), "txtSecondsDifference"); }
  QCheckBox* Box(const char* name) { return Control<QCheckBox>(dialog.get(), name); }
  void Press(const char* button) { Control<QPushButton>(dialog.get(), button)->click(); }

  std::unique_ptr<frmGeneralSettings> dialog;
};

TEST_F(GeneralSettingsTest, ShowsTheValuesInMemory) {
  EXPECT_EQ(dialog->windowTitle(), "KLT Manager Settings");
  EXPECT_EQ(Splits()->text(), "2");
  EXPECT_EQ(Seconds()->text(), "0.5");
  EXPECT_TRUE(Box("chkDisplayCheckHH")->isChecked());
  EXPECT_TRUE(Box("chkDisplayBreakHH")->isChecked());
  EXPECT_FALSE(Box("chkDisplayAdvertHH")->isChecked());
  gGeneralSettings.BreakDifferenceMS = 2000;
  Open();
  EXPECT_EQ(Seconds()->text(), "2");
  gGeneralSettings.BreakDifferenceMS = 1500;
  Open();
  EXPECT_EQ(Seconds()->text(), "1.5");
}

TEST_F(GeneralSettingsTest, AToleranceBeyondTheLargestIsTheLargest) {
  const struct {
    const char* typed;
    int32_t milliseconds;
  } cases[] = {{"2147483.647", 2147483647},   {"2147483.648", 2147483647},
               {"99999999999", 2147483647},   {"1e400", 2147483647},
               {"-2147483.648", -2147483648}, {"-99999999999", -2147483648}};
  for (const auto& row : cases) {
    Open();
    Seconds()->setText(row.typed);
    Press("cmdOK");
    EXPECT_EQ(gGeneralSettings.BreakDifferenceMS, row.milliseconds) << row.typed;
    EXPECT_EQ(Os().profiles.GetInt("General", "BreakDifferenceMS", 0, "VELKLT.INI"),
              row.milliseconds);
  }
}

TEST_F(GeneralSettingsTest, OkStoresEverythingAndKeepsTheRestOfTheFile) {
  Splits()->setText("10");
  Seconds()->setText("1.5");
  Box("chkDisplayCheckHH")->setChecked(false);
  Box("chkDisplayAdvertHH")->setChecked(true);
  Press("cmdOK");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(gGeneralSettings.NumberActiveSplits, 10);
  EXPECT_EQ(gGeneralSettings.BreakDifferenceMS, 1500);
  EXPECT_FALSE(gGeneralSettings.DisplayCheckHH);
  EXPECT_TRUE(gGeneralSettings.DisplayBreakHH);
  EXPECT_TRUE(gGeneralSettings.DisplayAdvertHH);
  EXPECT_EQ(folder().ReadFile("VELKLT.INI"),
            std::string(kFile) +
                "DisplayAdvertHH=1\r\nDisplayBreakHH=1\r\nDisplayCheckHH=0\r\n"
                "BreakDifferenceMS=1500\r\nNumberActiveSplits=10\r\n");
}

TEST_F(GeneralSettingsTest, ANumberOfSplitsOutOfRangeIsSaidAndNothingChanges) {
  for (const char* text : {"", "0", "11", "-1", "10.5", "x"}) {
    Splits()->setText(text);
    Seconds()->setText("9");
    Box("chkDisplayCheckHH")->setChecked(false);
    Box("chkDisplayBreakHH")->setChecked(false);
    Box("chkDisplayAdvertHH")->setChecked(true);
    Press("cmdOK");
    EXPECT_TRUE(dialog->isVisible()) << text;
    ASSERT_FALSE(ui.messages.empty()) << text;
    EXPECT_EQ(ui.messages.back().text, "You can only have a 'Number of Splits' from 1 to 10");
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::kInformation);
  }
  EXPECT_EQ(ui.messages.size(), 6U);
  EXPECT_EQ(gGeneralSettings.NumberActiveSplits, 2);
  EXPECT_EQ(gGeneralSettings.BreakDifferenceMS, 500);
  EXPECT_TRUE(gGeneralSettings.DisplayCheckHH);
  EXPECT_TRUE(gGeneralSettings.DisplayBreakHH);
  EXPECT_FALSE(gGeneralSettings.DisplayAdvertHH);
  EXPECT_EQ(folder().ReadFile("VELKLT.INI"), kFile);
}

TEST_F(GeneralSettingsTest, APastedFractionPassesAndIsRounded) {
  Splits()->setText("2.5");
  Press("cmdOK");
  EXPECT_EQ(gGeneralSettings.NumberActiveSplits, 2) << "halves go to the even number";
}

TEST_F(GeneralSettingsTest, TheToleranceIsNotTested) {
  const struct {
    const char* text;
    int32_t milliseconds;
  } rows[] = {{"", 0},
              {"-2", -2000},
              {"0.5", 500},
              {"0.0005", 0},
              {"0.0015", 2},
              {"1e9", std::numeric_limits<int32_t>::max()},
              {"-1e9", std::numeric_limits<int32_t>::min()},
              {"seven", 0},
              {"3 s", 3000}};
  for (const auto& row : rows) {
    Open();
    Seconds()->setText(row.text);
    Press("cmdOK");
    EXPECT_EQ(gGeneralSettings.BreakDifferenceMS, row.milliseconds) << row.text;
  }
}

TEST_F(GeneralSettingsTest, OnlyDigitsCanBeTypedThoughOtherTextCanBePasted) {
  Splits()->clear();
  QTest::keyClicks(Splits(), "1a-.0 ");
  EXPECT_EQ(Splits()->text(), "10");
  QTest::keyClick(Splits(), Qt::Key_Backspace);
  EXPECT_EQ(Splits()->text(), "1");
  QApplication::clipboard()->setText("2.5");
  Splits()->selectAll();
  QTest::keyClick(Splits(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Splits()->text(), "2.5");
}

TEST_F(GeneralSettingsTest, TheNumbersTextIsSelectedOnFocus) {
  Seconds()->setFocus();
  Splits()->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(Splits()->selectedText(), "2");
}

TEST_F(GeneralSettingsTest, TheToleranceIsNotSelectedOnFocus) {
  Splits()->setFocus();
  Seconds()->deselect();
  Seconds()->setFocus(Qt::MouseFocusReason);
  QApplication::processEvents();
  EXPECT_EQ(Seconds()->selectedText(), "");
}

TEST_F(GeneralSettingsTest, ReturnPressesTheButtonThatHasTheFocus) {
  Splits()->setText("7");
  Control<QWidget>(dialog.get(), "cmdCancel")->setFocus();
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(folder().ReadFile("VELKLT.INI"), kFile);
  Open();
  Splits()->setText("7");
  QTest::keyClick(Seconds(), Qt::Key_Return);
  EXPECT_EQ(gGeneralSettings.NumberActiveSplits, 7) << "in a box it is OK";
}

TEST_F(GeneralSettingsTest, CancelAndEscapeStoreNothing) {
  for (int way = 0; way < 2; ++way) {
    Open();
    Splits()->setText("7");
    if (way == 0) Press("cmdCancel");
    if (way == 1) QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
  }
  EXPECT_EQ(gGeneralSettings.NumberActiveSplits, 2);
  EXPECT_EQ(folder().ReadFile("VELKLT.INI"), kFile);
}

TEST_F(GeneralSettingsTest, TheSettingsGoToTheFileInForce) {
  gSettingsFile = ".INI";
  Press("cmdOK");
  EXPECT_EQ(folder().ReadFile("VELKLT.INI"), kFile);
  EXPECT_NE(folder().ReadFile(".INI").find("NumberActiveSplits=2"), std::string::npos);
}

TEST_F(GeneralSettingsTest, AFileThatCantBeWrittenIsLeftWholeAndNothingIsSaid) {
  os.script.FailNamed("Profiles.WriteString", 0, kDiskFull);
  Splits()->setText("3");
  Press("cmdOK");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(gGeneralSettings.NumberActiveSplits, 3);
  EXPECT_EQ(folder().ReadFile("VELKLT.INI"), kFile);
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(GeneralSettingsTest, TabGoesFromTopToBottomAndEverythingHasAName) {
  EXPECT_EQ(TabOrder(dialog.get()),
            QStringList({"txtNumberSplits", "txtSecondsDifference", "chkDisplayCheckHH",
                         "chkDisplayBreakHH", "chkDisplayAdvertHH", "cmdOK", "cmdCancel"}));
  ExpectEverythingNamed(dialog.get());
  ExpectFocusSeen(dialog.get());
  EXPECT_TRUE(Control<QPushButton>(dialog.get(), "cmdOK")->isDefault());
}

TEST_F(GeneralSettingsTest, ControlsHaveTheirCaptions) {
  const auto plain = [this](const char* name) {
    auto* button = dialog->findChild<QAbstractButton*>(name);
    auto* label = dialog->findChild<QLabel*>(name);
    return (button != nullptr ? button->text() : label->text()).remove('&');
  };
  EXPECT_EQ(plain("lblNumberSplits"), "Number of Splits to Manage:");
  EXPECT_EQ(plain("lblSecondsDifference"), "Difference between Break Lengths before reporting:");
  EXPECT_EQ(plain("lblSeconds"), "(seconds)");
  EXPECT_EQ(plain("chkDisplayCheckHH"), "Show Check Break length using hundredths of seconds");
  EXPECT_EQ(plain("chkDisplayBreakHH"), "Show overall Break length using hundredths of seconds");
  EXPECT_EQ(plain("chkDisplayAdvertHH"), "Show each Advert length using hundredths of seconds");
  EXPECT_EQ(plain("cmdOK"), "OK");
  EXPECT_EQ(plain("cmdCancel"), "Cancel");
}

TEST_F(GeneralSettingsTest, NumbersAndCheckBoxesStandInFramesUnderTheirHeadings) {
  const auto* general = Control<QGroupBox>(dialog.get(), "fraGeneral");
  const auto* display = Control<QGroupBox>(dialog.get(), "fraDisplayConfig");
  EXPECT_EQ(general->title(), "General Settings:");
  EXPECT_EQ(display->title(), "Display Settings:");
  for (const QLineEdit* box : {Splits(), Seconds()}) EXPECT_TRUE(general->isAncestorOf(box));
  for (const char* name : {"chkDisplayCheckHH", "chkDisplayBreakHH", "chkDisplayAdvertHH"}) {
    EXPECT_TRUE(display->isAncestorOf(Box(name))) << name;
  }
}

}  // namespace
}  // namespace logchecker
