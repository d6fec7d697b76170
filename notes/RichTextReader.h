// The reader of rich text proper.
#pragma once

#include <string_view>

#include "notes/RichText.h"

namespace logchecker {

// `bytes` begin with the mark of rich text.
RichTextDocument ReadRichTextGroups(std::string_view bytes);

}  // namespace logchecker
