// The printer's dialog: what it opens with and what it offers.
#include <QAbstractPrintDialog>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "printing/ui/PrinterChoice.h"
#include "tests/support/ui/PrintedFile.h"

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
      const auto* control = dialog->findChild<QWidget*>(name);
      if (control != nullptr && control->isVisible()) seen += name;
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

TEST_F(PrinterDialogTest, WithoutQueuesAFilesNameCanBeLookedForAtOnce) {
  Ask({"T", false, JobKind::kReport}, [](QDialog* dialog) {
    ASSERT_TRUE(Control<QWidget>(dialog, "filename")->isEnabled());
    EXPECT_TRUE(Control<QWidget>(dialog, "fileBrowser")->isEnabled());
    dialog->reject();
  });
}

TEST_F(PrinterDialogTest, ADialogThatIsCancelledChangesNothing) {
  EXPECT_FALSE(Ask({"T", false, JobKind::kReport}, kCancel));
  EXPECT_FALSE(gLastPrinter);
}

}  // namespace
}  // namespace logchecker
