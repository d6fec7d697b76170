// Under Wine a program of the system below can be started, but neither be waited for nor be read
// through a pipe. A shell runs it and renames the file of what it printed when it has ended.
#include "tests/support/ui/HostProgram.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include "platform/windows/WindowsApi.h"

namespace logchecker {

namespace {

// Wine's own call for the path that the system below has for one of Windows.
QString PathBelow(const QString& path) {
  using Translate = char*(CDECL*)(const wchar_t*);
  const auto translate = reinterpret_cast<Translate>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name")));
  if (translate == nullptr) {
    ADD_FAILURE() << "these tests run under Wine";
    return path;
  }
  char* found = translate(QDir::toNativeSeparators(path).toStdWString().c_str());
  const QString below = found != nullptr ? QString::fromUtf8(found) : path;
  HeapFree(GetProcessHeap(), 0, found);
  return below;
}

bool IsWholePath(const QString& argument) {
  return argument.size() > 2 && argument[1] == ':' && QDir::isAbsolutePath(argument);
}

}  // namespace

QString OutputOfProgram(const QString& program, const QStringList& arguments) {
  constexpr int kPatience = 60000;  // milliseconds
  const QTemporaryDir folder;
  const QString printed = folder.filePath("printed");
  QStringList all = {"-c", "\"$@\" >\"$0.part\" 2>/dev/null; mv \"$0.part\" \"$0\"",
                     PathBelow(printed), program};
  for (const QString& argument : arguments) {
    all.push_back(IsWholePath(argument) ? PathBelow(argument) : argument);
  }
  QProcess::startDetached("Z:/bin/sh", all);
  const QDeadlineTimer patience(kPatience);
  QFile file(printed);
  while (!file.exists() && !patience.hasExpired()) QThread::msleep(5);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << program.toStdString() << " did not end";
  return QString::fromUtf8(file.readAll());
}

}  // namespace logchecker
