// Names that differ in letter case alone can lie beside each other.
#include <QTimer>

#include "tests/checking/ui/ExportDialogTest.h"

namespace logchecker {
namespace {

TEST_F(ExportDialogTest, AFileThatCouldBeTwoIsSaidBeforeItIsAskedFor) {
  Check();
  for (const char* name : {"Report.csv", "report.csv"}) folder().WriteFile(name, "old");
  DialogScript script([&](QDialog* dialog) {
    Name(dialog)->setText("REPORT.CSV");
    QTest::keyClick(Name(dialog), Qt::Key_Return);
    QTimer::singleShot(0, dialog, &QDialog::reject);
  });
  script.Answer(QMessageBox::No);
  Save();
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_NE(std::string::npos, ui.messages[0].text.find("Report.csv\" is used"));
  EXPECT_EQ(script.Texts(), QStringList("Report.csv already exists.\n\nReplace it?"));
}

}  // namespace
}  // namespace logchecker
