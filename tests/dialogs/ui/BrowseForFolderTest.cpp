#include "dialogs/ui/BrowseForFolder.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>

#include "dialogs/BrowsePath.h"
#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

using BrowseForFolderTest = WindowTest;

TEST_F(BrowseForFolderTest, ACallersOwnCallbackTakesThePlaceOfTheBuiltInOne) {
  std::vector<std::string> told;
  DialogScript script([&](QDialog* dialog) {
    EXPECT_EQ(Control<QLabel>(dialog, "lblStatus")->text(), "mine");
    dialog->reject();
  });
  BrowseForFolder(nullptr, "T", "C:\\x", false,
                  [&](BrowseDialog& dialog, BrowseMessage message, const std::string& path) {
                    if (message == BrowseMessage::kInitialized) told.push_back(path);
                    dialog.SetStatusText("mine");
                  });
  EXPECT_EQ(told, std::vector<std::string>{"C:\\x"});
}

TEST_F(BrowseForFolderTest, TheChooserIsTheToolkitsOwnOverItsOwner) {
  QWidget owner;
  for (const bool newStyle : {false, true}) {
    DialogScript script([&](QDialog* dialog) {
      auto* files = qobject_cast<QFileDialog*>(dialog);
      ASSERT_NE(files, nullptr);
      EXPECT_EQ(files->parentWidget(), &owner);
      EXPECT_TRUE(files->testOption(QFileDialog::DontUseNativeDialog));
      EXPECT_TRUE(files->testOption(QFileDialog::ShowDirsOnly));
      EXPECT_EQ(files->testOption(QFileDialog::ReadOnly), !newStyle) << "folders can be made";
      dialog->reject();
    });
    BrowseForFolder(&owner, "T", "", newStyle, {});
  }
}

TEST_F(BrowseForFolderTest, AFolderWhoseNameTheCodePageCantHoldIsRefused) {
  const QString named = QString::fromStdString(ToHostPath(folder().Path())) + "/\u2603";
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
  EXPECT_EQ(ui.messages[0].text.find("The folder's name has characters that the station's"), 0U);
}

TEST_F(BrowseForFolderTest, TheFolderInHandShowsAsTheStatusText) {
  Os().directories.MakeDirectory(Path("inner"));
  DialogScript script([&](QDialog* dialog) {
    auto* files = qobject_cast<QFileDialog*>(dialog);
    emit files->directoryEntered(QString::fromStdString(ToHostPath(Path("inner"))));
    EXPECT_EQ(Control<QLabel>(dialog, "lblStatus")->text().toStdString(), Path("inner"));
    dialog->reject();
  });
  BrowseForFolder(nullptr, "T", folder().Path(), true, {});
}

}  // namespace
}  // namespace logchecker
