#include "common/ErrorState.h"
#include "tests/notes/ui/PrintPreviewTest.h"
#include "tests/support/ui/posix/FullDisk.h"

namespace logchecker {
namespace {

TEST_F(PrintPreviewTest, AFullDiskIsSaid) {
  Open(Path("note.rtf"));
  folder().WriteFile("out.pdf", "old");
  DialogScript script([&](QDialog* dialog) {
    auto* printer = qobject_cast<QPrintDialog*>(dialog);
    printer->printer()->setOutputFileName(HostName("out.pdf"));
    printer->done(QDialog::Accepted);
  });
  {
    const FullDisk full(4096);
    Press("cmdPrint");
  }
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text.find("There was a problem while printing."), 0U);
  EXPECT_NE(ui.messages[0].text.find(ErrorText(kDiskFull)), std::string::npos);
  EXPECT_EQ(folder().ReadFile("out.pdf"), "old");
}

}  // namespace
}  // namespace logchecker
