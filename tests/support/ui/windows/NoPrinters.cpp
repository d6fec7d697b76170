// Wine is told of a print scheduler that is not there: see tests/CMakeLists.txt.
#include "tests/support/ui/NoPrinters.h"

#include <gtest/gtest.h>

#include <QPrinterInfo>

namespace logchecker {

NoPrinters::NoPrinters() { EXPECT_TRUE(QPrinterInfo::availablePrinterNames().isEmpty()); }

NoPrinters::~NoPrinters() = default;

}  // namespace logchecker
