#include "tests/support/ui/HostProgram.h"

#include <QProcess>

namespace logchecker {

QString OutputOfProgram(const QString& program, const QStringList& arguments) {
  constexpr int kPatience = 60000;  // milliseconds
  QProcess process;
  process.start(program, arguments);
  process.waitForFinished(kPatience);
  return QString::fromUtf8(process.readAllStandardOutput());
}

}  // namespace logchecker
