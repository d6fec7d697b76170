// Whether a PDF file was written to its end.
#pragma once

#include <string_view>

namespace logchecker {

// True when the file has its trailer, and its table of objects stands where the trailer says. A
// file that lost its end, or a piece in the middle, on a full disk does not pass.
bool IsWholePdf(std::string_view bytes);

}  // namespace logchecker
