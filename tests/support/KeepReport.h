// Every JSON report that a test meets is kept, so that all are held against their schema at the
// end.
#pragma once

#include <string>

namespace logchecker {

// Puts a copy of a JSON report into the folder that LOGCHECK_REPORTS names, where that is set.
// Other bytes are left alone. Gives back what it was given.
std::string KeepReport(std::string bytes);

}  // namespace logchecker
