// The printer's dialog: what it opens with and what it offers.
#include <QCheckBox>
#include <QComboBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "printing/ui/PrinterChoice.h"
#include "tests/support/ui/PrintedFile.h"
#include "tests/support/ui/posix/PrintQueue.h"

namespace logchecker {
namespace {

class PrinterDialogTest : public WindowTest {
 protected:
  // Asks, and looks at the dialog before it is answered.
  static std::optional<PrinterChoice> Ask(const PrinterQuestion& question,
                                          const DialogScript::Work& work) {
    DialogScript script(work);
    return AskForPrinter(nullptr, question);
  }
  static QStringList Seen(const QDialog* dialog) {
    QStringList seen;
    for (const char* name : {"printAll", "printSelection", "printRange", "copies", "collate",
                             "pagesRadioButton", "pageSetCombo", "reverse"}) {
      if (Control<QWidget>(dialog, name)->isVisible()) seen += name;
    }
    return seen;
  }
  static constexpr auto kCancel = [](QDialog* dialog) { dialog->reject(); };
};

TEST_F(PrinterDialogTest, AReportHasCopiesAndRangeInSightAndNothingThatIsNotDone) {
  Ask({"Report", false, JobKind::kReport}, [](QDialog* dialog) {
    EXPECT_EQ(dialog->windowTitle(), "Report");
    EXPECT_EQ(Seen(dialog), QStringList({"printAll", "printSelection", "printRange", "copies"}));
    dialog->reject();
  });
}

TEST_F(PrinterDialogTest, ANoteHasNoPageNumbersAndCanBeCollated) {
  Ask({"Note", false, JobKind::kNote}, [](QDialog* dialog) {
    EXPECT_EQ(Seen(dialog), QStringList({"printAll", "printSelection", "copies", "collate"}));
    dialog->reject();
  });
}

TEST_F(PrinterDialogTest, TheNumbersOfAPageRangeGoWithIt) {
  for (const JobKind kind : {JobKind::kReport, JobKind::kNote}) {
    Ask({"T", false, kind}, [&](QDialog* dialog) {
      for (const char* name : {"printRange", "from", "to"}) {
        EXPECT_EQ(Control<QWidget>(dialog, name)->isVisible(), kind == JobKind::kReport) << name;
      }
      dialog->reject();
    });
  }
}

TEST_F(PrinterDialogTest, ASelectionIsPresetWhereThereIsOne) {
  for (const bool selection : {false, true}) {
    const auto choice = Ask({"T", selection, JobKind::kReport}, [&](QDialog* dialog) {
      EXPECT_EQ(Control<QRadioButton>(dialog, "printSelection")->isChecked(), selection);
      EXPECT_EQ(Control<QRadioButton>(dialog, "printAll")->isChecked(), !selection);
      AnswerWithFile(dialog, "/tmp/x.pdf");
    });
    EXPECT_EQ(choice->selectionOnly, selection);
  }
}

TEST_F(PrinterDialogTest, CopiesOfAReportAreJobsAndThoseOfANoteThePrinters) {
  for (const JobKind kind : {JobKind::kReport, JobKind::kNote}) {
    const auto choice =
        Ask({"T", false, kind}, [&](QDialog* dialog) { AnswerWithFile(dialog, "/tmp/x.pdf", 3); });
    EXPECT_EQ(choice->copies, kind == JobKind::kReport ? 3 : 1);
    EXPECT_EQ(choice->printer->copyCount(), kind == JobKind::kReport ? 1 : 3);
  }
}

TEST_F(PrinterDialogTest, TheButtonForAFilesNameGoesWithItsBox) {
  const PrintQueue queue;
  Ask({"T", false, JobKind::kReport}, [](QDialog* dialog) {
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
  Ask({"T", false, JobKind::kReport}, [](QDialog* dialog) {
    EXPECT_FALSE(Control<QWidget>(dialog, "fileBrowser")->isEnabled());
    dialog->reject();
  });
}

TEST_F(PrinterDialogTest, WithoutQueuesAFilesNameCanBeLookedForAtOnce) {
  Ask({"T", false, JobKind::kReport}, [](QDialog* dialog) {
    ASSERT_TRUE(Control<QWidget>(dialog, "filename")->isEnabled());
    EXPECT_TRUE(Control<QWidget>(dialog, "fileBrowser")->isEnabled());
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

TEST_F(PrinterDialogTest, TheNextDialogHasTheLastPrinterAndItsPaper) {
  const PrintQueue queue;
  DialogScript script([](QDialog* dialog) {
    PickQueue(dialog, PrintQueue::kName);
    Control<QPushButton>(dialog, "properties")->click();
    qobject_cast<QPrintDialog*>(dialog)->accept();
  });
  script.Then(PickA4Across).Then([](QDialog* dialog) {
    EXPECT_EQ(Control<QComboBox>(dialog, "printers")->currentText(), PrintQueue::kName);
    qobject_cast<QPrintDialog*>(dialog)->accept();
  });
  ExpectA4Across(*AskForPrinter(nullptr, {"T", false, JobKind::kNote}));
  ExpectA4Across(*AskForPrinter(nullptr, {"T", false, JobKind::kReport}));
}

TEST_F(PrinterDialogTest, TheLastPaperIsSeenInThePropertiesAndCanBeChangedThere) {
  const PrintQueue queue;
  gLastPrinter = LastPrinter{PrintQueue::kName, "",
                             QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {})};
  DialogScript script([](QDialog* dialog) {
    Control<QPushButton>(dialog, "properties")->click();
    qobject_cast<QPrintDialog*>(dialog)->accept();
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

TEST_F(PrinterDialogTest, TheLastPaperTakesThePlaceOfTheQueuesOwnInTheProperties) {
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

TEST_F(PrinterDialogTest, AFileIsALastPrinterToo) {
  const PrintQueue queue;
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
    qobject_cast<QPrintDialog*>(dialog)->accept();
  });
  ExpectA4Across(*AskForPrinter(nullptr, {"T", false, JobKind::kReport}));
  const auto second = AskForPrinter(nullptr, {"T", false, JobKind::kReport});
  ExpectA4Across(*second);
  EXPECT_EQ(second->printer->outputFileName(), file);
}

TEST_F(PrinterDialogTest, APrinterThatIsGoneIsNotAskedFor) {
  gLastPrinter = LastPrinter{"gone", "", QPageLayout()};
  const PrintQueue queue;
  const auto choice = Ask({"T", false, JobKind::kReport},
                          [](QDialog* dialog) { qobject_cast<QPrintDialog*>(dialog)->accept(); });
  EXPECT_EQ(choice->printer->printerName(), PrintQueue::kName);
}

TEST_F(PrinterDialogTest, ADialogThatIsCancelledChangesNothing) {
  EXPECT_FALSE(Ask({"T", false, JobKind::kReport}, kCancel));
  EXPECT_FALSE(gLastPrinter);
}

}  // namespace
}  // namespace logchecker
