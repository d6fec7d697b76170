// The printer dialog of systems whose own one has no PDF file among the printers.
#pragma once

#include <memory>

#include "printing/ui/PrinterDialog.h"

namespace Ui {
class frmPrinter;
}

namespace logchecker {

class DrawnPrinterDialog : public QAbstractPrintDialog {
 public:
  DrawnPrinterDialog(QPrinter* printer, const PrinterQuestion& question, QWidget* owner);
  ~DrawnPrinterDialog() override;
  void accept() override;

 private:
  void ListPrinters();
  void TakeLastPrinter();
  void TakePrinter();
  void Offer(const PrinterQuestion& question);
  void BrowseForFile();
  // Whether the file that is named can be written, as far as can be seen; says so where not.
  bool FileIsGood();
  bool IsFile() const;
  void SetRange();

  std::unique_ptr<Ui::frmPrinter> ui_;
};

}  // namespace logchecker
