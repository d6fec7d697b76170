// The printer's dialog where there is a queue.
#include <QAbstractPrintDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "printing/ui/PrinterChoice.h"
#include "tests/support/ui/PrintQueue.h"
#include "tests/support/ui/PrintedFile.h"

namespace logchecker {
namespace {

class PrinterDialogQueueTest : public WindowTest {
 protected:
  // Asks, and looks at the dialog before it is answered.
  static std::optional<PrinterChoice> Ask(const DialogScript::Work& work) {
    DialogScript script(work);
    return AskForPrinter(nullptr, {"T", false, JobKind::kReport});
  }

  const PrintQueue queue;
};

TEST_F(PrinterDialogQueueTest, TheButtonForAFilesNameGoesWithItsBox) {
  Ask([](QDialog* dialog) {
    const auto* browse = Control<QWidget>(dialog, "fileBrowser");
    PickQueue(dialog, PrintQueue::kName);
    EXPECT_FALSE(browse->isEnabled());
    auto* printers = Control<QComboBox>(dialog, "printers");
    printers->setCurrentIndex(printers->count() - 1);
    EXPECT_TRUE(browse->isEnabled());
    PickQueue(dialog, PrintQueue::kName);
    EXPECT_FALSE(browse->isEnabled());
    dialog->reject();
  });
  gLastPrinter = LastPrinter{PrintQueue::kName, "", QPageLayout()};
  Ask([](QDialog* dialog) {
    EXPECT_FALSE(Control<QWidget>(dialog, "fileBrowser")->isEnabled());
    dialog->reject();
  });
}

// Picks A4 across in the printer's properties.
void PickA4Across(QDialog* properties) {
  auto* sizes = Control<QComboBox>(properties, "pageSizeCombo");
  sizes->setCurrentIndex(sizes->findText("A4", Qt::MatchStartsWith));
  Control<QRadioButton>(properties, "landscape")->click();
  properties->accept();
}

void ExpectA4Across(const PrinterChoice& choice) {
  EXPECT_EQ(choice.printer->pageLayout().pageSize().id(), QPageSize::A4);
  EXPECT_EQ(choice.printer->pageLayout().orientation(), QPageLayout::Landscape);
}

TEST_F(PrinterDialogQueueTest, TheNextDialogHasTheLastPrinterAndItsPaper) {
  DialogScript script([](QDialog* dialog) {
    PickQueue(dialog, PrintQueue::kName);
    Control<QPushButton>(dialog, "properties")->click();
    qobject_cast<QAbstractPrintDialog*>(dialog)->accept();
  });
  script.Then(PickA4Across).Then([](QDialog* dialog) {
    EXPECT_EQ(Control<QComboBox>(dialog, "printers")->currentText(), PrintQueue::kName);
    qobject_cast<QAbstractPrintDialog*>(dialog)->accept();
  });
  ExpectA4Across(*AskForPrinter(nullptr, {"T", false, JobKind::kNote}));
  ExpectA4Across(*AskForPrinter(nullptr, {"T", false, JobKind::kReport}));
}

TEST_F(PrinterDialogQueueTest, TheLastPaperIsSeenInThePropertiesAndCanBeChangedThere) {
  gLastPrinter = LastPrinter{PrintQueue::kName, "",
                             QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {})};
  DialogScript script([](QDialog* dialog) {
    Control<QPushButton>(dialog, "properties")->click();
    qobject_cast<QAbstractPrintDialog*>(dialog)->accept();
  });
  script.Then([](QDialog* properties) {
    auto* sizes = Control<QComboBox>(properties, "pageSizeCombo");
    EXPECT_TRUE(sizes->currentText().startsWith("A4")) << sizes->currentText().toStdString();
    sizes->setCurrentIndex(sizes->findText("Letter", Qt::MatchContains));
    properties->accept();
  });
  const auto choice = AskForPrinter(nullptr, {"T", false, JobKind::kReport});
  EXPECT_EQ(choice->printer->pageLayout().pageSize().id(), QPageSize::Letter);
}

TEST_F(PrinterDialogQueueTest, AFileIsALastPrinterToo) {
  const QString file = QString::fromStdString(folder().Path() + "/last.pdf");
  DialogScript script([&](QDialog* dialog) {
    auto* printers = Control<QComboBox>(dialog, "printers");
    printers->setCurrentIndex(printers->count() - 1);
    Control<QPushButton>(dialog, "properties")->click();
    AnswerWithFile(dialog, file);
  });
  script.Then(PickA4Across).Then([&](QDialog* dialog) {
    const auto* printers = Control<QComboBox>(dialog, "printers");
    EXPECT_EQ(printers->currentIndex(), printers->count() - 1);
    EXPECT_EQ(Control<QLineEdit>(dialog, "filename")->text(), file);
    qobject_cast<QAbstractPrintDialog*>(dialog)->accept();
  });
  ExpectA4Across(*AskForPrinter(nullptr, {"T", false, JobKind::kReport}));
  const auto second = AskForPrinter(nullptr, {"T", false, JobKind::kReport});
  ExpectA4Across(*second);
  EXPECT_EQ(second->printer->outputFileName(), file);
}

TEST_F(PrinterDialogQueueTest, APrinterThatIsGoneIsNotAskedFor) {
  gLastPrinter = LastPrinter{"gone", "", QPageLayout()};
  const auto choice =
      Ask([](QDialog* dialog) { qobject_cast<QAbstractPrintDialog*>(dialog)->accept(); });
  EXPECT_EQ(choice->printer->printerName(), PrintQueue::kName);
}

}  // namespace
}  // namespace logchecker
