#include "printing/ui/ToolkitPrinterDialog.h"

#include <QAbstractButton>
#include <QChildEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>

#include "common/ui/Guide.h"

namespace logchecker {

std::unique_ptr<QAbstractPrintDialog> MakePrinterDialog(QPrinter* printer,
                                                        const PrinterQuestion& question,
                                                        QWidget* owner) {
  return std::make_unique<ToolkitPrinterDialog>(printer, question, owner);
}

ToolkitPrinterDialog::ToolkitPrinterDialog(QPrinter* printer, const PrinterQuestion& question,
                                           QWidget* owner)
    : QPrintDialog(printer, owner), withheld_(new QWidget(this)) {
  setWindowTitle(question.title);
  SetGuidePage(*this, kGuideSaveAndPrint);
  withheld_->hide();
  TakeLastPrinter();
  if (auto* file = findChild<QLineEdit*>("filename")) file->installEventFilter(this);
  OfferFileWithItsBox();
  Offer(question);
  ShowOptions();
}

// The toolkit's dialog takes the system's own printer when it is made.
void ToolkitPrinterDialog::TakeLastPrinter() {
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

// The toolkit turns the box for the file's name off for a queue, and leaves the button beside it.
void ToolkitPrinterDialog::OfferFileWithItsBox() {
  auto* browse = findChild<QWidget*>("fileBrowser");
  const auto* file = findChild<QLineEdit*>("filename");
  if (browse != nullptr && file != nullptr) browse->setEnabled(file->isEnabled());
}

bool ToolkitPrinterDialog::IsLastPrinter() const {
  if (!gLastPrinter) return false;
  const auto* printers = findChild<QComboBox*>("printers");
  if (printers == nullptr) return printer()->printerName() == gLastPrinter->name;
  const bool isFile = printers->currentIndex() == printers->count() - 1;
  return gLastPrinter->file.isEmpty() ? printers->currentText() == gLastPrinter->name : isFile;
}

// The toolkit goes back to a queue's own paper whenever it looks at the properties, which it also
// does when nobody opened them.
void ToolkitPrinterDialog::accept() {
  const bool keepPaper = !paperPicked_ && IsLastPrinter();
  QPrintDialog::accept();
  if (keepPaper) printer()->setPageLayout(gLastPrinter->layout);
}

void ToolkitPrinterDialog::childEvent(QChildEvent* event) {
  if (event->added()) event->child()->installEventFilter(this);
  QPrintDialog::childEvent(event);
}

bool ToolkitPrinterDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && !paperPicked_) {
    if (auto* properties = qobject_cast<QDialog*>(watched)) ShowLastPaper(properties);
  }
  if (event->type() == QEvent::EnabledChange && watched->objectName() == "filename") {
    OfferFileWithItsBox();
  }
  return QPrintDialog::eventFilter(watched, event);
}

void ToolkitPrinterDialog::ShowLastPaper(QDialog* properties) {
  auto* sizes = properties->findChild<QComboBox*>("pageSizeCombo");
  if (sizes == nullptr) return;
  connect(properties, &QDialog::accepted, this, [this] { paperPicked_ = true; });
  if (!IsLastPrinter()) return;
  const int index = sizes->findText(gLastPrinter->layout.pageSize().name());
  if (index >= 0) sizes->setCurrentIndex(index);
}

// Pages are picked as a range of them, which serves every printer. What the toolkit offers beside,
// lists and sets of pages and the last page first, it can't do for a file, or not at all.
void ToolkitPrinterDialog::Offer(const PrinterQuestion& question) {
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
void ToolkitPrinterDialog::Withhold(const char* control) {
  if (auto* found = findChild<QWidget*>(control)) found->setParent(withheld_);
}

// On systems where the toolkit's own dialog has them behind a button.
void ToolkitPrinterDialog::ShowOptions() {
  const auto* box = findChild<QDialogButtonBox*>();
  if (box == nullptr) return;
  for (QAbstractButton* button : box->buttons()) {
    if (box->buttonRole(button) == QDialogButtonBox::ResetRole) button->click();
  }
}

}  // namespace logchecker
