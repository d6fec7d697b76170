// The printer dialog.
#pragma once

#include <QPrinter>
#include <memory>
#include <optional>

namespace logchecker {

struct PrinterChoice {
  std::unique_ptr<QPrinter> printer;  // its own count of copies is 1
  int copies = 1;
  bool selectionOnly = false;
};

// Asks for a printer, copies, and all or the selection, which is preset with `presetSelection`.
// Nothing when the user cancels.
std::optional<PrinterChoice> AskForPrinter(QWidget* owner, const QString& title,
                                           bool presetSelection);

}  // namespace logchecker
