#include "printing/ui/PrinterDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>

namespace logchecker {

PrinterDialog::PrinterDialog(QPrinter* printer, const PrinterQuestion& question, QWidget* owner)
    : QPrintDialog(printer, owner), withheld_(new QWidget(this)) {
  setObjectName("PrinterDialog");
  setWindowTitle(question.title);
  withheld_->hide();
  TakeLastPrinter();
  Offer(question);
  ShowOptions();
}

// The toolkit's dialog takes the system's own printer when it is made.
void PrinterDialog::TakeLastPrinter() {
  if (!gLastPrinter) return;
  if (!gLastPrinter->file.isEmpty()) {
    printer()->setOutputFormat(QPrinter::PdfFormat);
    if (auto* file = findChild<QLineEdit*>("filename")) file->setText(gLastPrinter->file);
  } else if (auto* printers = findChild<QComboBox*>("printers")) {
    const int index = printers->findText(gLastPrinter->name);
    if (index < 0) return;
    printers->setCurrentIndex(index);
  } else {
    printer()->setPrinterName(gLastPrinter->name);
  }
  printer()->setPageLayout(gLastPrinter->layout);
}

// Pages are picked as a range of them, which serves every printer. What the toolkit offers beside,
// lists and sets of pages and the last page first, it can't do for a file, or not at all.
void PrinterDialog::Offer(const PrinterQuestion& question) {
  const bool report = question.kind == JobKind::kReport;
  setOption(QAbstractPrintDialog::PrintSelection);
  setOption(QAbstractPrintDialog::PrintCurrentPage, false);
  setOption(QAbstractPrintDialog::PrintPageRange, report);
  setOption(QAbstractPrintDialog::PrintCollateCopies, !report);
  setPrintRange(question.presetSelection ? QAbstractPrintDialog::Selection
                                         : QAbstractPrintDialog::AllPages);
  for (const char* control :
       {"pagesRadioButton", "pagesLineEdit", "pageSetLabel", "pageSetCombo", "reverse"}) {
    Withhold(control);
  }
  if (report) return;
  for (const char* control : {"printRange", "from", "to"}) Withhold(control);
}

// The toolkit shows and reads its controls when it likes, so they must live on, out of sight.
void PrinterDialog::Withhold(const char* control) {
  if (auto* found = findChild<QWidget*>(control)) found->setParent(withheld_);
}

// On systems where the toolkit's own dialog has them behind a button.
void PrinterDialog::ShowOptions() {
  const auto* box = findChild<QDialogButtonBox*>();
  if (box == nullptr) return;
  for (QAbstractButton* button : box->buttons()) {
    if (box->buttonRole(button) == QDialogButtonBox::ResetRole) button->click();
  }
}

}  // namespace logchecker
