// The reader of rich text proper.
#pragma once

#include <string_view>

#include "notes/RichTextBody.h"

namespace logchecker {

// `bytes` begin with the mark of rich text.
void ReadRichTextGroups(std::string_view bytes, RichTextBody& body);

}  // namespace logchecker
