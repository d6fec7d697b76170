// The printer dialog of the system: the toolkit's own where that offers a PDF file beside the
// queues, else one that is drawn here, with the same controls under the same names.
#pragma once

#include <QAbstractPrintDialog>
#include <memory>

#include "printing/ui/PrinterChoice.h"

namespace logchecker {

// Opens with copies and range in sight, and with the last printer and paper. `printer` takes what
// the user picks and must outlive the dialog.
std::unique_ptr<QAbstractPrintDialog> MakePrinterDialog(QPrinter* printer,
                                                        const PrinterQuestion& question,
                                                        QWidget* owner);

}  // namespace logchecker
