// The results on a printer.
#include "checking/ui/frmCheckBreaks.h"
#include "common/DatePicture.h"
#include "common/UserInterface.h"
#include "common/ui/QtUserInterface.h"
#include "common/ui/StationQString.h"
#include "printing/cPrinting.h"
#include "printing/ui/PrinterChoice.h"
#include "printing/ui/QtPrintCanvas.h"

namespace logchecker {

namespace {

// Shows the hourglass on one window for as long as it lives.
class BusyWindow {
 public:
  explicit BusyWindow(QWidget& window) : window_(window) { window_.setCursor(Qt::WaitCursor); }
  BusyWindow(const BusyWindow&) = delete;
  BusyWindow& operator=(const BusyWindow&) = delete;
  ~BusyWindow() { window_.unsetCursor(); }

 private:
  QWidget& window_;
};

}  // namespace

// Silent where the dialog is cancelled. Each copy is a full job of its own; the first that fails is
// the last.
void frmCheckBreaks::PrintDetails() {
  const std::optional<PrinterChoice> choice =
      AskForPrinter(this, {"Print Check Split Times", OnlySelected() != 0, JobKind::kReport});
  if (!choice) return;
  const BusyWindow busy(*this);
  Ui().Yield();
  const std::string title =
      "Velmar KLT LC - Check Split Times for " + FormatDate(day_(), "ddddd").value_or("");
  for (int copy = 1; copy <= choice->copies; ++copy) {
    QtPrintCanvas canvas(*choice->printer, ToQString(title));
    cPrinting clsPrintList(canvas);
    const int16_t selectedOnly = choice->selectionOnly ? -1 : 0;
    if (clsPrintList.PrintListView(&check_.lvwResults, title, selectedOnly) == 0) {
      ShowInformation("There was a problem printing your Check Split Times Report on " +
                      canvas.DeviceName() + clsPrintList.GetLastError());
      return;
    }
    if (copy == choice->copies) {
      ShowInformation("Your Check Split Times Report has been printed on " + canvas.DeviceName());
    }
  }
}

}  // namespace logchecker
