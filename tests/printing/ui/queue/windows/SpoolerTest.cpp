// Jobs on their way through the spooler.
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "printing/PrintCanvas.h"
#include "printing/ui/PrintJob.h"
#include "printing/ui/QueueWatch.h"
#include "tests/support/ui/PrintQueue.h"
#include "tests/support/ui/PrintedFile.h"

namespace logchecker {
namespace {

bool HasInk(const QImage& page) {
  constexpr int kDark = 128;
  for (int y = 0; y < page.height(); ++y) {
    for (int x = 0; x < page.width(); ++x) {
      if (qGray(page.pixel(x, y)) < kDark) return true;
    }
  }
  return false;
}

class SpoolerTest : public WindowTest {
 protected:
  SpoolerTest() : printer(QPrinter::HighResolution) { printer.setPrinterName(PrintQueue::kName); }

  // Why a job of two pages was not taken; empty where it was.
  std::string Send() {
    constexpr int kPages = 2;
    PrintJob job(printer, "The title");
    EXPECT_EQ(job.DeviceName(), PrintQueue::kName);
    try {
      // No text: what fonts there are is the system's.
      job.Send({kPages, [](QPainter& painter, int page) {
                  painter.fillRect(QRect(100, 100, 300 * (page + 1), 200), Qt::black);
                }});
    } catch (const PrintError& error) {
      return error.what();
    }
    return "";
  }

  const PrintQueue queue;
  QPrinter printer;
};

TEST_F(SpoolerTest, AJobIsPrintedWhole) {
  EXPECT_EQ(Send(), "");
  const QString file = queue.Printed();
  EXPECT_TRUE(OutputOfProgram("pdfinfo", {file}).contains(QRegularExpression("Pages: +2\n")));
  for (const char* page : {"1", "2"}) {
    const QTemporaryDir folder;
    OutputOfProgram("pdftoppm", {"-r", "30", "-f", page, "-singlefile", "-gray", "-png", file,
                                 folder.filePath("page")});
    EXPECT_TRUE(HasInk(QImage(folder.filePath("page.png")))) << page;
  }
}

TEST_F(SpoolerTest, PaperAndOrientationReachThePrinter) {
  printer.setPageSize(QPageSize(QPageSize::A4));
  printer.setPageOrientation(QPageLayout::Landscape);
  EXPECT_EQ(Send(), "");
  const QString facts = OutputOfProgram("pdfinfo", {queue.Printed()});
  EXPECT_TRUE(facts.contains(QRegularExpression("Page size: +(842 x 595|595 x 842)")))
      << facts.toStdString();
}

// Wine goes on printing on a queue that is taken away while the toolkit holds it.
TEST_F(SpoolerTest, OfAQueueThatIsNotThereTheReasonIsKnown) {
  for (const bool drawn : {false, true}) {
    EXPECT_EQ(QueueWatch("no such queue").Refusal(drawn), "The printer is not there");
    EXPECT_EQ(QueueWatch(PrintQueue::kName).Refusal(drawn), "");
  }
}

}  // namespace
}  // namespace logchecker
