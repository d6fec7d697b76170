// One job for a printer. It is drawn as PDF and handed over when it is whole, so that no printer
// ever holds half of one.
#pragma once

#include <QPrinter>
#include <QTemporaryDir>

namespace logchecker {

class PrintJob {
 public:
  // `chosen` is the printer that the user picked, with its page; a queue of the system, or a PDF
  // file.
  PrintJob(const QPrinter& chosen, const QString& title);

  // To be drawn on with a painter, which must have ended before Send.
  QPrinter& Paper() { return paper_; }
  // How many of the job the printer makes; 1 at first. A PDF file is one however many.
  void SetCopies(int copies) { copies_ = copies; }
  // Hands the job over. Throws PrintError. A job that is never sent leaves nothing behind.
  void Send();
  // The printer's name, or the file's.
  QString DeviceName() const;

 private:
  void MoveTo(const QString& file) const;

  QTemporaryDir folder_;
  QPrinter paper_;
  QString title_;
  QString queue_;    // empty for a PDF file
  QString pdfFile_;  // empty for a queue
  QPrinter::DuplexMode duplex_;
  int copies_ = 1;
};

}  // namespace logchecker
