// The printer dialog.
#pragma once

#include <QPageLayout>
#include <QPrinter>
#include <QString>
#include <memory>
#include <optional>

namespace logchecker {

// What is to be printed. Each copy of a report is a job of its own, and the user may pick a range
// of its pages. Copies of a note are one job, which the printer copies and collates.
enum class JobKind { kReport, kNote };

struct PrinterQuestion {
  QString title;
  bool presetSelection = false;
  JobKind kind = JobKind::kReport;
};

struct PrinterChoice {
  std::unique_ptr<QPrinter> printer;  // with all that was picked; of a report its own copies are 1
  int copies = 1;                     // how many jobs to hand over
  bool selectionOnly = false;
};

// Asks for a printer, copies, and all or the selection. Nothing when the user cancels.
std::optional<PrinterChoice> AskForPrinter(QWidget* owner, const PrinterQuestion& question);

// What the next dialog opens with: the printer and the paper of the last one, for the run of the
// program.
struct LastPrinter {
  QString name;  // of a queue
  QString file;  // or of a PDF file
  QPageLayout layout;
};
extern std::optional<LastPrinter> gLastPrinter;

}  // namespace logchecker
