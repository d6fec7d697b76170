// The toolkit's printer dialog, as far as what it offers is done.
#pragma once

#include <QPrintDialog>

#include "printing/ui/PrinterChoice.h"

namespace logchecker {

// Opens with copies and range in sight, and with the last printer and paper. `printer` takes what
// the user picks and must outlive the dialog.
class PrinterDialog : public QPrintDialog {
 public:
  PrinterDialog(QPrinter* printer, const PrinterQuestion& question, QWidget* owner);
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
