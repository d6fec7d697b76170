#include "printing/ui/PrinterChoice.h"

#include <QPrintDialog>
#include <algorithm>

namespace logchecker {

std::optional<PrinterChoice> AskForPrinter(QWidget* owner, const QString& title,
                                           bool presetSelection) {
  PrinterChoice choice;
  choice.printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  choice.printer->setPrintRange(presetSelection ? QPrinter::Selection : QPrinter::AllPages);
  QPrintDialog dialog(choice.printer.get(), owner);
  dialog.setObjectName("PrinterDialog");
  dialog.setWindowTitle(title);
  dialog.setOption(QAbstractPrintDialog::PrintSelection);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
  dialog.setPrintRange(presetSelection ? QAbstractPrintDialog::Selection
                                       : QAbstractPrintDialog::AllPages);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  choice.selectionOnly = dialog.printRange() == QAbstractPrintDialog::Selection;
  choice.copies = std::max(choice.printer->copyCount(), 1);
  // Whoever prints makes the copies; with the printer's count left as it is three would make nine.
  choice.printer->setCopyCount(1);
  return choice;
}

}  // namespace logchecker
