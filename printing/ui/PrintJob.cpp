#include "printing/ui/PrintJob.h"

#include <QFile>
#include <QSaveFile>

#include "common/ErrorState.h"
#include "common/ui/StationQString.h"
#include "printing/PrintCanvas.h"
#include "printing/ui/CupsQueue.h"

namespace logchecker {

namespace {

const char* SidesOf(QPrinter::DuplexMode duplex) {
  switch (duplex) {
    case QPrinter::DuplexLongSide:
      return "two-sided-long-edge";
    case QPrinter::DuplexShortSide:
      return "two-sided-short-edge";
    default:
      return "";
  }
}

}  // namespace

PrintJob::PrintJob(const QPrinter& chosen, const QString& title)
    : paper_(QPrinter::HighResolution), title_(title), duplex_(chosen.duplex()) {
  if (chosen.outputFormat() == QPrinter::PdfFormat && !chosen.outputFileName().isEmpty()) {
    pdfFile_ = chosen.outputFileName();
  } else {
    queue_ = chosen.printerName();
  }
  paper_.setOutputFormat(QPrinter::PdfFormat);
  paper_.setOutputFileName(folder_.filePath("job.pdf"));
  paper_.setPageLayout(chosen.pageLayout());
  paper_.setDocName(title);
  paper_.setCreator("Log Checker");
}

QString PrintJob::DeviceName() const { return pdfFile_.isEmpty() ? queue_ : pdfFile_; }

void PrintJob::Send() {
  if (!QFile::exists(paper_.outputFileName())) {
    throw PrintError(kPrinterError, ErrorText(kPrinterError));
  }
  if (!pdfFile_.isEmpty()) {
    MoveTo(pdfFile_);
  } else if (queue_.isEmpty()) {
    throw PrintError(kPrinterError, "There is no printer");
  } else {
    SubmitToQueue(queue_, paper_.outputFileName(), title_, SidesOf(duplex_), copies_);
  }
}

// The file is written whole or not at all.
void PrintJob::MoveTo(const QString& file) const {
  QFile drawn(paper_.outputFileName());
  QSaveFile target(file);
  const bool written = drawn.open(QIODevice::ReadOnly) && target.open(QIODevice::WriteOnly) &&
                       target.write(drawn.readAll()) == drawn.size() && target.commit();
  if (!written) throw PrintError(kPathFileAccess, FromQString(target.errorString()));
}

}  // namespace logchecker
