// A table's row of rich text, as a line whose cells begin at tab stops.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "notes/RichText.h"
#include "notes/RichTextWords.h"

namespace logchecker {

class RichTextRow {
 public:
  // Takes a word that says where cells lie; any other does nothing.
  void Take(RichTextWord word, int32_t number);
  void EndCell() { ++ended_; }
  void EndRow() { ended_ = begun_ = 0; }
  // The format of a paragraph that ends now: what it has, or inside a row what the cells ask for.
  TextParagraph FormatOf(const TextParagraph& paragraph, bool endsRow);

 private:
  int32_t BeginOf(size_t cell) const;

  std::vector<int32_t> edges_;  // the cells' right ones, in twips
  int32_t left_ = 0;
  int32_t gap_ = 0;
  size_t ended_ = 0;  // cells of the row
  size_t begun_ = 0;  // the cell in which the paragraph begins
};

}  // namespace logchecker
