// The pictures drawn for the program.
#pragma once

#include <QIcon>

namespace logchecker {

// By the name of its drawing: "program", "load-day", "check-day", "save", "print" and so on.
QIcon IconNamed(const char* name);

}  // namespace logchecker
