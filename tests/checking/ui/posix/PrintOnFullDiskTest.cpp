#include <QDir>

#include "tests/checking/ui/PrintDetailsTest.h"
#include "tests/support/ui/posix/FullDisk.h"

namespace logchecker {
namespace {

TEST_F(PrintDetailsTest, OnAFullDiskTheFileThatIsThereStaysAndTheReasonIsSaid) {
  Check();
  for (const rlim_t room : {0, 4096}) {
    folder().WriteFile("report.pdf", "old");
    ui.messages.clear();
    const FullDisk full(room);
    PrintPastTheDialogsTests(1);
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].text,
              "There was a problem printing your Check Split Times Report on " + pdf.toStdString() +
                  "Disk full: " + QDir::tempPath().toStdString());
    EXPECT_EQ(folder().ReadFile("report.pdf"), "old");
  }
}

}  // namespace
}  // namespace logchecker
