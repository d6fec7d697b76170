#include "tests/support/ui/NoPrinters.h"

#include <cups/cups.h>

namespace logchecker {

NoPrinters::NoPrinters() { cupsSetServer("/nowhere"); }

NoPrinters::~NoPrinters() { cupsSetServer(nullptr); }

}  // namespace logchecker
