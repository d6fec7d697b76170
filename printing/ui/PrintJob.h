// One job for a printer. The toolkit hands it over, with everything that was picked in the
// printer's dialog.
#pragma once

#include <QPrinter>
#include <functional>

class QPainter;

namespace logchecker {

// What a job prints. A page, counted from 0, is drawn on a painter whose origin is the upper left
// corner of the printable page. It can be drawn several times.
struct PrintedPages {
  int count = 0;
  std::function<void(QPainter& painter, int page)> draw;
};

class PrintJob {
 public:
  // `chosen` is the printer that the user picked, a queue of the system or a PDF file, and must
  // outlive the job.
  PrintJob(QPrinter& chosen, const QString& title);

  // For measuring.
  const QPrinter& Paper() const { return chosen_; }
  // Hands the job over, or the pages of it that the user picked. Throws PrintError. The whole job
  // is drawn into the temporary folder first, and goes no further when there is no room for all of
  // it: no printer gets half of a job, and a PDF file that is there stays as it is.
  void Send(const PrintedPages& pages);
  // The printer's name, or the file's.
  QString DeviceName() const;

 private:
  bool IsFile() const { return chosen_.outputFormat() == QPrinter::PdfFormat; }
  void HandOver(const PrintedPages& pages);
  QByteArray DrawWhole(const PrintedPages& pages) const;

  QPrinter& chosen_;
};

}  // namespace logchecker
