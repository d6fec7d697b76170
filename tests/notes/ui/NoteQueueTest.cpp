// Run by a script that has a print scheduler at hand; without one there is nothing to test.
#include <QComboBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QSpinBox>
#include <cstdlib>

#include "notes/ui/frmPrintPreview.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

using NoteQueueTest = WindowTest;

TEST_F(NoteQueueTest, TwoCopiesAreOneJobForThePrinterToCopy) {
  const char* queue = std::getenv("LOGCHECKER_TEST_QUEUE");
  if (queue == nullptr) GTEST_SKIP() << "no print scheduler at hand";
  folder().WriteFile("note.txt", "a note");
  frmPrintPreview preview;
  preview.LoadFile(Path("note.txt"));
  DialogScript script([&](QDialog* dialog) {
    auto* printers = Control<QComboBox>(dialog, "printers");
    const int index = printers->findText(queue);
    ASSERT_GE(index, 0) << "the dialog does not offer the queue";
    printers->setCurrentIndex(index);
    Control<QSpinBox>(dialog, "copies")->setValue(2);
    qobject_cast<QPrintDialog*>(dialog)->accept();
  });
  Control<QPushButton>(&preview, "cmdPrint")->click();
  EXPECT_TRUE(ui.messages.empty()) << ui.messages[0].text;
}

}  // namespace
}  // namespace logchecker
