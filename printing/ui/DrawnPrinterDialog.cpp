#include "printing/ui/DrawnPrinterDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <algorithm>

#include "common/ui/Guide.h"
#include "printing/ui/PaperDialog.h"
#include "ui_frmPrinter.h"

namespace logchecker {

std::unique_ptr<QAbstractPrintDialog> MakePrinterDialog(QPrinter* printer,
                                                        const PrinterQuestion& question,
                                                        QWidget* owner) {
  return std::make_unique<DrawnPrinterDialog>(printer, question, owner);
}

DrawnPrinterDialog::DrawnPrinterDialog(QPrinter* printer, const PrinterQuestion& question,
                                       QWidget* owner)
    : QAbstractPrintDialog(printer, owner), ui_(std::make_unique<Ui::frmPrinter>()) {
  ui_->setupUi(this);
  setWindowTitle(question.title);
  SetGuidePage(*this, kGuideSaveAndPrint);
  const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  ui_->filename->setText(QDir::toNativeSeparators(documents.filePath("print.pdf")));
  ListPrinters();
  TakeLastPrinter();
  Offer(question);
  connect(ui_->printers, &QComboBox::currentIndexChanged, this, [this] { TakePrinter(); });
  connect(ui_->properties, &QPushButton::clicked, this,
          [this] { PaperDialog(*this->printer(), this).exec(); });
  connect(ui_->fileBrowser, &QPushButton::clicked, this, [this] { BrowseForFile(); });
  // Who gives a page's number wants pages.
  for (QSpinBox* page : {ui_->from, ui_->to}) {
    connect(page, &QSpinBox::valueChanged, ui_->printRange, [this] { ui_->printRange->click(); });
  }
  connect(ui_->from, &QSpinBox::valueChanged, ui_->to, &QSpinBox::setMinimum);
  connect(ui_->buttons, &QDialogButtonBox::accepted, this, &DrawnPrinterDialog::accept);
  connect(ui_->buttons, &QDialogButtonBox::rejected, this, &DrawnPrinterDialog::reject);
}

DrawnPrinterDialog::~DrawnPrinterDialog() = default;

// The file stands behind the queues.
void DrawnPrinterDialog::ListPrinters() {
  const QStringList names = QPrinterInfo::availablePrinterNames();
  ui_->printers->addItems(names);
  ui_->printers->addItem("Print to File (PDF)");
  const auto system = names.indexOf(QPrinterInfo::defaultPrinterName());
  ui_->printers->setCurrentIndex(std::max(static_cast<int>(system), 0));
}

bool DrawnPrinterDialog::IsFile() const {
  return ui_->printers->currentIndex() == ui_->printers->count() - 1;
}

void DrawnPrinterDialog::TakeLastPrinter() {
  bool last = false;
  if (gLastPrinter && !gLastPrinter->file.isEmpty()) {
    ui_->printers->setCurrentIndex(ui_->printers->count() - 1);
    ui_->filename->setText(gLastPrinter->file);
    last = true;
  } else if (gLastPrinter) {
    const int index = ui_->printers->findText(gLastPrinter->name);
    last = index >= 0;
    if (last) ui_->printers->setCurrentIndex(index);
  }
  TakePrinter();
  if (!last) return;
  // Margins that the queue can't have would keep the paper from it.
  printer()->setPageSize(gLastPrinter->layout.pageSize());
  printer()->setPageOrientation(gLastPrinter->layout.orientation());
  printer()->setPageLayout(gLastPrinter->layout);
}

// A queue comes with its own paper.
void DrawnPrinterDialog::TakePrinter() {
  printer()->setOutputFormat(IsFile() ? QPrinter::PdfFormat : QPrinter::NativeFormat);
  if (!IsFile()) printer()->setPrinterName(ui_->printers->currentText());
  ui_->filename->setEnabled(IsFile());
  ui_->fileLabel->setEnabled(IsFile());
  ui_->fileBrowser->setEnabled(IsFile());
}

void DrawnPrinterDialog::Offer(const PrinterQuestion& question) {
  const bool report = question.kind == JobKind::kReport;
  setPrintRange(question.presetSelection ? Selection : AllPages);
  (question.presetSelection ? ui_->printSelection : ui_->printAll)->setChecked(true);
  for (QWidget* control : {static_cast<QWidget*>(ui_->printRange), static_cast<QWidget*>(ui_->from),
                           static_cast<QWidget*>(ui_->toLabel), static_cast<QWidget*>(ui_->to)}) {
    control->setVisible(report);
  }
  ui_->collate->setVisible(!report);
}

void DrawnPrinterDialog::BrowseForFile() {
  const QString file =
      QFileDialog::getSaveFileName(this, "Print To File ...", ui_->filename->text(),
                                   "PDF Files (*.pdf)", nullptr, QFileDialog::DontConfirmOverwrite);
  if (!file.isEmpty()) ui_->filename->setText(QDir::toNativeSeparators(file));
}

bool DrawnPrinterDialog::FileIsGood() {
  const QString name = ui_->filename->text();
  const QFileInfo facts(name);
  QString wrong;
  if (name.isEmpty()) wrong = "Please give the output file a name.";
  if (wrong.isEmpty() && facts.isDir()) {
    wrong = name + " is a folder.\nPlease choose a different file name.";
  }
  if (wrong.isEmpty() && !facts.dir().exists()) wrong = name + "\nThe folder is not there.";
  const bool mayAsk = wrong.isEmpty() && facts.exists();
  if (mayAsk && !facts.isWritable()) {
    wrong = "File " + name + " is not writable.\nPlease choose a different file name.";
  }
  if (wrong.isEmpty() && !mayAsk) return true;
  const bool ask = wrong.isEmpty();
  QMessageBox box(ask ? QMessageBox::Question : QMessageBox::Warning, windowTitle(),
                  ask ? name + " already exists.\nDo you want to overwrite it?" : wrong,
                  ask ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, this);
  box.setTextFormat(Qt::PlainText);
  return box.exec() == QMessageBox::Yes;
}

void DrawnPrinterDialog::SetRange() {
  if (ui_->printSelection->isChecked()) {
    setPrintRange(Selection);
  } else if (ui_->printRange->isChecked()) {
    setPrintRange(PageRange);
    setFromTo(ui_->from->value(), ui_->to->value());
  } else {
    setPrintRange(AllPages);
    printer()->setFromTo(0, 0);
  }
}

void DrawnPrinterDialog::accept() {
  if (IsFile() && !FileIsGood()) return;
  if (IsFile()) {
    const QPageLayout paper = printer()->pageLayout();
    printer()->setOutputFileName(ui_->filename->text());
    // Another end of the name than that of a PDF file makes no other file of it.
    printer()->setOutputFormat(QPrinter::PdfFormat);
    printer()->setPageLayout(paper);
  }
  SetRange();
  printer()->setCopyCount(ui_->copies->value());
  printer()->setCollateCopies(ui_->collate->isChecked());
  done(Accepted);
}

}  // namespace logchecker
