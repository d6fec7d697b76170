// The dialog in which a file to save is named.
#include "dialogs/ui/SaveDialog.h"

#include <QLineEdit>
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
    EXPECT_EQ(dialog.directory().canonicalPath().toStdString(),
              ToHostPath(folder().Path("reports")));
    EXPECT_EQ(name->text(), "");
    shown->reject();
  });
  EXPECT_EQ(dialog.Ask("preset"), std::nullopt);
}

}  // namespace
}  // namespace logchecker
