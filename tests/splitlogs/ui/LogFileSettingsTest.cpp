#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "common/Dates.h"
#include "platform/Platform.h"
#include "splitlogs/SplitSettings.h"
#include "splitlogs/ui/frmLogFileSettings.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

constexpr char kFile[] = "; ours\r\n[General]\r\nSplitName2=Old\r\nOther=1\r\n";

class LogFileSettingsTest : public WindowTest {
 protected:
  LogFileSettingsTest() {
    os.now = kDay;
    folder().WriteFile("VELKLT.INI", kFile);
    LoadSplitSettings("VELKLT.INI", 0);
    Os().directories.MakeDirectory(Path("LOGS"));
    SettingsOf(2).SplitName = "North";
    SettingsOf(2).LogSourceDirectory = Path("LOGS");
    SettingsOf(2).PreSuffix = "NTH";
    SettingsOf(2).LogTXChainCode = "N1";
    SettingsOf(2).ReconcileExtension = "REC";
    Open();
  }
  void Open() {
    dialog = std::make_unique<frmLogFileSettings>();
    dialog->SetSplitNumberLabel("2");
    dialog->Tag = "1";
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
  }
  QLineEdit* Box(const char* name) { return Control<QLineEdit>(dialog.get(), name); }
  std::string Text(const char* name) { return Box(name)->text().toStdString(); }
  QString Sample() { return Control<QLabel>(dialog.get(), "lblSampleFilename")->text(); }
  QCheckBox* Suffix() { return Control<QCheckBox>(dialog.get(), "chkSuffix"); }
  void Press(const char* button) { Control<QPushButton>(dialog.get(), button)->click(); }
  void Type(const char* box, const char* text) {
    Box(box)->setFocus();
    Box(box)->clear();
    QTest::keyClicks(Box(box), text);
  }
  std::string Bytes() { return folder().ReadFile("VELKLT.INI"); }

  std::unique_ptr<frmLogFileSettings> dialog;
};

TEST_F(LogFileSettingsTest, BeginsWithSplitOneAndFillsTheFieldsOfTheOneThatIsSet) {
  SettingsOf(1).SplitName = "First";
  frmLogFileSettings fresh;
  EXPECT_EQ(Control<QLineEdit>(&fresh, "txtSplitName")->text(), "First");
  EXPECT_EQ(dialog->windowTitle(), "Velmar KLT Log File Settings:");
  EXPECT_EQ(Text("txtSplitName"), "North");
  EXPECT_EQ(Text("txtPreSuffix"), "NTH");
  EXPECT_EQ(Text("txtFormat"), "YYMMDD");
  EXPECT_EQ(Text("txtFileExtension"), "LOG");
  EXPECT_EQ(Text("txtReconcileFileExtension"), "REC");
  EXPECT_EQ(Text("txtLogTXChainCode"), "N1");
  EXPECT_FALSE(Suffix()->isChecked());
  EXPECT_FALSE(Control<QLabel>(dialog.get(), "lblSplitNumber")->isVisible());
}

TEST_F(LogFileSettingsTest, TheDirectoryShowsInUpperCase) {
  SettingsOf(2).LogSourceDirectory = "c:\\logs\\in";
  Open();
  EXPECT_EQ(Text("txtSourceDirectory"), "C:\\LOGS\\IN");
}

TEST_F(LogFileSettingsTest, TheSampleFollowsTheTyping) {
  EXPECT_EQ(Sample(), "NTH270115.LOG");
  Suffix()->setChecked(true);
  EXPECT_EQ(Sample(), "270115NTH.LOG");
  Type("txtPreSuffix", "ab");
  EXPECT_EQ(Sample(), "270115AB.LOG");
  Type("txtFormat", "ddmmyyyy");
  EXPECT_EQ(Sample(), "15012027AB.LOG");
  Type("txtFileExtension", "txt");
  EXPECT_EQ(Sample(), "15012027AB.TXT");
  QTest::keyClick(Suffix(), Qt::Key_Space);
  EXPECT_EQ(Sample(), "AB15012027.TXT");
}

TEST_F(LogFileSettingsTest, TheSampleIsThereBeforeAnythingIsTyped) {
  SettingsOf(1) = {};
  SettingsOf(1).DateFormat.clear();
  SettingsOf(1).Extension.clear();
  const frmLogFileSettings empty;
  const QString first = Control<QLabel>(&empty, "lblSampleFilename")->text();
  frmLogFileSettings other;
  Control<QLineEdit>(&other, "txtFormat")->setText("YYMMDD");
  Control<QLineEdit>(&other, "txtFormat")->clear();
  EXPECT_EQ(first, Control<QLabel>(&other, "lblSampleFilename")->text());
}

TEST_F(LogFileSettingsTest, ARefusedFormatShowsThatTheDetailsAreInvalidAndOkIsStillAllowed) {
  Type("txtFormat", "yymmx");
  EXPECT_EQ(Sample(), "The details are invalid");
  Press("cmdOK");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_NE(Bytes().find("DateFormat2=YYMMX"), std::string::npos);
}

TEST_F(LogFileSettingsTest, FourBoxesTypeInUpperCaseAndNoOther) {
  const struct {
    const char* box;
    const char* text;
  } rows[] = {{"txtPreSuffix", "AB\xC3\x84 1"},      {"txtFormat", "YYMMDD"},
              {"txtFileExtension", "LOGX"},          {"txtLogTXChainCode", "N2"},
              {"txtReconcileFileExtension", "rec"},  {"txtSplitName", "lower case"},
              {"txtSourceDirectory", "c:\\Logs\\in"}};
  const char* typed[] = {"ab\xC3\xA4 1", "yymmdd",     "logx",        "n2",
                         "rec",          "lower case", "c:\\Logs\\in"};
  for (size_t i = 0; i < std::size(rows); ++i) {
    Box(rows[i].box)->setFocus();
    Box(rows[i].box)->clear();
    for (const QChar letter : QString::fromUtf8(typed[i])) {
      QTest::sendKeyEvent(QTest::Click, Box(rows[i].box), Qt::Key_unknown, QString(letter), {});
    }
    EXPECT_EQ(Text(rows[i].box), rows[i].text);
  }
}

TEST_F(LogFileSettingsTest, ABoxSelectsItsTextOnFocus) {
  for (const char* name : {"txtSplitName", "txtSourceDirectory", "txtPreSuffix", "txtFormat",
                           "txtFileExtension", "txtReconcileFileExtension", "txtLogTXChainCode"}) {
    Control<QWidget>(dialog.get(), "cmdOK")->setFocus();
    Box(name)->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(Box(name)->selectedText(), Box(name)->text()) << name;
  }
}

TEST_F(LogFileSettingsTest, ACharacterThatTheCodePageCantHoldIsNotTaken) {
  Box("txtSplitName")->clear();
  QTest::sendKeyEvent(QTest::Click, Box("txtSplitName"), Qt::Key_unknown,
                      QString::fromUtf8("\xE2\x98\x83"), {});
  EXPECT_EQ(Text("txtSplitName"), "");
}

TEST_F(LogFileSettingsTest, WhatIsPastedIsOneLineAndAddsNoneToTheFile) {
  const char* pasted = "East\n[Oops]\r\nSplitName3=West\n";
  for (const char* name : {"txtSplitName", "txtSourceDirectory", "txtPreSuffix", "txtFormat",
                           "txtFileExtension", "txtReconcileFileExtension", "txtLogTXChainCode"}) {
    QApplication::clipboard()->setText(pasted);
    Box(name)->clear();
    Box(name)->setFocus();
    QTest::keyClick(Box(name), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(name), "East[Oops]SplitName3=West") << name;
  }
  ui.answers = {MessageAnswer::kNo};
  Press("cmdOK");
  const std::string bytes = Bytes();
  EXPECT_NE(bytes.find("SplitName2=East[Oops]SplitName3=West\r\n"), std::string::npos) << bytes;
  EXPECT_EQ(bytes.find("\n[Oops]"), std::string::npos) << bytes;
  EXPECT_EQ(bytes.find("\nSplitName3"), std::string::npos) << bytes;
}

TEST_F(LogFileSettingsTest, ReturnPressesTheButtonThatHasTheFocus) {
  const auto press = [this](const char* button) {
    Control<QWidget>(dialog.get(), button)->setFocus();
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
  };
  {
    DialogScript script([this](QDialog* chooser) {
      EXPECT_EQ(chooser->parentWidget(), dialog.get());
      auto* files = qobject_cast<QFileDialog*>(chooser);
      ASSERT_NE(files, nullptr);
      EXPECT_FALSE(files->testOption(QFileDialog::ReadOnly)) << "folders can be made";
      chooser->reject();
    });
    press("cmdBrowseSource");
  }
  EXPECT_TRUE(dialog->isVisible());
  press("cmdCancel");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(Bytes(), kFile);
  Open();
  QTest::keyClick(Box("txtFormat"), Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_NE(Bytes(), kFile) << "in a box it is OK";
}

TEST_F(LogFileSettingsTest, TheSuffixCountsWhenItsKeyWasPressedJustBefore) {
  QTest::keyClick(Box("txtFormat"), Qt::Key_S, Qt::AltModifier);
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
  EXPECT_NE(Bytes().find("Suffix2=1"), std::string::npos);
}

TEST_F(LogFileSettingsTest, OkWritesTheKeysInTheirOrderAndKeepsTheRest) {
  Suffix()->setChecked(true);
  Type("txtSplitName", " Coast ");
  Type("txtReconcileFileExtension", "rcx");
  Press("cmdOK");
  EXPECT_FALSE(dialog->isVisible());
  // Some systems' profile calls cut the blanks, those at the end with the next key.
  folder().WriteFile("alone.ini", "[General]\r\nSplitName2=x\r\n");
  RealPlatform().profiles.WriteString("General", "SplitName2", " Coast ", Path("alone.ini"));
  RealPlatform().profiles.WriteString("General", "Other", "1", Path("alone.ini"));
  std::string name = folder().ReadFile("alone.ini").substr(sizeof("[General]\r\n") - 1);
  name.resize(name.find("Other="));
  ASSERT_NE(name.find("Coast"), std::string::npos);
  EXPECT_EQ(Bytes(), "; ours\r\n[General]\r\n" + name + "Other=1\r\nLogSourceDirectory2=" +
                         QString::fromStdString(Path("LOGS")).toUpper().toStdString() +
                         "\r\nLogUpdateInterval2=20\r\n[LogFileName]\r\nDateFormat2=YYMMDD\r\n"
                         "Extension2=LOG\r\nPreSuffix2=NTH\r\nSuffix2=1\r\nLogTXChainCode2=N1\r\n"
                         "ReconcileExtension2=rcx\r\n");
  EXPECT_EQ(SettingsOf(2).SplitName, "North") << "the settings in memory stay";
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LogFileSettingsTest, ASplitNeedsAName) {
  Type("txtSplitName", "  ");
  Box("txtSourceDirectory")->clear();
  Press("cmdOK");
  EXPECT_TRUE(dialog->isVisible());
  ASSERT_EQ(ui.messages.size(), 1U) << "without a directory either, only the name is told of";
  EXPECT_EQ(ui.messages[0].text, "You must give this split a name");
  EXPECT_EQ(ui.messages[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(Bytes(), kFile);
}

TEST_F(LogFileSettingsTest, ASplitNeedsADirectory) {
  Type("txtSourceDirectory", " ");
  Press("cmdOK");
  EXPECT_TRUE(dialog->isVisible());
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text, "You must enter an Incoming Advert log Directory");
  EXPECT_EQ(ui.messages[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(Bytes(), kFile);
}

TEST_F(LogFileSettingsTest, ADirectoryThatIsNotThereIsOffered) {
  const std::string missing = Path("NEW\\INNER");
  const struct {
    MessageAnswer answer;
    bool written;
    bool made;
  } rows[] = {{MessageAnswer::kCancel, false, false},
              {MessageAnswer::kNo, true, false},
              {MessageAnswer::kYes, true, true}};
  for (const auto& row : rows) {
    folder().WriteFile("VELKLT.INI", kFile);
    ui.messages.clear();
    ui.answers = {row.answer};
    Open();
    Box("txtSourceDirectory")->setText(QString::fromStdString(missing));
    Press("cmdOK");
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].text,
              "Do you want to have the Source directory " + missing + " created for you?");
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::kQuestion);
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::kYesNoCancel);
    EXPECT_EQ(dialog->isVisible(), !row.written);
    EXPECT_EQ(Bytes() != kFile, row.written);
    EXPECT_EQ(folder().Exists("NEW/INNER"), row.made);
  }
}

TEST_F(LogFileSettingsTest, ADirectoryThatCantBeMadeIsSaidAndTheSettingsAreWritten) {
  ui.answers = {MessageAnswer::kYes};
  os.script.FailNamed("Directories.MakeDirectory", 0, kPermissionDenied);
  Box("txtSourceDirectory")->setText(QString::fromStdString(Path("NEW")));
  Press("cmdOK");
  ASSERT_EQ(ui.messages.size(), 2U);
  EXPECT_EQ(ui.messages[1].text.find("There was a problem While Attempting to Create Directories"),
            0U);
  EXPECT_NE(Bytes(), kFile);
}

TEST_F(LogFileSettingsTest, ACallerWithoutATagTellsThatTheNextStartIsMeant) {
  for (const char* tag : {"", "0", "x"}) {
    ui.messages.clear();
    Open();
    dialog->Tag = tag;
    Press("cmdOK");
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].text,
              "These settings will take effect from the next time you start Velmar KLT Log "
              "Checker");
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::kInformation);
  }
}

TEST_F(LogFileSettingsTest, CancelWritesNothing) {
  Type("txtSplitName", "Other");
  Press("cmdCancel");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(Bytes(), kFile);
}

TEST_F(LogFileSettingsTest, TheUpdateIntervalIsWrittenBackAsItWasRead) {
  SettingsOf(2).LogUpdateInterval = 7;
  Press("cmdOK");
  EXPECT_NE(Bytes().find("LogUpdateInterval2=7\r\n"), std::string::npos);
  EXPECT_EQ(Bytes().find("LogDestinationDirectory"), std::string::npos);
}

TEST_F(LogFileSettingsTest, AFileThatCantBeWrittenStaysWhole) {
  os.script.FailNamed("Profiles.WriteString", 0, kDiskFull);
  Press("cmdOK");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(Bytes(), kFile);
}

TEST_F(LogFileSettingsTest, BrowseStartsInTheBoxsFolderAndGivesItsResultInUpperCase) {
  Os().directories.MakeDirectory(Path("LOGS\\inner"));
  {
    DialogScript script([this](QDialog* chooser) {
      auto* files = qobject_cast<QFileDialog*>(chooser);
      ASSERT_NE(files, nullptr);
      EXPECT_EQ(files->windowTitle(), "Select Directory to copy Log files from");
      EXPECT_TRUE(files->directory().absolutePath().endsWith("/LOGS"))
          << files->directory().absolutePath().toStdString();
      files->setDirectory(files->directory().filePath("inner"));
      Control<QLineEdit>(files, "fileNameEdit")->clear();
      QMetaObject::invokeMethod(files, "accept");
    });
    Press("cmdBrowseSource");
  }
  EXPECT_TRUE(Box("txtSourceDirectory")->text().endsWith(QDir::toNativeSeparators("LOGS/INNER")))
      << Text("txtSourceDirectory");
}

TEST_F(LogFileSettingsTest, ACancelledChooserEmptiesTheBox) {
  DialogScript script([](QDialog* chooser) { chooser->reject(); });
  Press("cmdBrowseSource");
  EXPECT_EQ(Text("txtSourceDirectory"), "");
}

TEST_F(LogFileSettingsTest, TabGoesFromTopToBottomAndEverythingHasAName) {
  EXPECT_EQ(TabOrder(dialog.get()),
            QStringList({"txtSplitName", "txtSourceDirectory", "cmdBrowseSource", "txtPreSuffix",
                         "chkSuffix", "txtFormat", "txtFileExtension", "txtReconcileFileExtension",
                         "txtLogTXChainCode", "cmdOK", "cmdCancel"}));
  ExpectEverythingNamed(dialog.get());
  ExpectFocusSeen(dialog.get());
  EXPECT_TRUE(Control<QPushButton>(dialog.get(), "cmdOK")->isDefault());
}

TEST_F(LogFileSettingsTest, LabelsHaveTheirCaptions) {
  const struct {
    const char* name;
    const char* text;
  } rows[] = {{"lblSplitName", "Split Name:"},
              {"lblSourceDirectory", "Directory to check for new incoming log files from:"},
              {"lblPreSuffix", "Prefix (or suffix) :"},
              {"lblFormat", "Date format :"},
              {"lblFileExtension", "File Extension :"},
              {"lblReconcileFileExtension", "Reconcile Extension:"},
              {"lblTxChainCode", "TX Chain Code:"},
              {"lblSample", "Sample Filename:"}};
  for (const auto& row : rows) {
    EXPECT_EQ(Control<QLabel>(dialog.get(), row.name)->text().remove('&'), row.text);
  }
}

}  // namespace
}  // namespace logchecker
