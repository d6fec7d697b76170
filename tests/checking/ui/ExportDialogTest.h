// The results, exported through the dialog.
#pragma once

#include <QDir>
#include <QLineEdit>
#include <QStringList>
#include <string>

#include "checking/ExportFolder.h"
#include "checking/ui/frmCheckBreaks.h"
#include "common/Registry.h"
#include "platform/HostPaths.h"
#include "tests/checking/ui/ResultsTest.h"

namespace logchecker {

class ExportDialogTest : public ResultsTest {
 protected:
  ExportDialogTest() { RememberExportFolder(Path("x.csv")); }

  static QLineEdit* Name(QDialog* dialog) { return Control<QLineEdit>(dialog, "fileNameEdit"); }
  void Save() { Button("cmdSave")->click(); }
  // Types a name and confirms, answering each question with Yes.
  void SaveAs(const std::string& name, int questions = 1) {
    DialogScript script([&](QDialog* dialog) {
      QApplication::setActiveWindow(dialog);
      Name(dialog)->setFocus();
      Name(dialog)->setText(QString::fromStdString(name));
      QTest::keyClick(Name(dialog), Qt::Key_Return);
    });
    for (int i = 0; i < questions; ++i) script.Answer(QMessageBox::Yes);
    Save();
  }
  // The names of the files that begin so, as they are written.
  QStringList ReportsThere() {
    return QDir(QString::fromStdString(ToHostPath(folder().Path()))).entryList({"report*"});
  }
  std::string Stored() {
    return GetRegistryString(kCurrentUserRoot, kExportKey, kExportValue, "no value");
  }
};

}  // namespace logchecker
