// The queue is there before the program: see tests/support/wine/with_print_queue.py.
#include "tests/support/ui/PrintQueue.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QPrinterInfo>
#include <QThread>

#include "tests/support/ui/HostProgram.h"

namespace logchecker {

namespace {

QString Folder() { return qEnvironmentVariable("LOGCHECKER_PRINT_QUEUE"); }

int Completed() {
  return static_cast<int>(OutputOfProgram("lpstat", {"-h", Folder() + "/socket", "-W", "completed",
                                                     "-o", PrintQueue::kName})
                              .count(QString(PrintQueue::kName) + "-"));
}

}  // namespace

PrintQueue::PrintQueue() : before_(Completed()) {
  EXPECT_TRUE(QPrinterInfo::availablePrinterNames().contains(kName));
}

PrintQueue::~PrintQueue() = default;

QString PrintQueue::Printed() const {
  constexpr int kPatience = 60000;  // milliseconds
  const QDeadlineTimer patience(kPatience);
  while (!patience.hasExpired()) {
    if (Completed() == before_ + 1) return "Z:" + Folder() + "/printed.pdf";
    QThread::msleep(50);
  }
  ADD_FAILURE() << "the job was not printed";
  return {};
}

}  // namespace logchecker
