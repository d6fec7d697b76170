#include "tests/notes/ui/PrintPreviewTest.h"

#include <QAbstractPrintDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTextEdit>
#include <functional>

#include "common/ErrorState.h"
#include "notes/RichText.h"
#include "notes/ui/frmPrintPreview.h"
#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "tests/support/ui/HostProgram.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

TEST_F(PrintPreviewTest, ShowsRichTextWithItsFormats) {
  Open(Path("note.rtf"));
  EXPECT_EQ(preview.windowTitle(), "Print Preview");
  EXPECT_EQ(Text(), QString::fromUtf8("first bold\ncaf\xC3\xA9"));
  QTextCursor cursor(Box()->document());
  cursor.setPosition(8);
  EXPECT_EQ(cursor.charFormat().fontWeight(), QFont::Bold);
  EXPECT_EQ(Box()->textCursor().position(), 0);
  EXPECT_FALSE(Box()->textCursor().hasSelection());
  EXPECT_TRUE(Box()->isReadOnly());
}

TEST_F(PrintPreviewTest, WhatIsNoRichTextOpensAsPlainText) {
  Open(Path("note.txt"));
  EXPECT_EQ(Text(), "plain <b>text</b>\nsecond");
}

TEST_F(PrintPreviewTest, AMissingFileLeavesTheWindowEmptyWithoutAWord) {
  Open(Path("nothing.rtf"));
  EXPECT_EQ(Text(), "");
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_EQ(Printed(std::nullopt).trimmed(), "");
  EXPECT_EQ(pages, 1) << "a blank job";
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PrintPreviewTest, AnUnreadableFileIsShownEmpty) {
  os.script.FailNamed("Files.OpenForInput", 0, kPermissionDenied);
  Open(Path("note.rtf"));
  EXPECT_EQ(Text(), "");
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PrintPreviewTest, AnEmptyNameLeavesTheText) {
  Open(Path("note.txt"));
  preview.LoadFile("");
  EXPECT_EQ(Text(), "plain <b>text</b>\nsecond");
}

TEST_F(PrintPreviewTest, TheFileIsReadAgainTheFirstTimeTheWindowBecomesActive) {
  preview.LoadFile(Path("note.txt"));
  folder().WriteFile("note.txt", "changed");
  preview.show();
  QApplication::setActiveWindow(&preview);
  EXPECT_EQ(Text(), "changed");
  folder().WriteFile("note.txt", "again");
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  QApplication::setActiveWindow(&preview);
  EXPECT_EQ(Text(), "changed");
}

TEST_F(PrintPreviewTest, StandsOnTopInTheMiddleOfTheScreensUpperEdge) {
  Open(Path("note.txt"));
  EXPECT_TRUE(preview.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(preview.y(), 2);
  EXPECT_EQ(preview.x(),
            (preview.screen()->geometry().width() - preview.frameGeometry().width()) / 2);
  preview.SetNonFloater();
  EXPECT_FALSE(preview.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(preview.isVisible());
  preview.SetFloater();
  EXPECT_TRUE(preview.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(PrintPreviewTest, TheFirstActivationPutsTheWindowAndThePointerBack) {
  preview.LoadFile(Path("note.txt"));
  preview.move(300, 200);
  ui.SetMousePointer(MousePointer::kHourglass);
  preview.show();
  QApplication::setActiveWindow(&preview);
  EXPECT_EQ(preview.y(), 2);
  EXPECT_EQ(ui.pointer, MousePointer::kDefault);
}

TEST_F(PrintPreviewTest, PrintsAll) {
  Open(Path("note.rtf"));
  const QString text = Printed(std::nullopt);
  EXPECT_FALSE(presetSelection);
  EXPECT_TRUE(text.contains("first bold"));
  EXPECT_TRUE(text.contains(QString::fromUtf8("caf\xC3\xA9")));
}

TEST_F(PrintPreviewTest, ASelectionIsPresetAndPrintsAloneUnlessAllIsPicked) {
  Open(Path("note.rtf"));
  Select(6, 10);
  const QString selected = Printed(std::nullopt);
  EXPECT_TRUE(presetSelection);
  EXPECT_TRUE(selected.contains("bold"));
  EXPECT_FALSE(selected.contains("first"));
  EXPECT_TRUE(Printed(false).contains("first bold"));
}

TEST_F(PrintPreviewTest, WhereNothingIsSelectedTheSelectionIsEverything) {
  Open(Path("note.rtf"));
  EXPECT_TRUE(Printed(true).contains("first bold"));
}

TEST_F(PrintPreviewTest, PlainTextPrintsInThePrintersFontWhoseCharactersAreOfOneWidth) {
  Open(Path("note.txt"));
  Printed(std::nullopt);
  EXPECT_EQ(fonts.count(QRegularExpression("(Courier|Mono).* yes ")), 1) << fonts.toStdString();
  EXPECT_EQ(fonts.count('\n'), 3) << "under the two lines of the heading one font";
}

TEST_F(PrintPreviewTest, AFailureOfThePrinterIsSaid) {
  Open(Path("note.rtf"));
  DialogScript script([&](QDialog* dialog) {
    auto* printer = qobject_cast<QAbstractPrintDialog*>(dialog);
    printer->printer()->setOutputFormat(QPrinter::PdfFormat);
    printer->printer()->setOutputFileName("/nowhere/at/all.pdf");
    printer->done(QDialog::Accepted);
  });
  Press("cmdPrint");
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text.find("There was a problem while printing."), 0U);
  EXPECT_NE(ui.messages[0].text.find(ErrorText(kPathFileAccess)), std::string::npos);
}

TEST_F(PrintPreviewTest, CancelledDialogsLeaveTheWindowAsItWas) {
  Open(Path("note.rtf"));
  Select(6, 10);
  for (const char* button : {"cmdPrint", "cmdSave"}) {
    DialogScript script([](QDialog* dialog) { dialog->reject(); });
    Press(button);
  }
  EXPECT_EQ(Box()->textCursor().selectedText(), "bold");
  EXPECT_EQ(Text(), QString::fromUtf8("first bold\ncaf\xC3\xA9"));
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PrintPreviewTest, SavesPlainTextWithoutAWord) {
  Open(Path("note.rtf"));
  folder().WriteFile("copy.txt", "old");
  SaveUnder(HostName("copy.txt"));
  EXPECT_EQ(folder().ReadFile("copy.txt"), "first bold\r\ncaf\xE9");
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PrintPreviewTest, ACopyKeepsEveryBlankAndTheLastLinesEnd) {
  folder().WriteFile("note.txt",
                     "a\xA0"
                     "b  c\td\n\r\n");
  Open(Path("note.txt"));
  SaveUnder(HostName("copy.txt"));
  EXPECT_EQ(folder().ReadFile("copy.txt"),
            "a\xA0"
            "b  c\td\r\n\r\n");
}

TEST_F(PrintPreviewTest, ABlankNameSavesNothing) {
  Open(Path("note.txt"));
  const size_t before = folder().Count();
  SaveUnder(HostName(" "));
  EXPECT_EQ(folder().Count(), before);
}

TEST_F(PrintPreviewTest, ASaveThatFailsLeavesTheOldFileAndSaysNothing) {
  Open(Path("note.rtf"));
  folder().WriteFile("copy.txt", "old");
  os.script.FailNamed("Files.Write", 1, kDiskFull);
  SaveUnder(HostName("copy.txt"));
  EXPECT_EQ(folder().ReadFile("copy.txt"), "old");
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PrintPreviewTest, ACopyOfWhatTheCodePageCantHoldIsUnicode) {
  folder().WriteFile("note.txt", "\xFF\xFE\xE5\x65");
  Open(Path("note.txt"));
  SaveUnder(HostName("copy.txt"));
  EXPECT_EQ(folder().ReadFile("copy.txt"), "\xEF\xBB\xBF\xE6\x97\xA5");
}

// A note of which the last part is nested too deeply to be shown.
std::string DeepNote() {
  return "{\\rtf1 shown" + std::string(kDeepestGroup, '{') + " deep" +
         std::string(kDeepestGroup + 1, '}');
}

TEST_F(PrintPreviewTest, ANoteThatIsNotShownWholeSaysSo) {
  Open(Path("note.rtf"));
  const auto* label = Control<QLabel>(&preview, "lblCut");
  EXPECT_FALSE(label->isVisible());
  folder().WriteFile("deep.rtf", DeepNote());
  preview.LoadFile(Path("deep.rtf"));
  EXPECT_TRUE(label->isVisible());
  EXPECT_TRUE(label->text().startsWith("This note is too large: a part of it is not shown."));
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
  EXPECT_TRUE(Control<QPushButton>(&preview, "cmdSave")->isEnabled());
  preview.LoadFile(Path("note.rtf"));
  EXPECT_FALSE(label->isVisible());
}

TEST_F(PrintPreviewTest, AFileThatIsMissingIsNotCut) {
  folder().WriteFile("deep.rtf", DeepNote());
  Open(Path("deep.rtf"));
  const auto* label = Control<QLabel>(&preview, "lblCut");
  ASSERT_TRUE(label->isVisible());
  preview.LoadFile(Path("nothing.rtf"));
  EXPECT_FALSE(label->isVisible());
}

TEST_F(PrintPreviewTest, WhatIsShownIsSavedWhateverHasBecomeOfItsFile) {
  Open(Path("note.txt"));
  folder().WriteFile("note.txt", "changed");
  SaveUnder(HostName("copy.txt"));
  EXPECT_EQ(folder().ReadFile("copy.txt"), "plain <b>text</b>\r\nsecond");
}

TEST_F(PrintPreviewTest, ANoteThatIsNotShownWholeIsSavedWholeAndAsksBeforeItReplaces) {
  folder().WriteFile("deep.rtf", DeepNote());
  folder().WriteFile("copy.txt", "old");
  Open(Path("deep.rtf"));
  EXPECT_EQ(Text(), "shown");
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    DialogScript script([&](QDialog* dialog) {
      Control<QLineEdit>(dialog, "fileNameEdit")->setText(HostName("copy.txt"));
      qobject_cast<QFileDialog*>(dialog)
          ->findChild<QDialogButtonBox*>()
          ->button(QDialogButtonBox::Save)
          ->click();
      if (dialog->isVisible()) dialog->reject();
    });
    script.Answer(answer);
    Press("cmdSave");
    ASSERT_EQ(script.Texts().size(), 1);
    EXPECT_TRUE(script.Texts()[0].startsWith("copy.txt already exists."));
    EXPECT_EQ(folder().ReadFile("copy.txt"), answer == QMessageBox::Yes ? "shown deep" : "old");
  }
}

TEST_F(PrintPreviewTest, ANoteTooLargeToBeSavedSaysThat) {
  constexpr size_t kMostSaved = size_t{64} * 1024 * 1024;
  const std::string begin = "{\\rtf1 a{\\info ";
  const std::string end = "}b}";
  const std::string filler(kMostSaved - begin.size() - end.size(), 'x');
  const auto* save = Control<QPushButton>(&preview, "cmdSave");
  folder().WriteFile("large.rtf", begin + filler + end);
  preview.LoadFile(Path("large.rtf"));
  EXPECT_EQ(Text(), "a");
  EXPECT_TRUE(save->isEnabled());
  SaveUnder(HostName("copy.txt"));
  EXPECT_EQ(folder().ReadFile("copy.txt"), "ab");
  folder().WriteFile("large.rtf", begin + filler + "x" + end);
  preview.LoadFile(Path("large.rtf"));
  EXPECT_FALSE(save->isEnabled());
  EXPECT_TRUE(Control<QLabel>(&preview, "lblCut")->text().contains("can't be saved"));
  preview.LoadFile(Path("note.rtf"));
  EXPECT_TRUE(save->isEnabled());
}

TEST_F(PrintPreviewTest, PagesAreNotOfferedToPickFrom) {
  Open(Path("note.rtf"));
  DialogScript script([](QDialog* dialog) {
    auto* printer = qobject_cast<QAbstractPrintDialog*>(dialog);
    ASSERT_NE(printer, nullptr);
    for (const char* name : {"printRange", "from", "to", "printCurrentPage"}) {
      const auto* control = printer->findChild<QWidget*>(name);
      EXPECT_TRUE(control == nullptr || !control->isVisible() || !control->isEnabled()) << name;
    }
    printer->reject();
  });
  Press("cmdPrint");
}

class RecordingOwner : public KeyOwner {
 public:
  void Form_KeyDown(int32_t keyCode, int32_t shift) override {
    keys.emplace_back(keyCode, shift);
    throw RunTimeError(kInvalidCall, "");
  }
  std::vector<std::pair<int32_t, int32_t>> keys;
};

TEST_F(PrintPreviewTest, KeysThatMeanNothingHereGoToTheOwner) {
  RecordingOwner owner;
  Open(Path("note.txt"));
  QTest::keyClick(Box(), Qt::Key_F);
  preview.Owner = &owner;
  for (const Qt::Key own :
       {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End, Qt::Key_Up, Qt::Key_Left,
        Qt::Key_Down, Qt::Key_Right, Qt::Key_Execute, Qt::Key_P, Qt::Key_S, Qt::Key_O}) {
    QTest::sendKeyEvent(QTest::Click, Box(), own, QString(), Qt::NoModifier);
  }
  EXPECT_TRUE(owner.keys.empty());
  QTest::keyClick(Box(), Qt::Key_F, Qt::ShiftModifier);
  QTest::keyClick(Box(), Qt::Key_F5);
  QTest::sendKeyEvent(QTest::Click, Box(), Qt::Key_CapsLock, QString(), Qt::NoModifier);
  EXPECT_EQ(owner.keys,
            (std::vector<std::pair<int32_t, int32_t>>{{16, 1}, {70, 1}, {116, 0}, {20, 0}}));
  EXPECT_EQ(StoppedBy(), 0) << "the owner's errors are ignored";
  owner.keys.clear();
  QTest::keyClick(Box(), Qt::Key_Return);
  EXPECT_TRUE(owner.keys.empty());
}

TEST_F(PrintPreviewTest, OkEscapeAndTheCloseBoxCloseAndForget) {
  const std::function<void()> ways[] = {[&] { Press("cmdDone"); },
                                        [&] { QTest::keyClick(Box(), Qt::Key_Escape); },
                                        [&] { preview.close(); }};
  for (const auto& way : ways) {
    RecordingOwner owner;
    preview.SetFloater();
    Open(Path("note.txt"));
    EXPECT_EQ(Text(), "plain <b>text</b>\nsecond");
    preview.Owner = &owner;
    way();
    EXPECT_FALSE(preview.isVisible());
    EXPECT_EQ(preview.Owner, nullptr);
    EXPECT_EQ(Text(), "");
    EXPECT_FALSE(preview.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  }
}

TEST_F(PrintPreviewTest, AFolderShowsItsFilesAndTheFirstOnesText) {
  folder().WriteFile("other.txt", "the other");
  preview.show();
  preview.DisplayFolder(folder().Path(), "txt");
  auto* files = Control<QListWidget>(&preview, "listFiles");
  EXPECT_TRUE(files->isVisible());
  EXPECT_FALSE(Control<QPushButton>(&preview, "cmdSave")->isVisible());
  ASSERT_EQ(files->count(), 2);
  EXPECT_EQ(files->item(0)->text(), "note");
  EXPECT_EQ(Text(), "plain <b>text</b>\nsecond");
  QTest::mouseClick(files->viewport(), Qt::LeftButton, {},
                    files->visualItemRect(files->item(1)).center());
  EXPECT_EQ(Text(), "the other");
  preview.HideFolder();
  EXPECT_FALSE(files->isVisible());
  EXPECT_TRUE(Control<QPushButton>(&preview, "cmdSave")->isVisible());
  preview.DisplayFolder(folder().Path(), "none");
  EXPECT_EQ(files->count(), 0);
}

TEST_F(PrintPreviewTest, EverythingHasANameAndTheButtonsTheirLetters) {
  Open(Path("note.txt"));
  ExpectEverythingNamed(&preview);
  ExpectFocusSeen(&preview);
  EXPECT_EQ(Control<QPushButton>(&preview, "cmdPrint")->text(), "&Print");
  EXPECT_EQ(Control<QPushButton>(&preview, "cmdSave")->text(), "&Save");
  EXPECT_EQ(Control<QPushButton>(&preview, "cmdDone")->text(), "&OK");
  EXPECT_EQ(TabOrder(&preview), QStringList({"rtfFile", "cmdPrint", "cmdSave", "cmdDone"}));
}

}  // namespace
}  // namespace logchecker
