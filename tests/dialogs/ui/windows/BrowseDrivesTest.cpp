// Drives, separators and letter cases are the system's own.
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
  Os().directories.MakeDirectory(Path("Logs"));
  const std::string own = Path("Logs");
  std::string upper = own;
  for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  std::string slashes = own;
  for (char& c : slashes) c = c == '\\' ? '/' : c;
  const std::string starts[] = {own, upper, slashes + "/", own + "\\"};
  for (const std::string& start : starts) {
    DialogScript script([&](QDialog* dialog) {
      const QString shown = QString::fromStdString(FolderShown(dialog));
      EXPECT_EQ(shown.compare(QString::fromStdString(ToHostPath(own)), Qt::CaseInsensitive), 0)
          << start << " " << shown.toStdString();
      EXPECT_EQ(dialog->windowTitle(), "Title");
      dialog->reject();
    });
    EXPECT_EQ(BrowseForFolder(nullptr, "Title", start, true, {}), "");
    EXPECT_EQ(gBrowseStartPath, start);
  }
}

TEST_F(BrowseForFolderTest, AChosenDriveComesBackWithoutItsBackslash) {
  Os().directories.MakeDirectory(Path("Logs"));
  const auto accept = [](QDialog* dialog) {
    Control<QLineEdit>(dialog, "fileNameEdit")->clear();
    QMetaObject::invokeMethod(dialog, "accept");
  };
  {
    DialogScript script(accept);
    EXPECT_EQ(BrowseForFolder(nullptr, "T", "C:\\", true, {}), "C:");
  }
  {
    DialogScript script(accept);
    EXPECT_EQ(BrowseForFolder(nullptr, "T", Path("Logs"), true, {}), Path("Logs"));
  }
}

}  // namespace
}  // namespace logchecker
