// Stores for measuring, in a folder of their own that goes with the program.
#pragma once

#include <cstdint>

namespace logchecker {

// Opens a store of so many carts, all in use, each with a notes file where `notes` says so.
void OpenBenchStore(int32_t carts, bool notes);

}  // namespace logchecker
