// The report of the results window on paper, which is a PDF file.
#pragma once

#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QString>
#include <optional>

#include "platform/HostPaths.h"
#include "tests/checking/ui/ResultsTest.h"
#include "tests/support/ui/PrintedFile.h"

namespace logchecker {

class PrintDetailsTest : public ResultsTest {
 protected:
  PrintDetailsTest() : pdf(QString::fromStdString(ToHostPath(folder().Path()) + "/report.pdf")) {}

  // The real dialog, answered with a PDF file, so many copies, and all rows or the selection.
  void AnswerDialog(QDialog* dialog, int copies, std::optional<bool> selection) {
    auto* printer = qobject_cast<QPrintDialog*>(dialog);
    ASSERT_NE(printer, nullptr);
    EXPECT_EQ(printer->windowTitle(), "Print Check Split Times");
    presetSelection = printer->printRange() == QAbstractPrintDialog::Selection;
    AnswerWithFile(printer, pdf, copies, selection);
  }
  void Print(int copies = 1, std::optional<bool> selection = std::nullopt) {
    QFile::remove(pdf);
    DialogScript script([&](QDialog* dialog) { AnswerDialog(dialog, copies, selection); });
    window->PrintDetails();
  }
  // Past the dialog's own test of the folder.
  void PrintPastTheDialogsTests(int copies) {
    DialogScript script([&](QDialog* dialog) {
      auto* printer = qobject_cast<QPrintDialog*>(dialog);
      printer->printer()->setOutputFileName(pdf);
      printer->printer()->setCopyCount(copies);
      printer->done(QDialog::Accepted);
    });
    window->PrintDetails();
  }
  QString Text() const { return TextOfFile(pdf); }

  QString pdf;
  bool presetSelection = false;
};

}  // namespace logchecker
