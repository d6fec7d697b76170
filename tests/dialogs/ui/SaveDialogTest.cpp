// The dialog in which a file to save is named.
#include "dialogs/ui/SaveDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <filesystem>

#include "platform/HostPaths.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

using SaveDialogTest = WindowTest;

TEST_F(SaveDialogTest, AFolderThatIsTypedIsEnteredAndTheNamesBoxIsEmptyForTheFile) {
  std::filesystem::create_directory(folder().Path("reports"));
  SaveDialog dialog(nullptr, "Save", {{"All Files", "*"}}, "", folder().Path());
  DialogScript script([&](QDialog* shown) {
    auto* name = Control<QLineEdit>(shown, "fileNameEdit");
    QApplication::setActiveWindow(shown);
    name->setFocus();
    name->setText("REPORTS");
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_TRUE(shown->isVisible());
    EXPECT_EQ(FolderShown(&dialog), ToHostPath(folder().Path("reports")));
    EXPECT_EQ(name->text(), "");
    shown->reject();
  });
  EXPECT_EQ(dialog.Ask("preset"), std::nullopt);
}

TEST_F(SaveDialogTest, AWildcardJoinsTheFiltersThatAreOffered) {
  SaveDialog dialog(nullptr, "Save", {{"Tables (*.CSV)", "*.CSV"}, {"All Files (*.*)", "*"}}, "CSV",
                    folder().Path());
  folder().WriteFile("a.txt", "");
  folder().WriteFile("a.csv", "");
  DialogScript script([&](QDialog* shown) {
    auto* name = Control<QLineEdit>(shown, "fileNameEdit");
    auto* filters = Control<QComboBox>(shown, "fileTypeCombo");
    QApplication::setActiveWindow(shown);
    const auto type = [&](const char* pattern) {
      name->setFocus();
      name->setText(pattern);
      QTest::keyClick(name, Qt::Key_Return);
      EXPECT_TRUE(shown->isVisible()) << "a pattern saves nothing";
    };
    type("*.txt");
    type("*.dat");
    EXPECT_EQ(filters->count(), 3) << "the one that was typed last, beside those that are offered";
    EXPECT_EQ(filters->itemText(0), "Tables (*.CSV)");
    EXPECT_EQ(filters->itemText(1), "All Files (*.*)");
    EXPECT_EQ(filters->currentText(), "*.dat");
    folder().WriteFile("a (1).csv", "");
    type("*(1).*");
    EXPECT_EQ(filters->currentText(), "*(1).*");
    type("*.csv");
    EXPECT_EQ(filters->currentText(), "Tables (*.CSV)") << "which is offered";
    shown->reject();
  });
  EXPECT_EQ(dialog.Ask("preset"), std::nullopt);
}

TEST_F(SaveDialogTest, EnterDoesNotReplaceAFile) {
  folder().WriteFile("there.CSV", "old");
  for (const bool replace : {false, true}) {
    SaveDialog dialog(nullptr, "Save", {{"All Files", "*"}}, "CSV", folder().Path());
    DialogScript script([&](QDialog* shown) {
      auto* name = Control<QLineEdit>(shown, "fileNameEdit");
      name->setText("there.CSV");
      QTest::keyClick(name, Qt::Key_Return);
      if (!replace) shown->reject();
    });
    script.Then([&](QDialog* question) {
      auto* box = qobject_cast<QMessageBox*>(question);
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
      if (replace) {
        box->button(QMessageBox::Yes)->click();
      } else {
        QTest::keyClick(box, Qt::Key_Return);
      }
    });
    EXPECT_EQ(dialog.Ask("preset").has_value(), replace);
  }
}

}  // namespace
}  // namespace logchecker
