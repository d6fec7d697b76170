#include <QComboBox>
#include <QPushButton>

#include "printing/ui/PrinterChoice.h"
#include "tests/support/ui/PrintQueue.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class OwnPaperTest : public WindowTest {};

TEST_F(OwnPaperTest, TheLastPaperTakesThePlaceOfTheQueuesOwnInTheProperties) {
  const PrintQueue queue;
  queue.SetOwnPaper("A4");
  gLastPrinter =
      LastPrinter{PrintQueue::kName, "",
                  QPageLayout(QPageSize(QSize(612, 792), "Letter"), QPageLayout::Portrait, {})};
  DialogScript script([](QDialog* dialog) {
    Control<QPushButton>(dialog, "properties")->click();
    dialog->reject();
  });
  script.Then([](QDialog* properties) {
    const auto* sizes = Control<QComboBox>(properties, "pageSizeCombo");
    EXPECT_EQ(sizes->itemText(0), "Letter");
    EXPECT_EQ(sizes->currentText(), "Letter");
    properties->reject();
  });
  EXPECT_FALSE(AskForPrinter(nullptr, {"T", false, JobKind::kReport}));
}

}  // namespace
}  // namespace logchecker
