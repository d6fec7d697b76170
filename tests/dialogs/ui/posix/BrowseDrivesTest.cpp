// Drives are folders that the settings name, and names are found in any letter case.
#include "dialogs/ui/BrowseForFolder.h"

#include <QFileDialog>
#include <QLineEdit>

#include "dialogs/BrowsePath.h"
#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

using BrowseForFolderTest = WindowTest;

TEST_F(BrowseForFolderTest, TheFolderChooserStartsWhereTheTextPointsHoweverItIsWritten) {
  Os().directories.MakeDirectory(Path("drives"));
  Os().directories.MakeDirectory(Path("drives") + "/c");
  Os().directories.MakeDirectory(Path("drives") + "/c/Logs");
  const std::string host = ToHostPath(Path("drives") + "/c/Logs");
  std::string upper = Path("drives") + "/c/Logs";
  for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  const std::string starts[] = {"C:\\LOGS", "c:/logs/", upper, "C:\\logs\\"};
  for (const std::string& start : starts) {
    DialogScript script([&](QDialog* dialog) {
      EXPECT_EQ(FolderShown(dialog), host) << start;
      EXPECT_EQ(dialog->windowTitle(), "Title");
      dialog->reject();
    });
    EXPECT_EQ(BrowseForFolder(nullptr, "Title", start, true, {}), "");
    EXPECT_EQ(gBrowseStartPath, start);
  }
}

TEST_F(BrowseForFolderTest, AChosenDriveComesBackWithoutItsBackslash) {
  Os().directories.MakeDirectory(Path("drives"));
  Os().directories.MakeDirectory(Path("drives") + "/c");
  Os().directories.MakeDirectory(Path("drives") + "/c/Logs");
  const auto accept = [](QDialog* dialog) {
    Control<QLineEdit>(dialog, "fileNameEdit")->clear();
    QMetaObject::invokeMethod(dialog, "accept");
  };
  {
    DialogScript script(accept);
    EXPECT_EQ(BrowseForFolder(nullptr, "T", "C:", true, {}), "c:");
  }
  {
    DialogScript script(accept);
    EXPECT_EQ(BrowseForFolder(nullptr, "T", "C:\\logs", true, {}), "c:\\Logs");
  }
}

TEST_F(BrowseForFolderTest, AFolderWhoseNameIsMoreThanALineIsRefused) {
  const QString named = QString::fromStdString(ToHostPath(folder().Path())) + "/East\n[Oops]\nWest";
  ASSERT_TRUE(QDir().mkdir(named));
  DialogScript script([&](QDialog* dialog) {
    auto* files = qobject_cast<QFileDialog*>(dialog);
    files->setDirectory(named);
    Control<QLineEdit>(files, "fileNameEdit")->clear();
    QMetaObject::invokeMethod(files, "accept");
    EXPECT_TRUE(files->isVisible());
    files->reject();
  });
  EXPECT_EQ(BrowseForFolder(nullptr, "T", "", true, {}), "");
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].icon, MessageIcon::kExclamation);
  EXPECT_EQ(ui.messages[0].text.find("The folder's name has line breaks or other characters"), 0U);
}

}  // namespace
}  // namespace logchecker
