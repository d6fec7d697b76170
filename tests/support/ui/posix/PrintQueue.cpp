#include "tests/support/ui/posix/PrintQueue.h"

#include <cups/cups.h>
#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>
#include <algorithm>
#include <array>
#include <memory>

namespace logchecker {

namespace {

constexpr int kPatience = 60000;  // milliseconds

struct FreeMessage {
  void operator()(ipp_t* message) const { ippDelete(message); }
};
using Message = std::unique_ptr<ipp_t, FreeMessage>;

Message JobRequest(ipp_op_t operation) {
  Message request(ippNewRequest(operation));
  const QByteArray uri = QByteArray("ipp://localhost/printers/") + PrintQueue::kName;
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
               uri.constData());
  return request;
}

// The value as the scheduler's library writes it.
QString ValueOf(ipp_attribute_t* attribute) {
  std::array<char, 1024> text{};
  ippAttributeString(attribute, text.data(), text.size());
  return QString::fromUtf8(text.data());
}

QueuedJob Attributes(int id) {
  Message request = JobRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
  const Message answer(cupsDoRequest(CUPS_HTTP_DEFAULT, request.release(), "/"));
  QueuedJob job;
  job.id = id;
  for (ipp_attribute_t* attribute = ippFirstAttribute(answer.get()); attribute != nullptr;
       attribute = ippNextAttribute(answer.get())) {
    if (ippGetName(attribute) == nullptr) continue;
    job.options[ippGetName(attribute)] = ValueOf(attribute);
  }
  job.title = job.options.value("job-name");
  return job;
}

}  // namespace

PrintQueue::PrintQueue() {
  // The printer's filters run as a user of their own.
  QFile::setPermissions(folder_.path(),
                        QFile::permissions(folder_.path()) | QFile::ReadOther | QFile::ExeOther);
  scheduler_.start("python3", {LOGCHECKER_PRINT_SCHEDULER, folder_.filePath("p")});
  QByteArray said;
  const QDeadlineTimer patience(kPatience);
  while (!said.endsWith('\n') &&
         scheduler_.waitForReadyRead(static_cast<int>(patience.remainingTime()))) {
    said += scheduler_.readAllStandardOutput();
  }
  EXPECT_EQ(said.toStdString(), "ready\n") << scheduler_.readAllStandardError().toStdString();
  cupsSetServer(Socket().toUtf8().constData());
}

PrintQueue::~PrintQueue() {
  cupsSetServer(nullptr);
  scheduler_.closeWriteChannel();
  EXPECT_TRUE(scheduler_.waitForFinished(kPatience));
}

void PrintQueue::Run(const QString& program, const QStringList& arguments) const {
  QProcess process;
  process.start("/usr/sbin/" + program, QStringList({"-h", Socket()}) + arguments);
  EXPECT_TRUE(process.waitForFinished(kPatience));
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
}

QList<QueuedJob> PrintQueue::Jobs() const {
  cups_job_t* found = nullptr;
  const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &found, kName, 0, CUPS_WHICHJOBS_ALL);
  QList<QueuedJob> jobs;
  for (int i = 0; i < count; ++i) jobs.push_back(Attributes(found[i].id));
  cupsFreeJobs(count, found);
  std::sort(jobs.begin(), jobs.end(),
            [](const QueuedJob& a, const QueuedJob& b) { return a.id < b.id; });
  return jobs;
}

QString PrintQueue::Printed() const {
  const QDeadlineTimer patience(kPatience);
  while (!patience.hasExpired()) {
    const QList<QueuedJob> jobs = Jobs();
    if (jobs.size() == 1 && jobs[0].options.value("job-state") == "completed") {
      return folder_.filePath("p/printed.pdf");
    }
    QThread::msleep(50);
  }
  ADD_FAILURE() << "the job was not printed";
  return {};
}

}  // namespace logchecker
