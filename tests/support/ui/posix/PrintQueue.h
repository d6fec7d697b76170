// A queue of a print scheduler of one's own.
#pragma once

#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace logchecker {

struct QueuedJob {
  int id = 0;
  QString title;
  QMap<QString, QString> options;  // all that came with the job, by name
};

// Starts the scheduler, and has the program print through it from then on; fails the test when it
// does not start. The printer takes A4 and Letter, prints on both sides unless told otherwise, and
// writes the last job into a file.
class PrintQueue {
 public:
  PrintQueue();
  ~PrintQueue();
  PrintQueue(const PrintQueue&) = delete;
  PrintQueue& operator=(const PrintQueue&) = delete;

  static constexpr char kName[] = "logchecker-test";

  // A program of the scheduler, as `cupsdisable`, on the queue.
  void Command(const QString& program) const { Run(program, {kName}); }
  // The paper that the queue prints on unless told otherwise.
  void SetOwnPaper(const QString& name) const {
    Run("lpadmin", {"-p", kName, "-o", "PageSize=" + name});
  }
  // Takes the queue away.
  void Remove() const { Run("lpadmin", {"-x", kName}); }
  // All that the queue ever got, the first job first.
  QList<QueuedJob> Jobs() const;
  // The PDF file that came out of the printer for the only job that the queue got, once it is done.
  QString Printed() const;

 private:
  void Run(const QString& program, const QStringList& arguments) const;
  QString Socket() const { return folder_.filePath("p/socket"); }

  QTemporaryDir folder_{"/tmp/logchecker-queue-XXXXXX"};
  QProcess scheduler_;
};

}  // namespace logchecker
