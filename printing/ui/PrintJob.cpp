#include "printing/ui/PrintJob.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QSaveFile>
#include <QTemporaryDir>
#include <algorithm>
#include <string>
#include <string_view>

#include "common/ErrorState.h"
#include "common/ui/StationQString.h"
#include "printing/PrintCanvas.h"
#include "printing/WholePdf.h"
#include "printing/ui/QueueWatch.h"

namespace logchecker {

namespace {

[[noreturn]] void Fail(int32_t number, const std::string& why) { throw PrintError(number, why); }

// The pages that the user picked: `count` of them from `first` on.
struct PageSpan {
  int first;
  int count;
};

PageSpan PickedPages(const QPrinter& chosen, int count) {
  if (chosen.printRange() != QPrinter::PageRange) return {0, count};
  const int first = std::max(chosen.fromPage(), 1);
  const int last = std::min(chosen.toPage(), count);
  if (last < first) Fail(kPrinterError, "There are no such pages");
  return {first - 1, last - first + 1};
}

bool IsDrawn(QPrinter& paper, const PrintedPages& pages, PageSpan picked) {
  QPainter painter;
  bool drawn = painter.begin(&paper);
  for (int i = 0; i < picked.count && drawn; ++i) {
    if (i > 0) drawn = paper.newPage();
    if (drawn) pages.draw(painter, picked.first + i);
  }
  return drawn && painter.end();
}

// The file is written whole or not at all.
void WriteFile(const QString& name, const QByteArray& bytes) {
  QSaveFile file(name);
  const bool written =
      file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
  if (!written) Fail(kPathFileAccess, FromQString(file.errorString()));
}

}  // namespace

PrintJob::PrintJob(QPrinter& chosen, const QString& title) : chosen_(chosen) {
  chosen_.setDocName(title);
  chosen_.setCreator("Log Checker");
}

QString PrintJob::DeviceName() const {
  return IsFile() ? chosen_.outputFileName() : chosen_.printerName();
}

void PrintJob::Send(const PrintedPages& pages) {
  if (DeviceName().isEmpty()) Fail(kPrinterError, "There is no printer");
  const QByteArray whole = DrawWhole(pages);
  if (IsFile()) {
    WriteFile(chosen_.outputFileName(), whole);
    return;
  }
  HandOver(pages);
}

// The toolkit does not notice when it can't write its own copy, but the whole one, which is as long
// and lay where that will lie, has just made room for it.
void PrintJob::HandOver(const PrintedPages& pages) {
  const QueueWatch queue(chosen_.printerName());
  const PageSpan picked = PickedPages(chosen_, pages.count);
  const bool drawn = IsDrawn(chosen_, pages, picked);
  const std::string refusal = queue.Refusal(drawn);
  if (!refusal.empty()) Fail(kPrinterError, refusal);
  if (!drawn) Fail(kPrinterError, ErrorText(kPrinterError));
}

QByteArray PrintJob::DrawWhole(const PrintedPages& pages) const {
  const QTemporaryDir folder;
  QPrinter paper(QPrinter::HighResolution);
  // The end of the name says that it is a PDF file.
  paper.setOutputFileName(folder.filePath("job.pdf"));
  paper.setResolution(chosen_.resolution());
  paper.setPageLayout(chosen_.pageLayout());
  paper.setColorMode(chosen_.colorMode());
  paper.setDocName(chosen_.docName());
  paper.setCreator(chosen_.creator());
  const std::string place = FromQString(QDir::toNativeSeparators(QDir::tempPath()));
  if (!folder.isValid()) Fail(kPathFileAccess, ErrorText(kPathFileAccess) + ": " + place);
  if (!IsDrawn(paper, pages, PickedPages(chosen_, pages.count))) {
    Fail(kPrinterError, ErrorText(kPrinterError));
  }
  QFile drawn(paper.outputFileName());
  QByteArray bytes = drawn.open(QIODevice::ReadOnly) ? drawn.readAll() : QByteArray();
  if (!IsWholePdf(std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())))) {
    Fail(kDiskFull, ErrorText(kDiskFull) + ": " + place);
  }
  return bytes;
}

}  // namespace logchecker
