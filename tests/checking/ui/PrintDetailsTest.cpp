#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "common/DatePicture.h"
#include "platform/HostPaths.h"
#include "tests/checking/ui/ResultsTest.h"

namespace logchecker {
namespace {

class PrintDetailsTest : public ResultsTest {
 protected:
  PrintDetailsTest() : pdf(QString::fromStdString(ToHostPath(folder().Path()) + "/report.pdf")) {}

  // The real dialog, answered with a PDF file, so many copies, and all rows or the selection.
  void AnswerDialog(QDialog* dialog, int copies, std::optional<bool> selection) {
    auto* printer = qobject_cast<QPrintDialog*>(dialog);
    ASSERT_NE(printer, nullptr);
    EXPECT_EQ(printer->windowTitle(), "Print Check Split Times");
    presetSelection = printer->printRange() == QAbstractPrintDialog::Selection;
    auto* printers = Control<QComboBox>(printer, "printers");
    printers->setCurrentIndex(printers->count() - 1);  // the PDF file
    Control<QLineEdit>(printer, "filename")->setText(pdf);
    Control<QSpinBox>(printer, "copies")->setValue(copies);
    if (selection) {
      Control<QRadioButton>(printer, *selection ? "printSelection" : "printAll")->setChecked(true);
    }
    printer->accept();
  }
  void Print(int copies = 1, std::optional<bool> selection = std::nullopt) {
    QFile::remove(pdf);
    DialogScript script([&](QDialog* dialog) { AnswerDialog(dialog, copies, selection); });
    window->PrintDetails();
  }
  QString Text() const {
    QProcess reader;
    reader.start("pdftotext", {"-layout", pdf, "-"});
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput());
  }

  QString pdf;
  bool presetSelection = false;
};

TEST_F(PrintDetailsTest, TheReportHasTitleHeadingsAndRows) {
  Check();
  Print();
  const QString text = Text();
  EXPECT_TRUE(text.contains("Velmar KLT LC - Check Split Times for " +
                            QString::fromStdString(*FormatDate(kDay, "ddddd"))))
      << text.toStdString();
  EXPECT_TRUE(text.contains("North & <b>"));
  EXPECT_TRUE(text.contains("Not Found"));
  EXPECT_TRUE(text.contains("08:01"));
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text,
            "Your Check Split Times Report has been printed on " + pdf.toStdString());
  EXPECT_EQ(ui.messages[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(ui.yields, 2) << "one when the window loads, one before the printing";
}

TEST_F(PrintDetailsTest, WithOneRowSelectedAllIsPresetAndTheWholeListPrints) {
  Check();
  ClickRow(1);
  Print();
  EXPECT_FALSE(presetSelection);
  EXPECT_TRUE(Text().contains("07:00"));
}

TEST_F(PrintDetailsTest, WithTwoRowsSelectedTheSelectionIsPresetAndPrints) {
  Check();
  ClickRow(0);
  ClickRow(2, Qt::ControlModifier);
  Print();
  EXPECT_TRUE(presetSelection);
  EXPECT_TRUE(Text().contains("07:00"));
  EXPECT_FALSE(Text().contains("08:00"));
}

TEST_F(PrintDetailsTest, TheUsersChoiceDecidesInTheEnd) {
  Check();
  ClickRow(0);
  ClickRow(2, Qt::ControlModifier);
  Print(1, false);
  EXPECT_TRUE(Text().contains("08:00"));
}

TEST_F(PrintDetailsTest, SeveralCopiesEndInOneMessage) {
  Check();
  Print(3);
  EXPECT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(Text().count("07:00"), 1) << "each copy is a job of its own, of one copy";
}

TEST_F(PrintDetailsTest, ACancelledDialogEndsInSilence) {
  Check();
  DialogScript script([](QDialog* dialog) { dialog->reject(); });
  window->PrintDetails();
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PrintDetailsTest, AFileThatCantBeWrittenIsSaidOnceWithItsReason) {
  Check();
  pdf = QString::fromStdString(ToHostPath(folder().Path()) + "/missing/report.pdf");
  DialogScript script([&](QDialog* dialog) {
    auto* printer = qobject_cast<QPrintDialog*>(dialog);
    // Past the dialog's own test of the folder.
    printer->printer()->setOutputFileName(pdf);
    printer->printer()->setCopyCount(3);
    printer->done(QDialog::Accepted);
  });
  window->PrintDetails();
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text.find("There was a problem printing your Check Split Times Report "
                                     "on " +
                                     pdf.toStdString()),
            0U);
  EXPECT_GT(ui.messages[0].text.size(),
            ("There was a problem printing your Check Split Times Report on " + pdf.toStdString())
                .size());
}

TEST_F(PrintDetailsTest, WithoutRowsTheReportHasItsHeadingsAlone) {
  SecondSplitAsTheFirst();
  Check();
  Print();
  EXPECT_TRUE(Text().contains("Time"));
  EXPECT_FALSE(Text().contains("07:00"));
}

TEST_F(PrintDetailsTest, TheButtonPrints) {
  Check();
  DialogScript script([](QDialog* dialog) { dialog->reject(); });
  Button("cmdPrint")->click();
}

}  // namespace
}  // namespace logchecker
