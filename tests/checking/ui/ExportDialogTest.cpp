#include "tests/checking/ui/ExportDialogTest.h"

#include <QComboBox>
#include <QFileDialog>
#include <QListView>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <filesystem>

#include "common/SystemHelpers.h"
#include "common/ui/QtUserInterface.h"
#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "tests/support/ui/DocumentsFolder.h"

namespace logchecker {
namespace {

TEST_F(ExportDialogTest, OffersTheRememberedFolderAndTheFilters) {
  Check();
  DialogScript script([&](QDialog* dialog) {
    auto* files = qobject_cast<QFileDialog*>(dialog);
    ASSERT_NE(files, nullptr);
    EXPECT_EQ(files->windowTitle(), "Export Results to CSV File...");
    const auto* filters = Control<QComboBox>(dialog, "fileTypeCombo");
    EXPECT_EQ(filters->count(), 2);
    EXPECT_EQ(filters->itemText(0), "Comma Separated Variable Files (*.CSV)");
    EXPECT_EQ(filters->itemText(1), "All Files (*.*)");
    EXPECT_EQ(files->defaultSuffix(), "CSV");
    EXPECT_EQ(files->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(Name(dialog)->text(), "*.CSV");
    EXPECT_EQ(FolderShown(files), ToHostPath(folder().Path()));
    dialog->reject();
  });
  Save();
}

TEST_F(ExportDialogTest, AllFilesShowsAllOfThemAndLeavesTheNameAlone) {
  Check();
  folder().WriteFile("README", "");
  DialogScript script([&](QDialog* dialog) {
    auto* filters = Control<QComboBox>(dialog, "fileTypeCombo");
    Name(dialog)->setText("report.csv");
    filters->setCurrentIndex(1);
    emit filters->activated(1);
    EXPECT_EQ(Name(dialog)->text(), "report.csv");
    auto* files = Control<QListView>(dialog, "listView");
    const auto shown = [&] {
      return !files->model()
                  ->match(files->model()->index(0, 0, files->rootIndex()), Qt::DisplayRole,
                          "README", 1, Qt::MatchExactly)
                  .isEmpty();
    };
    EXPECT_TRUE(QTest::qWaitFor(shown, 30000));
    dialog->reject();
  });
  Save();
}

TEST_F(ExportDialogTest, CancelEndsInSilenceAndStoresNothing) {
  Check();
  SetRegistryString(kCurrentUserRoot, kExportKey, kExportValue, "elsewhere", "");
  DialogScript script([](QDialog* dialog) { dialog->reject(); });
  Save();
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_EQ(Stored(), "elsewhere");
}

TEST_F(ExportDialogTest, TheFileGetsItsExtensionTheFolderItsMemoryAndTheUserAMessage) {
  Check();
  SaveAs("report");
  EXPECT_EQ(folder().ReadFile("report.CSV"),
            "\"Time\",\"North & <b>\",\"South\"\r\n\"07:00\",\":30.00\",\"Not Found\"\r\n"
            "\"08:00\",\":20.00\",\"Not Found\"\r\n\"08:01\",\"Not Found\",\":20.00\"\r\n");
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text,
            "Your Check Split Times Report has been saved into " + ToHostPath(Path("report.CSV")));
  EXPECT_EQ(ui.messages[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(Stored(), ToHostPath(folder().Path()));
}

TEST_F(ExportDialogTest, ASecondExportOffersTheSameFileAndAsksBeforeItReplacesIt) {
  Check();
  SaveAs("report");
  folder().WriteFile("report.CSV", "old");
  {
    DialogScript script([&](QDialog* dialog) {
      EXPECT_EQ(Name(dialog)->text(), "report.CSV");
      QTest::keyClick(Name(dialog), Qt::Key_Return);
      QTimer::singleShot(0, dialog, &QDialog::reject);
    });
    script.Answer(QMessageBox::No);
    Save();
    EXPECT_EQ(script.Texts(), QStringList("report.CSV already exists.\n\nReplace it?"));
  }
  EXPECT_EQ(folder().ReadFile("report.CSV"), "old");
  SaveAs("report.CSV");
  EXPECT_NE(folder().ReadFile("report.CSV"), "old");
}

TEST_F(ExportDialogTest, AFileIsThereInWhateverLetterCaseItIsTyped) {
  Check();
  folder().WriteFile("report.csv", "old");
  for (const char* name : {"report.CSV", "REPORT", "Report.Csv"}) {
    DialogScript script([&](QDialog* dialog) {
      Name(dialog)->setText(name);
      QTest::keyClick(Name(dialog), Qt::Key_Return);
      QTimer::singleShot(0, dialog, &QDialog::reject);
    });
    script.Answer(QMessageBox::No);
    Save();
    EXPECT_EQ(script.Texts(), QStringList("report.csv already exists.\n\nReplace it?")) << name;
    EXPECT_EQ(folder().ReadFile("report.csv"), "old") << name;
  }
  SaveAs("report.CSV");
  EXPECT_NE(folder().ReadFile("report.csv"), "old");
  EXPECT_EQ(ReportsThere(), QStringList("report.csv"));
}

TEST_F(ExportDialogTest, AFolderIsEnteredInWhateverLetterCaseItIsTyped) {
  Check();
  std::filesystem::create_directory(folder().Path("reports"));
  DialogScript script([&](QDialog* dialog) {
    auto* files = qobject_cast<QFileDialog*>(dialog);
    files->setDefaultSuffix("");
    Name(dialog)->setText("REPORTS");
    QTest::keyClick(Name(dialog), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(FolderShown(files), ToHostPath(folder().Path("reports")));
    dialog->reject();
  });
  Save();
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ExportDialogTest, ANewFileIsAskedForToo) {
  Check();
  DialogScript script([&](QDialog* dialog) {
    Name(dialog)->setText("fresh");
    QTest::keyClick(Name(dialog), Qt::Key_Return);
    QTimer::singleShot(0, dialog, &QDialog::reject);
  });
  script.Answer(QMessageBox::No);
  Save();
  EXPECT_FALSE(folder().Exists("fresh.CSV"));
}

TEST_F(ExportDialogTest, TwoSelectedRowsAreExportedAloneAndOneStandsForAll) {
  Check();
  ClickRow(0);
  SaveAs("one");
  ClickRow(2, Qt::ControlModifier);
  SaveAs("two");
  EXPECT_EQ(folder().ReadFile("one.CSV").size(), 120U);
  EXPECT_EQ(folder().ReadFile("two.CSV"),
            "\"Time\",\"North & <b>\",\"South\"\r\n\"07:00\",\":30.00\",\"Not Found\"\r\n"
            "\"08:01\",\"Not Found\",\":20.00\"\r\n");
}

TEST_F(ExportDialogTest, AnExportIntoTheDocumentsFolderLeavesNoValue) {
  Check();
  ASSERT_EQ(kNoError, Os().directories.MakeDirectory(Path("sub")));
  SaveAs(ToHostPath(Path("sub/first")));
  ASSERT_EQ(Stored(), ToHostPath(Path("sub")));
  const TempFolder documents;
  const DocumentsFolder documentsFolder(documents);
  ASSERT_EQ(ToHostPath(GetSpecialPath(kDocumentsFolder)), ToHostPath(documents.Path()));
  SaveAs(ToHostPath(documents.Path("report")));
  EXPECT_TRUE(documents.Exists("report.CSV"));
  EXPECT_EQ(Stored(), "no value");
}

TEST_F(ExportDialogTest, TheFolderIsStoredBeforeTheFileIsOpened) {
  ASSERT_EQ(kNoError, Os().directories.MakeDirectory(Path("sub")));
  Check();
  for (const char* call : {"Files.OpenForOutput", "Files.Write"}) {
    RememberExportFolder(Path("x.csv"));
    os.script.Clear();
    os.script.FailNamed(call, 0, kDiskFull);
    SaveAs(ToHostPath(Path("sub/report")));
    EXPECT_EQ(Stored(), ToHostPath(Path("sub"))) << call;
    const std::vector<std::string>& calls = os.script.Calls();
    const auto stored = std::find(calls.begin(), calls.end(), "Registry.SetValue");
    ASSERT_NE(stored, calls.end()) << call;
    EXPECT_NE(std::find(stored, calls.end(), "Files.OpenForOutput"), calls.end()) << call;
    EXPECT_EQ(std::find(calls.begin(), stored, "Files.OpenForOutput"), stored) << call;
  }
}

TEST_F(ExportDialogTest, ASecondExportBeginsInTheFolderOfTheFirst) {
  ASSERT_EQ(kNoError, Os().directories.MakeDirectory(Path("sub")));
  Check();
  SaveAs(ToHostPath(Path("sub/report")));
  DialogScript script([&](QDialog* dialog) {
    EXPECT_EQ(FolderShown(dialog), ToHostPath(Path("sub")));
    EXPECT_EQ(Name(dialog)->text(), "report.CSV");
    dialog->reject();
  });
  Save();
}

TEST_F(ExportDialogTest, AFileThatCantBeOpenedIsSaidAndTheFolderStaysRemembered) {
  Check();
  os.script.FailNamed("Files.OpenForOutput", 1, kPermissionDenied);
  SaveAs("report");
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text.find("There was a problem opening the file "), 0U);
  EXPECT_NE(ui.messages[0].text.find(" to export to"), std::string::npos);
  EXPECT_EQ(Stored(), ToHostPath(folder().Path()));
}

TEST_F(ExportDialogTest, AWriteThatFailsPartWaySaysNothing) {
  Check();
  os.script.FailNamed("Files.Write", 2, kDiskFull);
  SaveAs("report");
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_EQ(StoppedBy(), 0);
  EXPECT_EQ(ui.pointer, MousePointer::kDefault);
  EXPECT_FALSE(folder().Exists("report.CSV"));
}

TEST_F(ExportDialogTest, AWildcardFiltersAndSavesNothing) {
  Check();
  DialogScript script([&](QDialog* dialog) {
    QTest::keyClick(Name(dialog), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    dialog->reject();
  });
  Save();
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ExportDialogTest, ANameThatTheCodePageCantHoldIsRefusedWithAMessage) {
  Check();
  DialogScript script([&](QDialog* dialog) {
    Name(dialog)->setText(QString::fromUtf8("\xE2\x98\x83"));  // a snowman
    QTest::keyClick(Name(dialog), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    dialog->reject();
  });
  Save();
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text.find("The file's name has characters"), 0U);
}

TEST_F(ExportDialogTest, ANameWithMarkupIsPlainText) {
  Check();
  folder().WriteFile("&lt;b&gt;x.CSV", "old");
  DialogScript script([&](QDialog* dialog) {
    Name(dialog)->setText("&lt;b&gt;x.CSV");
    QTest::keyClick(Name(dialog), Qt::Key_Return);
    QTimer::singleShot(0, dialog, &QDialog::reject);
  });
  script.Then([](QDialog* dialog) {
    auto* box = qobject_cast<QMessageBox*>(dialog);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    box->reject();
  });
  Save();
}

}  // namespace
}  // namespace logchecker
