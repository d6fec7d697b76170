#include "printing/ui/PrinterChoice.h"

#include <algorithm>

#include "printing/ui/PrinterDialog.h"

namespace logchecker {

std::optional<LastPrinter> gLastPrinter;

namespace {

bool IsFile(const QPrinter& printer) { return printer.outputFormat() == QPrinter::PdfFormat; }

void Remember(const QPrinter& printer) {
  gLastPrinter =
      LastPrinter{IsFile(printer) ? QString() : printer.printerName(),
                  IsFile(printer) ? printer.outputFileName() : QString(), printer.pageLayout()};
}

}  // namespace

std::optional<PrinterChoice> AskForPrinter(QWidget* owner, const PrinterQuestion& question) {
  PrinterChoice choice;
  choice.printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  const auto dialog = MakePrinterDialog(choice.printer.get(), question, owner);
  if (dialog->exec() != QDialog::Accepted) return std::nullopt;
  Remember(*choice.printer);
  choice.selectionOnly = dialog->printRange() == QAbstractPrintDialog::Selection;
  if (question.kind == JobKind::kReport) {
    choice.copies = std::max(choice.printer->copyCount(), 1);
    // The printer would make copies of each copy.
    choice.printer->setCopyCount(1);
  }
  return choice;
}

}  // namespace logchecker
