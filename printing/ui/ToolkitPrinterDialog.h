// The toolkit's printer dialog, as far as what it offers is done.
#pragma once

#include <QPrintDialog>

#include "printing/ui/PrinterDialog.h"

namespace logchecker {

class ToolkitPrinterDialog : public QPrintDialog {
 public:
  ToolkitPrinterDialog(QPrinter* printer, const PrinterQuestion& question, QWidget* owner);
  void accept() override;

 protected:
  void childEvent(QChildEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TakeLastPrinter();
  void OfferFileWithItsBox();
  bool IsLastPrinter() const;
  void ShowLastPaper(QDialog* properties);
  void Offer(const PrinterQuestion& question);
  void Withhold(const char* control);
  void ShowOptions();

  QWidget* withheld_;
  bool paperPicked_ = false;  // the properties, which have the paper, were confirmed
};

}  // namespace logchecker
