// Programs of the system that the tests run on, which look at what was printed.
#pragma once

#include <QString>
#include <QStringList>

namespace logchecker {

// What a program prints, with the arguments as they are; those that are whole paths name the same
// file for it.
QString OutputOfProgram(const QString& program, const QStringList& arguments);

}  // namespace logchecker
