#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "cartstore/AudiowallParts.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "cartstore/ui/frmCartLocations.h"
#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class CartLocationsTest : public WindowTest {
 protected:
  void Open() {
    dialog = std::make_unique<frmCartLocations>();
    dialog->SettingsFile = "Velmar.ini";
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
  }
  QLineEdit* Box(int part) {
    return Control<QLineEdit>(dialog.get(), qPrintable(QString("txtCartLocations%1").arg(part)));
  }
  std::string Text(int part) { return Box(part)->text().toStdString(); }
  QCheckBox* One() { return Control<QCheckBox>(dialog.get(), "chkUseOneCartLocation"); }
  void Done() { Control<QPushButton>(dialog.get(), "cmdDone")->click(); }
  static std::string Stored(int part) {
    return Os().profiles.GetString("FileLocations", "Carts" + std::to_string(part), "missing", 255,
                                   "VELMAR.INI");
  }

  std::unique_ptr<frmCartLocations> dialog;
};

TEST_F(CartLocationsTest, HasARowForEachPart) {
  Open();
  EXPECT_EQ(dialog->windowTitle(), "Velmar Cart Locations:");
  for (int part = 1; part <= 11; ++part) {
    const QString caption =
        part == 11 ? QString("Carts 10001 to...")
                   : QString("Carts %1 to %2:").arg(part * 1000 - 999).arg(part * 1000);
    EXPECT_EQ(Control<QLabel>(dialog.get(), qPrintable(QString("Label2_%1").arg(part)))->text(),
              caption);
    EXPECT_EQ(
        Control<QPushButton>(dialog.get(), qPrintable(QString("cmdChangeCartLocation%1").arg(part)))
            ->text(),
        "Browse");
  }
  EXPECT_EQ(One()->text().remove('&'), "Use one directory for all the carts on the Audiowall");
  EXPECT_EQ(dialog->Tag, "LOADED");
}

TEST_F(CartLocationsTest, ElevenEmptyPathsAreEqualAndTickTheBox) {
  Open();
  EXPECT_TRUE(One()->isChecked());
  EXPECT_TRUE(Box(1)->isEnabled());
  EXPECT_FALSE(Box(2)->isEnabled());
}

TEST_F(CartLocationsTest, ElevenEqualPathsTickTheBoxHoweverTheyAreWritten) {
  for (AudiowallPart& part : gAudiowallParts) part.Path = "C:\\AUDIO";
  gAudiowallParts[6].Path = " c:\\Audio ";
  Open();
  EXPECT_TRUE(One()->isChecked());
  EXPECT_FALSE(Box(7)->isEnabled());
  for (int part = 0; part < 11; ++part) {
    gAudiowallParts[part].Path += "2";
    Open();
    EXPECT_FALSE(One()->isChecked()) << part;
    gAudiowallParts[part].Path.pop_back();
  }
}

TEST_F(CartLocationsTest, ARowTakesOneLineThatTheCodePageCanHold) {
  for (AudiowallPart& part : gAudiowallParts) part.Path = "C:\\A";
  Open();
  One()->setChecked(false);
  for (int part = 1; part <= 11; ++part) {
    Box(part)->clear();
    QTest::sendKeyEvent(QTest::Click, Box(part), Qt::Key_unknown, QString::fromUtf8("\xE2\x98\x83"),
                        {});
    EXPECT_EQ(Text(part), "") << part;
    QApplication::clipboard()->setText("C:\\NEW\n[Oops]\nx=1\n");
    QTest::keyClick(Box(part), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(part), "C:\\NEW[Oops]x=1") << part;
  }
}

TEST_F(CartLocationsTest, ReturnPressesTheButtonThatHasTheFocus) {
  for (int part = 1; part <= 11; ++part) {
    gAudiowallParts[part - 1].Path = "C:\\A" + std::to_string(part);
  }
  Open();
  for (int part = 1; part <= 11; ++part) {
    auto* browse = Control<QPushButton>(dialog.get(),
                                        qPrintable(QString("cmdChangeCartLocation%1").arg(part)));
    browse->setFocus();
    DialogScript script([this](QDialog* chooser) {
      EXPECT_EQ(chooser->parentWidget(), dialog.get());
      auto* files = qobject_cast<QFileDialog*>(chooser);
      ASSERT_NE(files, nullptr);
      EXPECT_FALSE(files->testOption(QFileDialog::ReadOnly)) << "folders can be made";
      chooser->reject();
    });
    QTest::keyClick(browse, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
  }
  EXPECT_EQ(Stored(1), "missing");
}

TEST_F(CartLocationsTest, PathsShowTrimmedAndInUpperCase) {
  for (int part = 1; part <= 11; ++part) {
    gAudiowallParts[part - 1].Path = " c:\\audio" + std::to_string(part) + " ";
  }
  Open();
  EXPECT_EQ(Text(1), "C:\\AUDIO1");
  EXPECT_EQ(Text(11), "C:\\AUDIO11");
  EXPECT_FALSE(One()->isChecked());
  EXPECT_TRUE(Box(11)->isEnabled());
}

TEST_F(CartLocationsTest, WithTheBoxTickedRowOneShowsInAllAtOnce) {
  for (int part = 1; part <= 11; ++part) {
    gAudiowallParts[part - 1].Path = "C:\\A" + std::to_string(part);
  }
  Open();
  One()->click();
  for (int part = 2; part <= 11; ++part) {
    EXPECT_EQ(Text(part), "C:\\A1");
    for (const char* name : {"Label2_%1", "txtCartLocations%1", "cmdChangeCartLocation%1"}) {
      EXPECT_FALSE(
          Control<QWidget>(dialog.get(), qPrintable(QString(name).arg(part)))->isEnabled());
    }
  }
  Box(1)->setText("D:\\B");
  EXPECT_EQ(Text(7), "D:\\B");
  Box(5)->setText("E:\\OTHER");
  EXPECT_EQ(Text(5), "D:\\B") << "a change of another row brings row 1's text back";
  One()->click();
  EXPECT_EQ(Text(7), "D:\\B") << "the texts stay";
  for (int part = 2; part <= 11; ++part) {
    for (const char* name : {"Label2_%1", "txtCartLocations%1", "cmdChangeCartLocation%1"}) {
      EXPECT_TRUE(Control<QWidget>(dialog.get(), qPrintable(QString(name).arg(part)))->isEnabled());
    }
  }
  Box(1)->setText("E:\\C");
  EXPECT_EQ(Text(7), "D:\\B");
}

TEST_F(CartLocationsTest, OkSavesAllElevenKeysInUpperCaseWithoutTheLastBackslash) {
  folder().WriteFile("VELMAR.INI", "; family\r\n[FileLocations]\r\nData=x\r\n[Audio]\r\nA=1\r\n");
  Os().directories.MakeDirectory(Path("STORE"));
  gNumberOfCarts = 2000;
  Open();
  One()->setChecked(false);
  Box(1)->setText(QString::fromStdString(" " + Path("store") + "\\ "));
  Box(2)->setText(QString::fromStdString(Path("store")));
  ui.answers = {MessageAnswer::kYes, MessageAnswer::kYes};
  Done();
  const QString upper = QString::fromStdString(Path("STORE")).toUpper();
  EXPECT_EQ(Stored(1), upper.toStdString());
  EXPECT_EQ(Stored(2), upper.toStdString());
  EXPECT_EQ(Stored(3), "");
  EXPECT_NE(folder().ReadFile("VELMAR.INI").find("Carts11=\r\n"), std::string::npos)
      << "empty ones are written as well";
  EXPECT_EQ(folder().ReadFile("VELMAR.INI").find("; family\r\n[FileLocations]\r\nData=x\r\n"), 0U);
  EXPECT_EQ(gAudiowallParts[0].Path, upper.toStdString());
  EXPECT_EQ(gAudiowallParts[0].State, kPartUsable) << "the store is opened anew";
  EXPECT_TRUE(folder().Exists("STORE/Carts2.lst"));
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(dialog->Tag, "");
  EXPECT_EQ(ui.pointer, MousePointer::kDefault);
}

TEST_F(CartLocationsTest, TwoBackslashesAtTheEndAreCutAndNoMore) {
  struct Case {
    const char* typed;
    const char* stored;
  };
  gNumberOfCarts = 1000;
  os.script.FailNamed("Directories.MakeDirectory", 0, kPermissionDenied);
  for (const bool one : {false, true}) {
    for (const Case& row :
         {Case{"c:\\audio", "C:\\AUDIO"}, Case{"c:\\audio\\", "C:\\AUDIO"},
          Case{"c:\\audio\\\\", "C:\\AUDIO"}, Case{"c:\\audio\\\\\\", "C:\\AUDIO\\"},
          Case{" c:\\audio \\ ", "C:\\AUDIO"}, Case{"\\", ""}}) {
      Open();
      One()->setChecked(one);
      for (int part = 1; part <= 11; ++part) Box(part)->setText(row.typed);
      Done();
      for (int part = 1; part <= 11; ++part) {
        EXPECT_EQ(Stored(part), row.stored) << row.typed << " " << part << (one ? " one" : "");
        EXPECT_EQ(gAudiowallParts[part - 1].Path, row.stored);
      }
    }
  }
}

TEST_F(CartLocationsTest, WithTheBoxTickedAllElevenKeysAreWrittenWithRowOnesText) {
  gNumberOfCarts = 1000;
  for (int part = 1; part <= 11; ++part) {
    gAudiowallParts[part - 1].Path = Path("A" + std::to_string(part));
  }
  Open();
  One()->setChecked(true);
  Box(1)->setText(QString::fromStdString(Path("one")));
  ui.answers = {MessageAnswer::kNo};
  Done();
  const std::string upper = QString::fromStdString(Path("one")).toUpper().toStdString();
  for (int part = 1; part <= 11; ++part) {
    EXPECT_EQ(Stored(part), upper) << part;
    EXPECT_EQ(gAudiowallParts[part - 1].Path, upper) << part;
  }
}

TEST_F(CartLocationsTest, ThePointerIsTheHourglassWhileOkWorks) {
  Os().directories.MakeDirectory(Path("STORE"));
  for (AudiowallPart& part : gAudiowallParts) part.Path = Path("STORE");
  ui.SetMousePointer(MousePointer::kHourglass);
  Open();
  EXPECT_EQ(ui.pointer, MousePointer::kDefault) << "the dialog is ready";
  ui.pointers.clear();
  Done();
  EXPECT_EQ(ui.pointers,
            (std::vector<MousePointer>{MousePointer::kHourglass, MousePointer::kDefault}));
}

TEST_F(CartLocationsTest, AMissingDirectoryIsMade) {
  gNumberOfCarts = 1000;
  Open();
  ui.answers = {MessageAnswer::kYes};
  Box(1)->setText(QString::fromStdString(Path("NEW")));
  Done();
  EXPECT_TRUE(folder().Exists("NEW/Carts1.lst"));
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text.find("Part 1 of the AudioWall has not been found."), 0U);
}

TEST_F(CartLocationsTest, ADirectoryThatCantBeMadeIsSaidByItsMakerAndTheStore) {
  gNumberOfCarts = 1000;
  Open();
  One()->setChecked(false);
  Box(1)->setText(QString::fromStdString(Path("NEW")));
  os.script.FailNamed("Directories.MakeDirectory", 0, kPermissionDenied);
  Done();
  ASSERT_EQ(ui.messages.size(), 2U);
  EXPECT_EQ(ui.messages[0].text.find("There was a problem While Attempting"), 0U);
  EXPECT_EQ(ui.messages[1].text.find("There was a problem connecting part(s)"), 0U);
  EXPECT_NE(Stored(1), "missing") << "it is saved all the same";
}

TEST_F(CartLocationsTest, PartsWithoutALocationAreSaid) {
  gNumberOfCarts = 3000;
  Open();
  Done();
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text,
            "3 locations of the AudioWall have not been set : Please check your configuration.");
  EXPECT_FALSE(dialog->isVisible()) << "that the store can't be opened keeps nothing up";
}

TEST_F(CartLocationsTest, EscapeAndTheCloseBoxLeaveEverythingAsItWas) {
  MakeStore(1000);
  const std::string file = folder().ReadFile("VELMAR.INI");
  const std::string path = gAudiowallParts[0].Path;
  for (int way = 0; way < 2; ++way) {
    Open();
    Box(1)->setText("D:\\ELSEWHERE");
    if (way == 0) QTest::keyClick(dialog.get(), Qt::Key_Escape);
    if (way == 1) dialog->close();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->Tag, "");
    EXPECT_EQ(gAudiowallParts[0].Path, path);
    EXPECT_EQ(folder().ReadFile("VELMAR.INI"), file);
  }
}

TEST_F(CartLocationsTest, EnterIsOk) {
  Open();
  gNumberOfCarts = 1000;
  QTest::keyClick(Box(1), Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(Stored(1), "");
}

TEST_F(CartLocationsTest, ABoxSelectsItsTextOnFocus) {
  gAudiowallParts[0].Path = "C:\\A";
  Open();
  One()->setFocus();
  Box(1)->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(Box(1)->selectedText(), "C:\\A");
}

TEST_F(CartLocationsTest, BrowseGivesAFolderInUpperCaseAndNothingOnCancel) {
  Os().directories.MakeDirectory(Path("store"));
  gAudiowallParts[1].Path = Path("STORE");
  Open();
  {
    DialogScript script([this](QDialog* chooser) {
      auto* files = qobject_cast<QFileDialog*>(chooser);
      EXPECT_EQ(files->windowTitle(), "Select the directory that the audio is stored in");
      EXPECT_EQ(QFileInfo(files->directory().path()),
                QFileInfo(QString::fromStdString(ToHostPath(Path("store")))));
      Control<QLineEdit>(files, "fileNameEdit")->clear();
      QMetaObject::invokeMethod(files, "accept");
    });
    Control<QPushButton>(dialog.get(), "cmdChangeCartLocation2")->click();
  }
  EXPECT_TRUE(Box(2)->text().endsWith(QDir::toNativeSeparators("/STORE"))) << Text(2);
  {
    DialogScript script([](QDialog* chooser) { chooser->reject(); });
    Control<QPushButton>(dialog.get(), "cmdChangeCartLocation2")->click();
  }
  EXPECT_TRUE(Box(2)->text().endsWith(QDir::toNativeSeparators("/STORE")))
      << "a cancelled chooser changes nothing";
}

TEST_F(CartLocationsTest, TheLocationsSurviveAWriteThatFails) {
  MakeStore(1000);
  const std::string file = folder().ReadFile("VELMAR.INI");
  os.script.FailNamed("Profiles.WriteString", 0, kDiskFull);
  Open();
  ui.answers = {MessageAnswer::kYes};
  Done();
  EXPECT_EQ(folder().ReadFile("VELMAR.INI"), file);
}

TEST_F(CartLocationsTest, TabGoesFromTopToBottomAndEverythingHasAName) {
  for (int part = 1; part <= 11; ++part) {
    gAudiowallParts[part - 1].Path = "C:\\A" + std::to_string(part);
  }
  Open();
  QStringList expected;
  for (int part = 1; part <= 11; ++part) {
    expected << QString("txtCartLocations%1").arg(part)
             << QString("cmdChangeCartLocation%1").arg(part);
  }
  expected << "chkUseOneCartLocation"
           << "cmdDone";
  EXPECT_EQ(TabOrder(dialog.get()), expected);
  ExpectEverythingNamed(dialog.get());
  ExpectFocusSeen(dialog.get());
}

}  // namespace
}  // namespace logchecker
