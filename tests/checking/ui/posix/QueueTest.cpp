// The report on a real queue of a real print scheduler.
#include <QAbstractPrintDialog>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <algorithm>
#include <array>

#include "tests/checking/ui/ResultsTest.h"
#include "tests/support/ui/PrintQueue.h"
#include "tests/support/ui/PrintedFile.h"
#include "tests/support/ui/posix/FullDisk.h"

namespace logchecker {
namespace {

class QueueTest : public ResultsTest {
 protected:
  // Prints so many copies on the queue.
  void Print(int copies, const DialogScript::Work& pick = {},
             const DialogScript::Work& properties = {}) {
    DialogScript script([&](QDialog* dialog) {
      PickQueue(dialog, PrintQueue::kName);
      Control<QSpinBox>(dialog, "copies")->setValue(copies);
      if (pick) pick(dialog);
      qobject_cast<QAbstractPrintDialog*>(dialog)->accept();
    });
    if (properties) script.Then(properties);
    window->PrintDetails();
  }
  std::string Said() const {
    return ui.messages.size() == 1 ? ui.messages[0].text
                                   : std::to_string(ui.messages.size()) + " messages";
  }
  const std::string kPrinted =
      std::string("Your Check Split Times Report has been printed on ") + PrintQueue::kName;
  const std::string kProblem =
      std::string("There was a problem printing your Check Split Times Report on ") +
      PrintQueue::kName;

  PrintQueue queue;
};

TEST_F(QueueTest, ThreeCopiesAreThreeJobsOfOneCopy) {
  Check();
  Print(3);
  EXPECT_EQ(Said(), kPrinted);
  const QList<QueuedJob> jobs = queue.Jobs();
  ASSERT_EQ(jobs.size(), 3);
  for (const QueuedJob& job : jobs) {
    EXPECT_TRUE(job.title.startsWith("Velmar KLT LC - Check Split Times for "));
    EXPECT_EQ(job.options.value("copies", "1"), "1");
  }
}

TEST_F(QueueTest, APausedPrinterTakesJobs) {
  Check();
  queue.Command("cupsdisable");
  Print(1);
  EXPECT_EQ(Said(), kPrinted);
  EXPECT_EQ(queue.Jobs().size(), 1);
}

TEST_F(QueueTest, TheRefusalOfAQueueIsSaidOnceWithItsReason) {
  Check();
  queue.Command("cupsreject");
  Print(3);
  EXPECT_EQ(Said(), kProblem + "Destination \"" + PrintQueue::kName + "\" is not accepting jobs.");
  EXPECT_TRUE(queue.Jobs().isEmpty());
}

TEST_F(QueueTest, WhereTheTemporaryFolderIsFullNothingGoesToTheQueue) {
  Check();
  for (const rlim_t room : {0, 4096}) {
    ui.messages.clear();
    const FullDisk full(room);
    Print(3);
    EXPECT_EQ(Said(), kProblem + "Disk full: " + QDir::tempPath().toStdString());
  }
  EXPECT_TRUE(queue.Jobs().isEmpty());
}

TEST_F(QueueTest, AQueueThatIsGoneByThenIsSaid) {
  Check();
  Print(1, [&](QDialog*) { queue.Remove(); });
  EXPECT_EQ(Said(), kProblem + "The printer is not there");
}

// In points.
QSizeF SizeOfPage(const QString& pdf) {
  const auto match = QRegularExpression("Page size: +([0-9.]+) x ([0-9.]+)")
                         .match(OutputOfProgram("pdfinfo", {pdf}));
  return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}

// The longest straight black line down the first page, in points.
int RuleLength(const QString& pdf) {
  const QTemporaryDir folder;
  OutputOfProgram("pdftoppm", {"-r", "72", "-f", "1", "-singlefile", "-gray", "-png", pdf,
                               folder.filePath("page")});
  const QImage page(folder.filePath("page.png"));
  int longest = 0;
  for (int x = 0; x < page.width(); ++x) {
    int run = 0;
    for (int y = 0; y < page.height(); ++y) {
      run = qGray(page.pixel(x, y)) < 200 ? run + 1 : 0;
      longest = std::max(longest, run);
    }
  }
  return longest;
}

void PickItem(QDialog* dialog, const char* box, const QString& item) {
  auto* items = Control<QComboBox>(dialog, box);
  const int index = items->findText(item, Qt::MatchStartsWith);
  ASSERT_GE(index, 0) << box;
  items->setCurrentIndex(index);
}

// Among the options that the printer has of its own.
void PickOption(QDialog* dialog, const QString& choice) {
  for (QComboBox* box :
       Control<QWidget>(dialog, "cupsPropertiesPage")->findChildren<QComboBox*>()) {
    if (box->findText(choice) < 0) continue;
    box->setCurrentIndex(box->findText(choice));
    emit box->activated(box->currentIndex());
    return;
  }
  ADD_FAILURE() << "not offered: " << choice.toStdString();
}

TEST_F(QueueTest, PaperOrientationAndSidesReachThePrinter) {
  Check();
  Print(
      1,
      [](QDialog* dialog) {
        Control<QPushButton>(dialog, "properties")->click();
        Control<QRadioButton>(dialog, "noDuplex")->click();
      },
      [](QDialog* properties) {
        PickItem(properties, "pageSizeCombo", "A4");
        Control<QRadioButton>(properties, "landscape")->click();
        properties->accept();
      });
  EXPECT_EQ(Said(), kPrinted);
  const QList<QueuedJob> jobs = queue.Jobs();
  ASSERT_EQ(jobs.size(), 1);
  EXPECT_EQ(jobs[0].options.value("media"), "A4");
  EXPECT_EQ(jobs[0].options.value("sides"), "one-sided");
  EXPECT_TRUE(jobs[0].options.contains("landscape"));
  const QString pdf = queue.Printed();
  EXPECT_NEAR(SizeOfPage(pdf).width(), 595, 1);
  EXPECT_NEAR(SizeOfPage(pdf).height(), 842, 1);
  EXPECT_GT(RuleLength(pdf), 780) << "along the sheet's longer edge";
}

TEST_F(QueueTest, WhatIsPickedInThePropertiesReachesThePrinter) {
  Check();
  Print(
      1, [](QDialog* dialog) { Control<QPushButton>(dialog, "properties")->click(); },
      [](QDialog* properties) {
        PickItem(properties, "pagesPerSheetCombo", "4");
        EXPECT_FALSE(Control<QComboBox>(properties, "paperSource")->isVisible())
            << "the printer's own option stands for it";
        PickOption(properties, "Lower Tray");
        PickItem(properties, "startBannerPageCombo", "Standard");
        Control<QLineEdit>(properties, "jobBillingLineEdit")->setText("advert desk");
        properties->accept();
      });
  const QList<QueuedJob> jobs = queue.Jobs();
  ASSERT_EQ(jobs.size(), 1);
  EXPECT_EQ(jobs[0].options.value("number-up"), "4");
  EXPECT_EQ(jobs[0].options.value("InputSlot"), "Lower");
  EXPECT_EQ(jobs[0].options.value("job-billing"), "advert desk");
  EXPECT_TRUE(jobs[0].options.value("job-sheets").startsWith("standard"));
}

TEST_F(QueueTest, ARangeOfPagesPrintsAlone) {
  constexpr int kManyRows = 90;
  std::string log;
  for (int row = 0; row < kManyRows; ++row) {
    std::array<char, 8> time{};
    std::snprintf(time.data(), time.size(), "%02d:%02d", 7 + row / 60, row % 60);
    log += Line(time.data(), 11) + "\r\n";
  }
  WriteLog(1, kDay, log);
  gSplits(1).LoadLogFile();
  Check();
  Print(1, [](QDialog* dialog) {
    Control<QRadioButton>(dialog, "printRange")->setChecked(true);
    Control<QSpinBox>(dialog, "from")->setValue(2);
    Control<QSpinBox>(dialog, "to")->setValue(2);
  });
  EXPECT_EQ(Said(), kPrinted);
  const QString text = TextOfFile(queue.Printed());
  EXPECT_TRUE(text.contains("Time")) << "the second page's headings";
  EXPECT_FALSE(text.contains("Velmar KLT LC")) << "the first page's title";
  EXPECT_FALSE(text.contains("07:00"));
}

}  // namespace
}  // namespace logchecker
