// What a printer dialog is answered with: a PDF file, which can be read again.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QProcess>
#include <QRadioButton>
#include <QSpinBox>
#include <QString>
#include <optional>

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

inline QString TextOfFile(const QString& pdf) {
  QProcess reader;
  reader.start("pdftotext", {"-layout", pdf, "-"});
  reader.waitForFinished();
  return QString::fromUtf8(reader.readAllStandardOutput());
}

}  // namespace logchecker
