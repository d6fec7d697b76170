// What a printer dialog is answered with: a PDF file, which can be read again.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QRadioButton>
#include <QSpinBox>
#include <QString>
#include <optional>

#include "tests/support/ui/HostProgram.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {

// Confirms the real dialog with this file, so many copies, and all rows or the selection; with
// neither of the two what is preset stays.
inline void AnswerWithFile(QDialog* dialog, const QString& pdf, int copies = 1,
                           std::optional<bool> selection = std::nullopt) {
  auto* printer = qobject_cast<QPrintDialog*>(dialog);
  ASSERT_NE(printer, nullptr);
  auto* printers = Control<QComboBox>(printer, "printers");
  printers->setCurrentIndex(printers->count() - 1);  // the PDF file
  Control<QLineEdit>(printer, "filename")->setText(pdf);
  Control<QSpinBox>(printer, "copies")->setValue(copies);
  if (selection) {
    Control<QRadioButton>(printer, *selection ? "printSelection" : "printAll")->setChecked(true);
  }
  printer->accept();
}

// The same with a queue of the system, for the dialog to be changed further and confirmed.
inline void PickQueue(QDialog* dialog, const char* queue) {
  auto* printers = Control<QComboBox>(dialog, "printers");
  const int index = printers->findText(queue);
  ASSERT_GE(index, 0) << "the dialog does not offer the queue";
  printers->setCurrentIndex(index);
}

inline QString TextOfFile(const QString& pdf) {
  return OutputOfProgram("pdftotext", {"-layout", pdf, "-"});
}

}  // namespace logchecker
